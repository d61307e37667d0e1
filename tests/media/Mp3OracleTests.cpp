#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <set>

#include "base/Cp1252.h"
#include "base/Utf8.h"
#include "media/Mp3Fixtures.h"
#include "media/Mp3Infos.h"
#include "platform/posix/PosixFileSystem.h"

// Nomra's MP3 reader against mutagen on real files made by lame, id3v2,
// eyeD3 and mutagen. Where the reader's rules are not mutagen's (it keeps
// the old program's light reading), the test holds the reader's result and
// says which rule makes it.

namespace nomra::media {
namespace {

using namespace std::string_literals;
using Oracle = std::map<std::string, std::string>;

std::string Value(const Oracle& oracle, const std::string& key) {
  const auto found = oracle.find(key);
  return found == oracle.end() ? std::string() : found->second;
}
int Number(const Oracle& oracle, const std::string& key) { return std::stoi(Value(oracle, key)); }
bool Flag(const Oracle& oracle, const std::string& key) { return Value(oracle, key) == "true"; }

// The files, made once for the suite: each test runs in a process of its
// own, and making them takes about two seconds, so the tests are few and
// each goes over many files.
std::unique_ptr<testing::Mp3Fixtures> made;

Mp3Infos Read(const std::string& name) {
  platform::PosixFileSystem files;
  Mp3Infos infos;
  EXPECT_TRUE(infos.GetFileInfos(files, made->PathOf(name)));
  return infos;
}
const Oracle& OracleOf(const std::string& name) { return made->Oracle(name); }
std::int64_t SizeOf(const std::string& name) { return static_cast<std::int64_t>(made->Bytes(name).size()); }

class Mp3Oracle : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { made = std::make_unique<testing::Mp3Fixtures>(); }
  static void TearDownTestSuite() { made.reset(); }
  void SetUp() override { ASSERT_TRUE(made->Made()) << made->Problems(); }
};

// The files whose first frame header the reader can't reach: a frame of
// 32,768 bytes or more (the picture) ends all reading.
const std::set<std::string> kNoHeaderRead = {"mutagen_v23_apic_40000.mp3", "eyed3_v23_apic_big.mp3"};

// ---- The first frame and the length -----------------------------------------

// The reader's version bits from mutagen's version number.
int VersionBits(const std::string& version) { return version == "1" ? 3 : version == "2" ? 2 : 0; }

struct Counted {
  std::int32_t frameSize = 0, frames = 0, seconds = 0;
};

// The length as the reader works it out from the first frame alone, and the
// mistakes it keeps: no VBR header is read; the frame size is 144 x bitrate
// / frequency for every version, halved (cut to whole bytes) for joint
// stereo and mono below MPEG 1 and once more for joint stereo at MPEG 2.5;
// the file's bytes less the ID3v2 tag and one byte (the ID3v1 record
// counts as audio) in frames; frames per second by the frequency's row
// only, with 32.5 for 48 kHz.
Counted ReaderCount(std::int64_t fileLength, const Oracle& oracle) {
  const int version = VersionBits(Value(oracle, "mpeg_version"));
  const int mode = Number(oracle, "channel_mode");
  const int frequency = Number(oracle, "sample_rate");
  double size = 144.0 * Number(oracle, "first_frame_bitrate") / frequency;
  if (version < 3 && mode == 1) {
    size = std::trunc(size) / 2;
    if (version == 0) size = std::trunc(size) / 2;
  } else if (version < 3 && mode == 3) {
    size = std::trunc(size) / 2;
  }
  Counted counted;
  counted.frameSize = static_cast<std::int32_t>(std::trunc(size));
  const std::int64_t behindTag = Flag(oracle, "id3v2") ? Number(oracle, "id3v2_size") + 1 : 0;
  counted.frames = static_cast<std::int32_t>(std::nearbyint(double(fileLength - behindTag) / counted.frameSize));
  const double perSecond = (frequency == 48000 || frequency == 24000 || frequency == 12000)  ? 32.5
                           : (frequency == 32000 || frequency == 16000 || frequency == 8000) ? 27.8
                                                                                             : 38.5;
  counted.seconds = static_cast<std::int32_t>(std::nearbyint(counted.frames / perSecond));
  return counted;
}

TEST_F(Mp3Oracle, TheFirstFrameHeaderIsTheOneMutagenFinds) {
  for (const std::string& name : testing::Mp3Fixtures::Names()) {
    if (kNoHeaderRead.count(name)) continue;
    SCOPED_TRACE(name);
    const Mp3Infos infos = Read(name);
    const Oracle& oracle = OracleOf(name);
    const MpegHeader& header = infos.Header();
    EXPECT_EQ(header.version, VersionBits(Value(oracle, "mpeg_version")));
    EXPECT_EQ(header.layer, 4 - Number(oracle, "layer"));
    EXPECT_EQ(header.frequency, Number(oracle, "sample_rate"));
    EXPECT_EQ(header.channelMode, Number(oracle, "channel_mode"));
    EXPECT_EQ(header.padding, Number(oracle, "first_frame_padding") == 1);
    // The bitrate is the first frame's: for a VBR file that is the Xing
    // frame's, where mutagen gives the average the Xing header tells.
    EXPECT_EQ(header.bitrate, Number(oracle, "first_frame_bitrate"));
    if (Value(oracle, "bitrate_mode") != "VBR") {
      EXPECT_EQ(header.bitrate, Number(oracle, "bitrate"));
    }
    EXPECT_EQ(infos.BitrateKbps(), Number(oracle, "first_frame_bitrate") / 1000);
    // Behind a tag the position counts from 1, in a file without one from 0.
    EXPECT_EQ(header.headerPosition, Number(oracle, "frame_offset") + (Flag(oracle, "id3v2") ? 1 : 0));
  }
}

void TheLengthIsTheFileInFramesOfTheFirstFramesSize() {
  for (const std::string& name : testing::Mp3Fixtures::Names()) {
    if (kNoHeaderRead.count(name)) continue;
    SCOPED_TRACE(name);
    const Mp3Infos infos = Read(name);
    const Counted expected = ReaderCount(SizeOf(name), OracleOf(name));
    EXPECT_EQ(infos.Header().frameSize, expected.frameSize);
    EXPECT_EQ(infos.Header().frames, expected.frames);
    EXPECT_EQ(infos.Header().seconds, expected.seconds);
    EXPECT_EQ(infos.Mp3Length(), std::to_string(expected.seconds));
  }
}

void TheLengthIsMutagensWhereTheFrameCountHolds() {
  // The 11 kHz MPEG 2.5 file is right by two mistakes that cancel: twice the
  // frames at twice the frames per second.
  for (const std::string name :
       {"lame_cbr128.mp3", "lame_cbr128_no_info_frame.mp3", "lame_cbr64_mono.mp3", "lame_cbr128_32k.mp3",
        "lame_mpeg2_22k_joint.mp3", "lame_mpeg2_22k_mono.mp3", "lame_mpeg25_11k_joint.mp3",
        "lame_cbr128_id3v1_id3v2_3_utf16.mp3", "id3v2_id3v1_id3v2_3_latin1.mp3", "eyed3_v24_utf8.mp3",
        "mutagen_v23_apic_3000.mp3", "built_v22.mp3"}) {
    SCOPED_TRACE(name);
    const long mutagenSeconds = std::lround(std::stod(Value(OracleOf(name), "length")));
    EXPECT_EQ(Read(name).Mp3Length(), std::to_string(mutagenSeconds));
  }
}

void TheLengthMissesWhereTheFrameCountFails() {
  // VBR: the Xing header is not read; the file's bytes are counted in
  // frames of the Xing frame's own bitrate (128 kbit/s), while the other
  // frames are larger.
  // 48 kHz: 32.5 frames per second stand in for 41.7.
  // MPEG 2 stereo: the frame size is not halved as for joint stereo and
  // mono, so half the frames are counted.
  for (const std::string name : {"lame_vbr_v2_xing.mp3", "lame_cbr128_48k.mp3", "lame_mpeg2_22k_stereo.mp3"}) {
    SCOPED_TRACE(name);
    const Oracle& oracle = OracleOf(name);
    const Mp3Infos infos = Read(name);
    EXPECT_NE(infos.Mp3Length(), std::to_string(std::lround(std::stod(Value(oracle, "length")))));
    EXPECT_EQ(infos.Header().seconds, ReaderCount(SizeOf(name), oracle).seconds);
  }
}

// ---- ID3v1 ---------------------------------------------------------------------

TEST_F(Mp3Oracle, TheId3v1FieldsAreMutagens) {
  for (const std::string& name : testing::Mp3Fixtures::Names()) {
    SCOPED_TRACE(name);
    const Mp3Infos infos = Read(name);
    const Oracle& oracle = OracleOf(name);
    ASSERT_EQ(infos.HasId3v1(), Flag(oracle, "id3v1"));
    if (!infos.HasId3v1()) {
      EXPECT_EQ(infos.Id3SongTitleV1(), "");
      continue;
    }
    EXPECT_EQ(infos.Id3SongTitleV1(), Value(oracle, "v1_title"));
    EXPECT_EQ(infos.Id3ArtistV1(), Value(oracle, "v1_artist"));
    EXPECT_EQ(infos.Id3AlbumV1(), Value(oracle, "v1_album"));
    EXPECT_EQ(infos.Id3YearV1(), Value(oracle, "v1_year"));
    EXPECT_EQ(infos.Id3CommentV1(), Value(oracle, "v1_comment"));
    EXPECT_EQ(infos.Id3TrackV1(), Value(oracle, "v1_track"));
    EXPECT_EQ(infos.Id3GenreV1(), Value(oracle, "v1_genre"));
    // The values without a suffix take ID3v2's first.
    EXPECT_EQ(infos.Id3SongTitle(), infos.HasId3v2() ? infos.Id3SongTitleV2() : Value(oracle, "v1_title"));
  }
}

// ---- ID3v2 ---------------------------------------------------------------------

// The bytes a frame of `encoding` held for mutagen's `text`, as the reader's
// byte rules leave them, decoded as Windows-1252: Latin-1 stays; UTF-16
// (with its mark, little-endian as both taggers write it) loses every NUL,
// so Latin-1 letters come through and others turn into two bytes; UTF-8
// keeps the encoding byte 3 in front of a text frame (a comment loses it
// with its language code) and its multi-byte letters read as two or three.
std::string ThroughTheByteRules(const std::string& text, int encoding, bool comment) {
  std::string bytes;
  if (encoding == 3) return (comment ? "" : "\x03") + base::DecodeCp1252(text);
  for (char32_t c : base::ToChars(text)) {
    if (encoding == 0) {
      bytes += static_cast<char>(c);
      continue;
    }
    std::u16string units;
    if (c >= 0x10000) {
      units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
      units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
      units += static_cast<char16_t>(c);
    }
    for (char16_t unit : units) {
      for (const char byte : {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)}) {
        if (byte != '\0') bytes += byte;
      }
    }
  }
  return base::DecodeCp1252(bytes);
}

