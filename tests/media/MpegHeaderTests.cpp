#include <gtest/gtest.h>

#include "media/Mp3Bytes.h"
#include "media/Mp3Infos.h"
#include "media/MpegHeaderSearch.h"

namespace nomra::media {
namespace {

using testing::AudioBytes;
using testing::Id3v1;
using testing::Id3v2Tag;
using testing::kFrame128;
using testing::ReadFixture;
using testing::TempFolder;

TEST(MpegHeader, TheCommonFrameAtTheStartGivesItsFields) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "cbr128_at_offset_0.mp3", AudioBytes(kFrame128, 20000));
  const MpegHeader& h = infos.Header();
  EXPECT_EQ(h.version, 3);
  EXPECT_EQ(h.layer, 1);
  EXPECT_EQ(infos.BitrateKbps(), 128);
  EXPECT_EQ(h.frequency, 44100);
  EXPECT_EQ(h.headerPosition, 0);
  EXPECT_EQ(h.frameSize, 417) << "no padding byte counts for layer III";
  EXPECT_TRUE(h.crcProtected) << "the protection bit 1 reads as protected";
  EXPECT_EQ(h.channelMode, 1);
  EXPECT_EQ(VersionText(h.version), "MPEG 1.0");
  EXPECT_EQ(LayerText(h.layer), "Layer III");
  EXPECT_EQ(ChannelModeText(h.channelMode), "Joint Stereo");
  EXPECT_EQ(EmphasisText(h.emphasis), "None");
}

TEST(MpegHeader, BehindATagThePositionCountsOneMoreAndTheSizeOneLessThanTheAudio) {
  TempFolder folder;
  const std::string tag = Id3v2Tag(3, "", 1000);
  const std::string audio = AudioBytes(kFrame128, 20000);
  const Mp3Infos infos = ReadFixture(folder, "frame_behind_tag_of_1000.mp3", tag + audio);
  EXPECT_EQ(infos.Header().headerPosition, 1011);
  EXPECT_EQ(infos.Header().fileSize, static_cast<std::int32_t>(tag.size() + audio.size()) - 1011);
  EXPECT_EQ(infos.Header().fileSize, static_cast<std::int32_t>(audio.size()) - 1);
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST(MpegHeader, ThirtySecondsOf128kbitAt44kHzFromTheFrameCount) {
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "cbr128_480000_bytes.mp3", AudioBytes(kFrame128, 480000));
  EXPECT_EQ(infos.Header().frames, 1151);
  EXPECT_EQ(infos.Header().seconds, 30);
  EXPECT_EQ(infos.Mp3Length(), "30");
}

TEST(MpegHeader, AFileAt48kHzComesOutLongerByTheOldFrameRate) {
  TempFolder folder;
  // 480,000 bytes at 128 kbit/s are 30 s; the frame rate 32.5 for 48 kHz
  // makes it 38.
  const Mp3Infos infos =
      ReadFixture(folder, "cbr128_48khz.mp3", AudioBytes(std::string("\xFF\xFB\x94\x64", 4), 480000));
  EXPECT_EQ(infos.Header().frequency, 48000);
  EXPECT_EQ(infos.Header().frameSize, 384);
  EXPECT_EQ(infos.Header().frames, 1250);
  EXPECT_EQ(infos.Header().seconds, 38);
}

TEST(MpegHeader, ASevenKilobyteFileGivesItsTagButNoHeader) {
  TempFolder folder;
  const std::string bytes = AudioBytes(kFrame128, 7 * 1024 - 128) + Id3v1("Song", "Band", "", "", "", 17);
  const Mp3Infos infos = ReadFixture(folder, "shorter_than_search_window.mp3", bytes);
  EXPECT_TRUE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), "Song");
  EXPECT_EQ(infos.Header().bitrate, 0);
  EXPECT_EQ(infos.Mp3Length(), "");
}

TEST(MpegHeader, ZerosBehindTheTagForTheWholeWindowGiveNoHeader) {
  TempFolder folder;
  std::string bytes = Id3v2Tag(3, "", 200) + std::string(9000, '\0') + AudioBytes(kFrame128, 8 * 1024 * 1024);
  const Mp3Infos infos = ReadFixture(folder, "zeros_behind_tag.mp3", bytes);
  EXPECT_TRUE(infos.HasId3v2());
  EXPECT_EQ(infos.Header().bitrate, 0);
  EXPECT_EQ(infos.Header().seconds, 0);
}

