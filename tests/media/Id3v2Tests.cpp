#include <gtest/gtest.h>

#include <algorithm>

#include "media/Id3v2Walk.h"
#include "media/Mp3Bytes.h"
#include "media/Mp3Infos.h"

namespace nomra::media {
namespace {

using namespace std::string_literals;
using testing::AudioBytes;
using testing::Frame23;
using testing::Id3v1;
using testing::Id3v2Tag;
using testing::kFrame128;
using testing::ReadFixture;
using testing::TempFolder;

std::string Audio() { return AudioBytes(kFrame128, 20000); }
std::string Latin1(const std::string& text) { return "\0"s + text; }

TEST(Id3v2, TheFramesOfAVersion23TagAreRead) {
  TempFolder folder;
  const std::string body = Frame23("TIT2", Latin1("Title")) + Frame23("TPE1", Latin1("Artist")) +
                           Frame23("TALB", Latin1("Album")) + Frame23("TYER", Latin1("2001")) +
                           Frame23("TRCK", Latin1("7/12"));
  const Mp3Infos infos = ReadFixture(folder, "v23_latin1.mp3", Id3v2Tag(3, body) + Audio());
  ASSERT_TRUE(infos.HasId3v2());
  EXPECT_EQ(infos.Id3v2Version(), 3);
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
  EXPECT_EQ(infos.Id3ArtistV2(), "Artist");
  EXPECT_EQ(infos.Id3AlbumV2(), "Album");
  EXPECT_EQ(infos.Id3YearV2(), "2001");
  EXPECT_EQ(infos.Id3TrackV2(), "7/12");
  EXPECT_EQ(infos.BitrateKbps(), 128);
  EXPECT_EQ(infos.Header().headerPosition, static_cast<std::int32_t>(body.size()) + 64 + 11);
}

TEST(Id3v2, ASecondFrameOfTheSameIdEndsTheWalk) {
  TempFolder folder;
  const std::string body = Frame23("TIT2", Latin1("One")) + Frame23("TPE1", Latin1("Artist")) +
                           Frame23("TIT2", Latin1("Two")) + Frame23("TALB", Latin1("Album"));
  const Mp3Infos infos = ReadFixture(folder, "v23_repeated_frame.mp3", Id3v2Tag(3, body) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "One");
  EXPECT_EQ(infos.Id3ArtistV2(), "Artist");
  EXPECT_EQ(infos.Id3AlbumV2(), "") << "frames behind the repeated one are not read";
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST(Id3v2, AFrameOfSizeZeroIsPassedAndItsValueStaysEmpty) {
  TempFolder folder;
  const std::string body = Frame23("TIT2", "") + Frame23("TPE1", Latin1("Artist"));
  const Mp3Infos infos = ReadFixture(folder, "v23_frame_size_zero.mp3", Id3v2Tag(3, body) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "");
  EXPECT_EQ(infos.Id3ArtistV2(), "Artist");
}

TEST(Id3v2, TheGenreTakesWhatStandsInBracketsAndTheElementKeepsTheFrame) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v23_genre_17_rock.mp3", Id3v2Tag(3, Frame23("TCON", Latin1("(17)Rock"))) + Audio());
  EXPECT_EQ(infos.Id3GenreV2(), "17");
  EXPECT_EQ(infos.Id3Element(7), "(17)Rock");
  const Mp3Infos plain =
      ReadFixture(folder, "v23_genre_text.mp3", Id3v2Tag(3, Frame23("TCON", Latin1("Rock"))) + Audio());
  EXPECT_EQ(plain.Id3GenreV2(), "Rock");
  const Mp3Infos remix =
      ReadFixture(folder, "v23_genre_rx.mp3", Id3v2Tag(3, Frame23("TCON", Latin1("(RX)"))) + Audio());
  EXPECT_EQ(remix.Id3GenreV2(), "RX");
}

TEST(Id3v2, ACommentWithAnEmptyDescriptionGivesItsTextAlone) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v23_comm_latin1.mp3", Id3v2Tag(3, Frame23("COMM", "\0eng\0Nice song"s)) + Audio());
  EXPECT_EQ(infos.Id3CommentV2(), "Nice song");
}

TEST(Id3v2, ACommentWithADescriptionKeepsLanguageDescriptionAndNul) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v23_comm_description.mp3", Id3v2Tag(3, Frame23("COMM", "\0engd\0Nice"s)) + Audio());
  EXPECT_EQ(infos.Id3CommentV2(), "engd\0Nice"s);
}

TEST(Id3v2, AUtf16CommentWithByteOrderMarksGivesItsTextAlone) {
  TempFolder folder;
  const std::string data =
      "\x01"
      "eng\xFF\xFE\0\0\xFF\xFEN\0i\0c\0e\0"s;
  const Mp3Infos infos = ReadFixture(folder, "v23_comm_utf16.mp3", Id3v2Tag(3, Frame23("COMM", data)) + Audio());
  EXPECT_EQ(infos.Id3CommentV2(), "Nice");
}