std::string ExpectedText(const Oracle& oracle, const std::string& id) {
  if (!oracle.count(id)) return "";
  return ThroughTheByteRules(Value(oracle, id), Number(oracle, id + "_encoding"), id == "COMM");
}

// "(17)Rock" gives "17": the genre is what stands in brackets.
std::string GenreOf(const std::string& text) {
  if (text.empty() || text.front() != '(' || text.find(')') == std::string::npos) return text;
  return text.substr(1, text.find(')') - 1);
}

void TheId3v2TextsAreMutagensThroughTheByteRules() {
  // Tags whose every frame the walk reads: version 2.3 frames below 32,768
  // bytes, version 2.4 frames below 128.
  for (const std::string name :
       {"lame_cbr128_id3v1_id3v2_3_utf16.mp3", "id3v2_id3v1_id3v2_3_latin1.mp3", "eyed3_v24_utf8.mp3",
        "eyed3_v24_utf16.mp3", "eyed3_v23_utf16.mp3", "eyed3_v23_apic_small.mp3", "mutagen_v23_utf16_bom.mp3",
        "mutagen_v23_latin1_padding4096.mp3", "mutagen_v24_latin1_small_frames.mp3", "mutagen_v23_apic_3000.mp3"}) {
    SCOPED_TRACE(name);
    const Mp3Infos infos = Read(name);
    const Oracle& oracle = OracleOf(name);
    ASSERT_TRUE(infos.HasId3v2());
    EXPECT_EQ(infos.Id3v2Version(), Number(oracle, "id3v2_major"));
    EXPECT_EQ(infos.Id3SongTitleV2(), ExpectedText(oracle, "TIT2"));
    EXPECT_EQ(infos.Id3ArtistV2(), ExpectedText(oracle, "TPE1"));
    EXPECT_EQ(infos.Id3AlbumV2(), ExpectedText(oracle, "TALB"));
    EXPECT_EQ(infos.Id3TrackV2(), ExpectedText(oracle, "TRCK"));
    EXPECT_EQ(infos.Id3CommentV2(), ExpectedText(oracle, "COMM"));
    EXPECT_EQ(infos.Id3GenreV2(), GenreOf(ExpectedText(oracle, "TCON")));
    // The year is TYER's alone: version 2.4's TDRC is not read.
    EXPECT_EQ(infos.Id3YearV2(), ExpectedText(oracle, "TYER"));
    if (oracle.count("TDRC")) {
      EXPECT_EQ(infos.FrameText("TDRC"), ExpectedText(oracle, "TDRC"));
    }
  }
}

