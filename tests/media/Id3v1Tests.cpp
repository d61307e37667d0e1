#include <gtest/gtest.h>

#include "media/Mp3Bytes.h"
#include "media/Mp3Infos.h"

namespace nomra::media {
namespace {

using namespace std::string_literals;
using testing::AudioBytes;
using testing::Id3v1;
using testing::kFrame128;
using testing::ReadFixture;
using testing::TempFolder;

std::string WithRecord(const std::string& record) { return AudioBytes(kFrame128, 20000) + record; }

TEST(Id3v1, TheFieldsOfARecordAreRead) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v1_plain.mp3", WithRecord(Id3v1("Title", "Artist", "Album", "1999", "A comment", 17)));
  ASSERT_TRUE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), "Title");
  EXPECT_EQ(infos.Id3ArtistV1(), "Artist");
  EXPECT_EQ(infos.Id3AlbumV1(), "Album");
  EXPECT_EQ(infos.Id3YearV1(), "1999");
  EXPECT_EQ(infos.Id3CommentV1(), "A comment");
  EXPECT_EQ(infos.Id3TrackV1(), "");
  EXPECT_EQ(infos.Id3GenreV1(), "17");
  EXPECT_EQ(infos.BitrateKbps(), 128) << "the record doesn't keep the header from being found";
}

TEST(Id3v1, ALowerCaseMarkerCountsAsATag) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v1_marker_lower_case.mp3", WithRecord(Id3v1("Title", "", "", "", "", 0, "tag")));
  EXPECT_TRUE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), "Title");
}

TEST(Id3v1, WithoutTheMarkerEveryFieldIsEmpty) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v1_no_marker.mp3", WithRecord(Id3v1("Title", "A", "B", "1", "C", 3, "XYZ")));
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), "");
  EXPECT_EQ(infos.Id3GenreV1(), "");
  EXPECT_EQ(infos.Id3TrackV1(), "");
}

TEST(Id3v1, ATrackByteBehindANulMakesTheCommentTwentyEightLong) {
  TempFolder folder;
  std::string comment = "Twenty-eight characters long";
  ASSERT_EQ(comment.size(), 28u);
  comment += "\0\x05"s;
  const Mp3Infos infos = ReadFixture(folder, "v1_1_track_5.mp3", WithRecord(Id3v1("", "", "", "", comment, 0)));
  EXPECT_EQ(infos.Id3TrackV1(), "5");
  EXPECT_EQ(infos.Id3CommentV1(), "Twenty-eight characters long");
}

TEST(Id3v1, ATrackByteOfZeroIsNoTrackAndTheWholeCommentShowsWithoutNuls) {
  TempFolder folder;
  const std::string comment = "abc\0\0def"s + std::string(22, '\0');
  const Mp3Infos infos = ReadFixture(folder, "v1_track_byte_zero.mp3", WithRecord(Id3v1("", "", "", "", comment, 0)));
  EXPECT_EQ(infos.Id3TrackV1(), "");
  EXPECT_EQ(infos.Id3CommentV1(), "abcdef");
}

TEST(Id3v1, ACommentOf29CharactersAndANulHasNoTrack) {
  TempFolder folder;
  const std::string comment = std::string(29, 'x') + "\0"s;
  const Mp3Infos infos = ReadFixture(folder, "v1_comment_29.mp3", WithRecord(Id3v1("", "", "", "", comment, 0)));
  EXPECT_EQ(infos.Id3TrackV1(), "");
  EXPECT_EQ(infos.Id3CommentV1(), std::string(29, 'x'));
}

TEST(Id3v1, BlanksBeforeTheNulPaddingStay) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "v1_blanks_before_nuls.mp3", WithRecord(Id3v1("Rock  ", "", "", "", "", 0)));
  EXPECT_EQ(infos.Id3SongTitleV1(), "Rock  ");
}

TEST(Id3v1, AGenreBeyondTheTableReadsAsItsNumber) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "v1_genre_200.mp3", WithRecord(Id3v1("", "", "", "", "", 200)));
  EXPECT_EQ(infos.Id3GenreV1(), "200");
  EXPECT_EQ(Id3v1GenreName(200), nullptr);
}

TEST(Id3v1, EightBitTextIsWindows1252) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "v1_cp1252.mp3",
                                     WithRecord(Id3v1("Caf\xE9 \x80",
                                                      "M\xF6tley Cr\xFC"
                                                      "e",
                                                      "", "", "", 0)));
  EXPECT_EQ(infos.Id3SongTitleV1(), "Café €");
  EXPECT_EQ(infos.Id3ArtistV1(), "Mötley Crüe");
}

TEST(Id3v1, AFileEndingInTheMarkerAndBytesIsTaggedWithoutAudio) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "v1_only.mp3", "tag" + std::string(125, 'a'));
  EXPECT_TRUE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), std::string(30, 'a'));
  EXPECT_EQ(infos.Header().bitrate, 0);
}

TEST(Id3v1, AFileShorterThanTheRecordGivesNothing) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "shorter_than_record.mp3", "TAG" + std::string(100, 'a'));
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), "");
}

TEST(Id3v1Genres, TheTableHoldsTheSpellingsUsersKnow) {
  EXPECT_STREQ(Id3v1GenreName(0), "Blues");
  EXPECT_STREQ(Id3v1GenreName(17), "Rock");
  EXPECT_STREQ(Id3v1GenreName(40), "Alt. Rock");
  EXPECT_STREQ(Id3v1GenreName(67), "Psychadelic");
  EXPECT_STREQ(Id3v1GenreName(85), "Bebob");
  EXPECT_STREQ(Id3v1GenreName(100), "Humour");
  EXPECT_STREQ(Id3v1GenreName(123), "A capella");
  EXPECT_STREQ(Id3v1GenreName(133), "Negerpunk");
  EXPECT_STREQ(Id3v1GenreName(140), "Contemporary C");
  EXPECT_STREQ(Id3v1GenreName(147), "SynthPop");
  EXPECT_STREQ(Id3v1GenreName(148), "Unknown");
  EXPECT_EQ(Id3v1GenreName(149), nullptr);
  EXPECT_EQ(Id3v1GenreName(-1), nullptr);
  EXPECT_EQ(kId3v1GenreCount, 149);
}

}  // namespace
}  // namespace nomra::media