TEST(Id3v2, AUtf16TitleLosesItsNuls) {
  TempFolder folder;
  const std::string data =
      "\x01\xFF\xFE"
      "C\0a\0f\0\xE9\0\0\0"s;
  const Mp3Infos infos = ReadFixture(folder, "v23_tit2_utf16.mp3", Id3v2Tag(3, Frame23("TIT2", data)) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "Café");
}

TEST(Id3v2, AUtf16TitleOfOddLengthKeepsWhatItHas) {
  TempFolder folder;
  const std::string data =
      "\x01\xFF\xFE"
      "A\0B"s;
  const Mp3Infos infos = ReadFixture(folder, "v23_utf16_odd_length.mp3", Id3v2Tag(3, Frame23("TIT2", data)) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "AB");
}

TEST(Id3v2, APictureOf100KilobytesEndsTheReadingAfterTheTitle) {
  TempFolder folder;
  const std::string body =
      Frame23("TIT2", Latin1("Title")) + Frame23("APIC", std::string(100 * 1024, 'p')) + Frame23("TPE1", Latin1("X"));
  const std::string bytes = Id3v2Tag(3, body) + Audio();
  const Mp3Infos infos = ReadFixture(folder, "v23_picture_100k.mp3", bytes);
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
  EXPECT_EQ(infos.Id3ArtistV2(), "");
  EXPECT_EQ(infos.Header().bitrate, 0);
  EXPECT_EQ(infos.Header().fileSize, static_cast<std::int32_t>(bytes.size())) << "the whole length stays";
}

TEST(Id3v2, APictureOf3000BytesIsReadLikeAnyFrame) {
  TempFolder folder;
  const std::string body =
      Frame23("TIT2", Latin1("Title")) + Frame23("APIC", std::string(3000, 'p')) + Frame23("TPE1", Latin1("Artist"));
  const Mp3Infos infos = ReadFixture(folder, "v23_picture_3000.mp3", Id3v2Tag(3, body) + Audio());
  EXPECT_EQ(infos.Id3ArtistV2(), "Artist");
  EXPECT_EQ(infos.BitrateKbps(), 128);
  EXPECT_EQ(infos.Frames().at("APIC").size(), 3000u);
}