void TheByteRulesGiveWhatMutagenReadsOnlyForLatin1Letters() {
  // Spelled out for one file of each kind, beside the rule above.
  EXPECT_EQ(Value(OracleOf("eyed3_v24_utf8.mp3"), "TIT2"), "Tïtle Ω");
  EXPECT_EQ(Read("eyed3_v24_utf8.mp3").Id3SongTitleV2(), "\x03TÃ¯tle Î©");
  EXPECT_EQ(Value(OracleOf("eyed3_v23_utf16.mp3"), "TIT2"), "Tïtle Ω");
  EXPECT_EQ(Read("eyed3_v23_utf16.mp3").Id3SongTitleV2(), "Tïtle ©\x03");
  EXPECT_EQ(Read("mutagen_v23_utf16_bom.mp3").Id3SongTitleV2(), "Frühling à Paris");
}

void ThreeLettersAndTheirClosingNulReadAsALanguageCode() {
  // mutagen ends each text with a NUL; four bytes with a NUL last are taken
  // for a comment's language code and an empty description, and dropped.
  const Oracle& oracle = OracleOf("mutagen_v23_three_letter_texts.mp3");
  const Mp3Infos infos = Read("mutagen_v23_three_letter_texts.mp3");
  EXPECT_EQ(Value(oracle, "TIT2"), "Sun");
  EXPECT_EQ(infos.Id3SongTitleV2(), "");
  EXPECT_EQ(Value(oracle, "TCON"), "Pop");
  EXPECT_EQ(infos.Id3GenreV2(), "");
  EXPECT_EQ(infos.Id3ArtistV2(), Value(oracle, "TPE1"));
}