TEST(MpegHeader, ACandidateWithRateIndex15IsRefusedAndTheSearchGoesOnFiveBytesOn) {
  TempFolder folder;
  std::string window(20000, '\0');
  window.replace(0, 4, "\xFF\xFB\xF0\x64");
  window.replace(4, 4, kFrame128);  // skipped: it starts within the five bytes
  window.replace(10, 4, kFrame128);
  const Mp3Infos infos = ReadFixture(folder, "rate_index_15_first.mp3", window);
  EXPECT_EQ(infos.Header().headerPosition, 10);
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST(MpegHeader, ASyncWordHalfAByteOnIsFoundAndTheWholeBytesBehindAreTaken) {
  // 0F FF FB: the sync word starts in the low half of the first byte. The
  // header is read from the whole bytes one on, FB 90 64.
  std::string window(20000, '\0');
  window.replace(100, 5, "\x0F\xFF\xFB\x90\x64");
  TempFolder folder;
  const Mp3Infos infos = ReadFixture(folder, "sync_half_a_byte_on.mp3", window);
  EXPECT_EQ(infos.Header().headerPosition, 100);
  EXPECT_EQ(infos.Header().version, 3);
  EXPECT_EQ(infos.BitrateKbps(), 128);
}

TEST(MpegHeader, ARefusedCandidateAtTheEndOfTheWindowLeavesItsFields) {
  std::string window(8192, '\0');
  window.replace(8187, 4, "\xFF\xFB\xF0\x64");  // position 8188: refused, then the search runs out
  MpegHeader header;
  SearchMpegHeader(window, 0, header);
  EXPECT_EQ(header.version, 3);
  EXPECT_EQ(header.layer, 1);
  EXPECT_EQ(header.bitrate, 0);
  EXPECT_EQ(header.headerPosition, 8187);
  EXPECT_EQ(header.frames, 0);
}

TEST(MpegHeader, AMatchAtTheLastCounterCountsAsNoHeader) {
  std::string window(8192, '\0');
  window.replace(8190, 2, "\xFF\xFB");
  MpegHeader header;
  SearchMpegHeader(window, 0, header);
  EXPECT_EQ(header.bitrate, 0);
  EXPECT_EQ(header.version, 0);
}

TEST(MpegHeader, ThePrivateBitIsNeverSet) {
  TempFolder folder;
  const Mp3Infos infos =
      ReadFixture(folder, "every_flag_set.mp3", AudioBytes(std::string("\xFF\xFB\x93\xFF", 4), 20000));
  EXPECT_FALSE(infos.Header().privateBit);
  EXPECT_TRUE(infos.Header().padding);
  EXPECT_TRUE(infos.Header().copyright);
  EXPECT_TRUE(infos.Header().original);
  EXPECT_EQ(infos.Header().emphasis, 3);
  EXPECT_EQ(EmphasisText(3), "CIT J.17");
}

TEST(MpegHeader, JointStereoAtVersion2HalvesTheFrameAndAtVersion25HalvesItTwice) {
  // MPEG 2 layer III 64 kbit/s 22.05 kHz joint stereo: 144 * 64000 / 22050 = 417.9, halved 208.
  MpegHeader v2;
  v2.fileSize = 100000;
  SearchMpegHeader(AudioBytes(std::string("\xFF\xF3\x80\x40", 4), 8192), 0, v2);
  EXPECT_EQ(v2.frequency, 22050);
  EXPECT_EQ(v2.bitrate, 64000);
  EXPECT_EQ(v2.frameSize, 208);
  // MPEG 2.5, 11.025 kHz, 32 kbit/s joint stereo: 417.9 -> 208.5 -> 104.
  MpegHeader v25;
  v25.fileSize = 100000;
  SearchMpegHeader(AudioBytes(std::string("\xFF\xE3\x40\x40", 4), 8192), 0, v25);
  EXPECT_EQ(v25.version, 0);
  EXPECT_EQ(v25.frequency, 11025);
  EXPECT_EQ(v25.frameSize, 104);
  // Stereo at version 2 keeps the factor 144.
  MpegHeader stereo;
  stereo.fileSize = 100000;
  SearchMpegHeader(AudioBytes(std::string("\xFF\xF3\x80\x00", 4), 8192), 0, stereo);
  EXPECT_EQ(stereo.frameSize, 417);
}

TEST(MpegHeader, LayerOneCountsItsPaddingSlot) {
  // MPEG 1 layer I, 384 kbit/s, 44.1 kHz, padding: (12 * 384000 / 44100 + 1) * 4 = 421.9.
  MpegHeader header;
  header.fileSize = 100000;
  SearchMpegHeader(AudioBytes(std::string("\xFF\xFF\xC2\x00", 4), 8192), 0, header);
  EXPECT_EQ(header.layer, 3);
  EXPECT_EQ(header.bitrate, 384000);
  EXPECT_EQ(header.frameSize, 421);
}

}  // namespace
}  // namespace nomra::media