TEST(Id3v2, AVersion22TagIsThereWithEveryValueEmpty) {
  TempFolder folder;
  // Three-letter ids and three size bytes: the fourth byte read as an id is
  // the size's high byte, a NUL.
  const std::string body = "TT2\0\0\x06\0Title"s + "TP1\0\0\x07\0Artist"s;
  const Mp3Infos infos = ReadFixture(folder, "v22_tag.mp3", Id3v2Tag(2, body) + Audio());
  EXPECT_TRUE(infos.HasId3v2());
  EXPECT_EQ(infos.Id3SongTitleV2(), "");
  EXPECT_EQ(infos.Id3ArtistV2(), "");
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST(Id3v2, AnExtendedHeaderIsTakenForAFrameAndEndsTheWalk) {
  TempFolder folder;
  const std::string extended = "\0\0\0\x06\0\0\0\0\0\0"s;
  const std::string body = extended + Frame23("TIT2", Latin1("Title"));
  const Mp3Infos infos = ReadFixture(folder, "v23_extended_header.mp3", Id3v2Tag(3, body, 200, '\x40') + Audio());
  EXPECT_TRUE(infos.HasId3v2());
  EXPECT_EQ(infos.Id3SongTitleV2(), "");
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST(Id3v2, ALowerCaseMarkerIsNoTag) {
  TempFolder folder;
  std::string tag = Id3v2Tag(3, Frame23("TIT2", Latin1("Title")));
  tag.replace(0, 3, "id3");
  const Mp3Infos infos = ReadFixture(folder, "v2_marker_lower_case.mp3", tag + Audio());
  EXPECT_FALSE(infos.HasId3v2());
  EXPECT_EQ(infos.Id3SongTitleV2(), "");
}

TEST(Id3v2, Version24FramesReadUpTo127Bytes) {
  TempFolder folder;
  // Version 2.4 sizes are syncsafe; below 128 they agree with the reading.
  const std::string title(120, 't');
  const Mp3Infos infos =
      ReadFixture(folder, "v24_small_frames.mp3", Id3v2Tag(4, Frame23("TIT2", Latin1(title))) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), title);
}

TEST(Id3v2, UnsynchronisationIsNotUndone) {
  TempFolder folder;
  // An unsynchronised frame holds FF 00 where the text had FF.
  const std::string data = "\0A\xFF\0B"s;
  const Mp3Infos infos =
      ReadFixture(folder, "v24_unsync_frame.mp3", Id3v2Tag(4, Frame23("TIT2", data), 64, '\x80') + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "A\xC3\xBF\0B"s);
}

TEST(Id3v2, AFooterMarkerEndsTheWalk) {
  TempFolder folder;
  const std::string body = Frame23("TIT2", Latin1("Title")) + "3DI\x04\0\0\0\0\0\0"s + Frame23("TPE1", Latin1("X"));
  const Mp3Infos infos = ReadFixture(folder, "v24_footer_inside.mp3", Id3v2Tag(4, body) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
  EXPECT_EQ(infos.Id3ArtistV2(), "");
}

TEST(Id3v2, AFrameSizePastTheEndReadsNulsAndKeepsWhatCameBefore) {
  TempFolder folder;
  const std::string body = Frame23("TIT2", Latin1("Title")) + "TPE1\0\0\x70\x00\0\0\0Artist"s;
  const std::string bytes = Id3v2Tag(3, body, 40000);
  const Mp3Infos infos = ReadFixture(folder, "frame_size_past_end.mp3", bytes);
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
  EXPECT_EQ(infos.Id3ArtistV2(), "Artist");
  EXPECT_EQ(infos.Header().bitrate, 0);
}

TEST(Id3v2, AThreeLetterTextWithATerminatingNulIsTakenForALanguageCode) {
  TempFolder folder;
  // The cleaning drops four characters when the fourth is a NUL, meant for
  // a comment's language and empty description; a text of three letters
  // with its terminator goes with them.
  const Mp3Infos infos =
      ReadFixture(folder, "v24_three_letters_terminated.mp3", Id3v2Tag(4, Frame23("TPE1", "\0ABC\0"s)) + Audio());
  EXPECT_EQ(infos.Id3ArtistV2(), "");
}

TEST(Id3v2, ATagSizePastTheEndOfTheFileGivesTheFramesAndNoHeader) {
  TempFolder folder;
  const std::string body = Frame23("TIT2", Latin1("Title"));
  std::string bytes = Id3v2Tag(3, body, 50) + Audio();
  bytes.replace(6, 4, testing::Syncsafe(10'000'000));
  const Mp3Infos infos = ReadFixture(folder, "tag_size_past_end.mp3", bytes);
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
  EXPECT_EQ(infos.Header().bitrate, 0);
}

TEST(Id3v2, ASyncsafeSizeWithHighBitsSetCountsThem) {
  TempFolder folder;
  std::string bytes = Id3v2Tag(3, Frame23("TIT2", Latin1("Title")), 64) + Audio();
  bytes.replace(6, 4, "\0\0\x80\x40"s);  // 0x80 * 128 + 0x40 = 16448
  const Mp3Infos infos = ReadFixture(folder, "syncsafe_high_bits.mp3", bytes);
  EXPECT_EQ(infos.Id3v2Size(), 16448);
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
}

TEST(Id3v2, ValuesWithoutSuffixPreferTheVersion2FrameAndFallBackToTheRecord) {
  TempFolder folder;
  const std::string bytes =
      Id3v2Tag(3, Frame23("TIT2", Latin1("Title v2"))) + Audio() + Id3v1("Title v1", "Artist v1", "", "1980", "", 13);
  const Mp3Infos infos = ReadFixture(folder, "v1_and_v23.mp3", bytes);
  EXPECT_EQ(infos.Id3SongTitle(), "Title v2");
  EXPECT_EQ(infos.Id3Artist(), "Artist v1");
  EXPECT_EQ(infos.Id3Year(), "1980");
  EXPECT_EQ(infos.Id3Genre(), "13");
  EXPECT_EQ(infos.Id3Album(), "");
}

TEST(Id3v2, ValuesWithoutSuffixAreEmptyWithoutAnyTag) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "no_tags.mp3", Audio());
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_FALSE(infos.HasId3v2());
  EXPECT_EQ(infos.Id3SongTitle(), "");
  EXPECT_EQ(infos.Id3Genre(), "");
  EXPECT_EQ(infos.Id3Track(), "");
}

TEST(Id3v2, FrameIdsCompareWithoutRegardToCase) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v23_lower_case_id.mp3", Id3v2Tag(3, Frame23("tit2", Latin1("Title"))) + Audio());
  EXPECT_EQ(infos.Id3SongTitleV2(), "Title");
  EXPECT_EQ(infos.FrameText("Tit2"), "Title");
}

TEST(Id3v2, UnknownIdsAreKeptButOnlyKnownOnesAreHandedOut) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(
      folder, "v23_unknown_id.mp3", Id3v2Tag(3, Frame23("XYZ1", Latin1("x")) + Frame23("TIT2", Latin1("T"))) + Audio());
  EXPECT_EQ(infos.Frames().count("XYZ1"), 1u);
  EXPECT_EQ(infos.Id3SongTitleV2(), "T");
  EXPECT_EQ(infos.Id3Element(23), "");
  EXPECT_EQ(infos.Id3Element(-1), "");
}

TEST(Id3v2FrameTable, HoldsThe38KnownIdsInWritingOrderWithWxxxLastAndNoWpub) {
  const auto& ids = KnownFrameIds();
  EXPECT_EQ(ids.front(), "COMM");
  EXPECT_EQ(ids[8], "TIT2");
  EXPECT_EQ(ids.back(), "WXXX");
  EXPECT_EQ(std::find(ids.begin(), ids.end(), "WPUB"), ids.end());
}

}  // namespace
}  // namespace nomra::media