void AFileWithoutATagHasNoId3v2Values() {
  for (const std::string& name : testing::Mp3Fixtures::Names()) {
    if (Flag(OracleOf(name), "id3v2")) continue;
    SCOPED_TRACE(name);
    const Mp3Infos infos = Read(name);
    EXPECT_FALSE(infos.HasId3v2());
    EXPECT_EQ(infos.Id3SongTitleV2(), "");
    EXPECT_EQ(infos.Id3GenreV2(), "");
  }
}

void AVersion22TagOrAnExtendedHeaderGivesNoFrames() {
  // Version 2.2 ids have three letters and a NUL in the fourth place ends
  // the walk; so does the size of an extended header where the first id
  // would be. The audio behind the tag is found all the same.
  for (const std::string name : {"built_v22.mp3", "built_v23_extended_header.mp3"}) {
    SCOPED_TRACE(name);
    const Oracle& oracle = OracleOf(name);
    const Mp3Infos infos = Read(name);
    EXPECT_TRUE(infos.HasId3v2());
    EXPECT_EQ(infos.Id3v2Version(), Number(oracle, "id3v2_major"));
    EXPECT_FALSE(Value(oracle, "TIT2").empty());
    EXPECT_EQ(infos.Id3SongTitleV2(), "");
    EXPECT_FALSE(Value(oracle, "TPE1").empty());
    EXPECT_EQ(infos.Id3ArtistV2(), "");
    EXPECT_EQ(infos.BitrateKbps(), Number(oracle, "first_frame_bitrate") / 1000);
  }
}

void UnsynchronisationIsNotUndone() {
  // The title held 0xFF 0xFF, stored as 0xFF 0x00 0xFF; the frame's size
  // counts the bytes before unsynchronisation, so the stored bytes are cut
  // one short.
  const Oracle& oracle = OracleOf("built_v23_unsynchronised.mp3");
  const Mp3Infos infos = Read("built_v23_unsynchronised.mp3");
  EXPECT_EQ(Value(oracle, "TIT2"), "Tÿÿ Title");
  EXPECT_EQ(infos.Id3SongTitleV2(), "Tÿ\0ÿ Titl"s);
  EXPECT_EQ(infos.Id3ArtistV2(), Value(oracle, "TPE1"));
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

void AFrameOf32KiBOrMoreEndsAllReadingWithTheFramesBeforeIt() {
  // mutagen writes the picture last: every text is read, the audio isn't.
  {
    const Oracle& oracle = OracleOf("mutagen_v23_apic_40000.mp3");
    const Mp3Infos infos = Read("mutagen_v23_apic_40000.mp3");
    EXPECT_EQ(Value(oracle, "APIC_bytes"), "40000");
    EXPECT_EQ(infos.Id3SongTitleV2(), Value(oracle, "TIT2"));
    EXPECT_EQ(infos.Id3ArtistV2(), Value(oracle, "TPE1"));
    EXPECT_EQ(infos.Id3AlbumV2(), Value(oracle, "TALB"));
    EXPECT_EQ(infos.Id3CommentV2(), Value(oracle, "COMM"));
    EXPECT_EQ(infos.BitrateKbps(), 0);
    EXPECT_EQ(infos.Mp3Length(), "");
  }
  // eyeD3 writes it first: nothing at all is read.
  {
    const Oracle& oracle = OracleOf("eyed3_v23_apic_big.mp3");
    const Mp3Infos infos = Read("eyed3_v23_apic_big.mp3");
    EXPECT_GE(Number(oracle, "APIC_bytes"), 32768);
    EXPECT_EQ(Value(oracle, "TIT2"), "Cover");
    EXPECT_TRUE(infos.HasId3v2());
    EXPECT_EQ(infos.Id3SongTitleV2(), "");
    EXPECT_EQ(infos.Id3ArtistV2(), "");
    EXPECT_EQ(infos.BitrateKbps(), 0);
    EXPECT_EQ(infos.Mp3Length(), "");
  }
}

void AVersion24FrameOver127BytesRunsOnOverTheFramesBehindIt() {
  // Version 2.4 writes sizes in 7-bit groups and the reader takes the third
  // byte for 256, not 128: the 201 bytes of the title read as 329, over
  // the artist and track frames behind it into the padding, where the walk
  // ends on NULs. The frames before it (eyeD3 orders them by id) and the
  // audio are read.
  const Oracle& oracle = OracleOf("eyed3_v24_title200.mp3");
  const Mp3Infos infos = Read("eyed3_v24_title200.mp3");
  const std::string title = infos.Id3SongTitleV2();
  EXPECT_EQ(title.substr(0, Value(oracle, "TIT2").size()), Value(oracle, "TIT2"));
  EXPECT_NE(title.find("TPE1"), std::string::npos) << "the artist's frame is read as part of the title";
  EXPECT_EQ(Value(oracle, "TPE1"), "Artist");
  EXPECT_EQ(infos.Id3ArtistV2(), "");
  EXPECT_EQ(infos.Id3TrackV2(), "");
  EXPECT_EQ(infos.Id3AlbumV2(), Value(oracle, "TALB"));
  EXPECT_EQ(infos.Id3CommentV2(), Value(oracle, "COMM"));
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

void ASecondCommentFrameEndsTheWalk() {
  // The second COMM is not passed but walked into: its data's first bytes,
  // a NUL and "eng", are taken for an id, and the NUL ends the walk. The
  // composer behind it (mutagen writes it last, being the longest) is lost.
  const Oracle& oracle = OracleOf("mutagen_v23_two_comments.mp3");
  const Mp3Infos infos = Read("mutagen_v23_two_comments.mp3");
  EXPECT_EQ(Value(oracle, "COMM_count"), "2");
  EXPECT_EQ(infos.Id3CommentV2(), Value(oracle, "COMM"));
  EXPECT_EQ(infos.Id3SongTitleV2(), Value(oracle, "TIT2"));
  EXPECT_EQ(infos.Id3YearV2(), Value(oracle, "TYER"));
  EXPECT_FALSE(Value(oracle, "TCOM").empty());
  EXPECT_EQ(infos.Id3Element(4), "") << "TCOM";
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST_F(Mp3Oracle, TheLengthIsTheFileCountedInFramesOfTheFirstFramesSize) {
  TheLengthIsTheFileInFramesOfTheFirstFramesSize();
  TheLengthIsMutagensWhereTheFrameCountHolds();
  TheLengthMissesWhereTheFrameCountFails();
}

TEST_F(Mp3Oracle, TheId3v2TextsAreMutagensThroughTheReadersByteRules) {
  TheId3v2TextsAreMutagensThroughTheByteRules();
  TheByteRulesGiveWhatMutagenReadsOnlyForLatin1Letters();
  ThreeLettersAndTheirClosingNulReadAsALanguageCode();
  AFileWithoutATagHasNoId3v2Values();
}

TEST_F(Mp3Oracle, Version22ExtendedHeadersAndUnsynchronisationAreNotKnownToTheWalk) {
  AVersion22TagOrAnExtendedHeaderGivesNoFrames();
  UnsynchronisationIsNotUndone();
}

TEST_F(Mp3Oracle, BigFramesAndRepeatedIdsEndTheWalkEarly) {
  AFrameOf32KiBOrMoreEndsAllReadingWithTheFramesBeforeIt();
  AVersion24FrameOver127BytesRunsOnOverTheFramesBehindIt();
  ASecondCommentFrameEndsTheWalk();
}

}  // namespace
}  // namespace nomra::media
