#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <set>
#include <string_view>

#include "media/Mp3Bytes.h"
#include "media/Mp3Fixtures.h"
#include "media/Mp3Infos.h"
#include "platform/MemoryInputFile.h"

// Every file cut short at every length, as a copy broken off or a download
// that stopped leaves it: the reader must return, read no byte outside the
// file (the sanitizer build watches) and give only what the bytes it reads
// allow.

namespace nomra::media {
namespace {

using namespace std::string_literals;

constexpr std::size_t kRecord = 128;
constexpr std::size_t kWindow = 8192;
constexpr std::size_t kEveryLengthUpTo = 20000;
// The farthest the frame walk reads past the tag's size field: a frame
// header that starts just inside and the largest size it takes.
constexpr std::size_t kWalkReach = 10 + 32767;

std::int64_t TagSizeField(std::string_view bytes) {
  const auto b = [&bytes](std::size_t k) { return static_cast<std::int64_t>(static_cast<unsigned char>(bytes[k])); };
  return b(6) * 2097152 + b(7) * 16384 + b(8) * 128 + b(9);
}

bool IsTagMark(std::string_view three) {
  std::string upper(three);
  for (char& c : upper) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
  return upper == "TAG";
}

// What must hold for the first `n` bytes of `whole`, whose whole reading
// was `full`; "" when it all holds, else what did not.
std::string CheckPrefix(std::string_view whole, std::size_t n, const Mp3Infos& full) {
  const std::string_view cut = whole.substr(0, n);
  platform::MemoryInputFile file(cut);
  Mp3Infos infos;
  infos.Read(file);
  const MpegHeader& header = infos.Header();
  std::string wrong;
  const auto check = [&wrong](bool holds, const char* what) {
    if (!holds) wrong += std::string(what) + "; ";
  };
  if (n < kRecord) {
    // Shorter than the ID3v1 record: nothing is read at all.
    check(!infos.HasId3v1() && !infos.HasId3v2() && infos.Frames().empty(), "a file below 128 bytes gave values");
    check(header.bitrate == 0 && header.headerPosition == 0, "a file below 128 bytes gave a header");
    return wrong;
  }
  check(infos.HasId3v1() == IsTagMark(cut.substr(n - kRecord, 3)), "ID3v1 presence is not the record's TAG");
  if (n < kWindow) {
    // The first 8,192 bytes can't be read: no tag walk, no frame search.
    check(!infos.HasId3v2() && infos.Frames().empty(), "a file below 8192 bytes gave ID3v2 values");
    check(header.bitrate == 0 && infos.Mp3Length().empty(), "a file below 8192 bytes gave a header");
    return wrong;
  }
  const bool tagged = cut.substr(0, 3) == "ID3";
  check(infos.HasId3v2() == tagged, "ID3v2 presence is not the ID3 at byte 0");
  const std::int64_t tagSize = tagged ? TagSizeField(cut) : 0;
  if (tagged) check(infos.Id3v2Version() == static_cast<unsigned char>(cut[3]), "the version is not byte 3");
  // The search reads 8,192 bytes behind the tag; a shorter rest gives none.
  const std::int64_t searchEnd = tagged ? tagSize + 10 + static_cast<std::int64_t>(kWindow) : kWindow;
  if (static_cast<std::int64_t>(n) < searchEnd) {
    check(header.bitrate == 0 && infos.Mp3Length().empty(), "a header came from a search window cut short");
    return wrong;
  }
  // The window is whole: the first frame is the full file's, and the count
  // of frames is the cut file's size over its frame size.
  const MpegHeader& fullHeader = full.Header();
  check(header.version == fullHeader.version && header.layer == fullHeader.layer &&
            header.bitrate == fullHeader.bitrate && header.frequency == fullHeader.frequency &&
            header.headerPosition == fullHeader.headerPosition && header.frameSize == fullHeader.frameSize,
        "the first frame differs from the whole file's");
  if (header.frameSize > 0 && header.bitrate > 0) {
    const std::int64_t audio = static_cast<std::int64_t>(n) - (tagged ? tagSize + 11 : 0);
    check(header.frames == static_cast<std::int32_t>(std::nearbyint(double(audio) / header.frameSize)),
          "the frame count is not the cut file's size over the frame size");
  }
  if (tagged && static_cast<std::int64_t>(n) >= tagSize + static_cast<std::int64_t>(kWalkReach)) {
    check(infos.Frames() == full.Frames(), "the walk read other frames than in the whole file");
  }
  return wrong;
}

// Every length up to 20,000 bytes, then the lengths around each edge the
// reader has (the record, the window behind the tag, the walk's reach) and
// some in between.
std::set<std::size_t> CutLengths(std::string_view bytes) {
  std::set<std::size_t> lengths;
  const std::size_t size = bytes.size();
  for (std::size_t n = 0; n <= std::min(size, kEveryLengthUpTo); ++n) lengths.insert(n);
  std::vector<std::int64_t> edges = {static_cast<std::int64_t>(size), static_cast<std::int64_t>(size - kRecord)};
  if (size >= 10 && bytes.substr(0, 3) == "ID3") {
    const std::int64_t tag = TagSizeField(bytes);
    edges.insert(edges.end(), {tag + 10, tag + 10 + static_cast<std::int64_t>(kWindow),
                               tag + static_cast<std::int64_t>(kWalkReach)});
  }
  for (const std::int64_t edge : edges) {
    for (std::int64_t n = edge - 2; n <= edge + 2; ++n) {
      if (n >= 0 && n <= static_cast<std::int64_t>(size)) lengths.insert(static_cast<std::size_t>(n));
    }
  }
  for (std::size_t n = 0; n <= size; n += 4099) lengths.insert(n);
  return lengths;
}

// Runs every cut of one file; the first few failures are told.
void ExpectEveryCutReads(const std::string& name, std::string_view bytes) {
  platform::MemoryInputFile wholeFile(bytes);
  Mp3Infos full;
  full.Read(wholeFile);
  int failures = 0;
  std::size_t count = 0;
  for (const std::size_t n : CutLengths(bytes)) {
    ++count;
    const std::string wrong = CheckPrefix(bytes, n, full);
    if (!wrong.empty() && ++failures <= 5) ADD_FAILURE() << name << " cut to " << n << " bytes: " << wrong;
  }
  EXPECT_EQ(failures, 0) << name << ": " << failures << " of " << count << " cuts";
  EXPECT_GT(count, std::min<std::size_t>(bytes.size(), kEveryLengthUpTo)) << name;
}

class Mp3CutRealFiles : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { fixtures_ = std::make_unique<testing::Mp3Fixtures>(); }
  static void TearDownTestSuite() { fixtures_.reset(); }
  void SetUp() override { ASSERT_TRUE(fixtures_->Made()) << fixtures_->Problems(); }
  static std::unique_ptr<testing::Mp3Fixtures> fixtures_;
};

std::unique_ptr<testing::Mp3Fixtures> Mp3CutRealFiles::fixtures_;

TEST_F(Mp3CutRealFiles, EveryFileCutAtEveryLengthReadsWithinTheRules) {
  for (const std::string& name : testing::Mp3Fixtures::Names()) ExpectEveryCutReads(name, fixtures_->Bytes(name));
}

// ---- Files made to show one flaw each ------------------------------------------

using testing::AudioBytes;
using testing::Frame23;
using testing::Id3v1;
using testing::Id3v2Tag;
using testing::kFrame128;

std::string Latin1(const std::string& text) { return "\0"s + text; }

// A frame header whose size field says `size`, and only `data` behind it.
std::string FrameClaiming(const std::string& id, std::uint32_t size, const std::string& data) {
  std::string frame = Frame23(id, data);
  for (int k = 0; k < 4; ++k) frame[4 + static_cast<std::size_t>(k)] = static_cast<char>(size >> (24 - 8 * k));
  return frame;
}

std::map<std::string, std::string> FlawFiles() {
  const std::string audio = AudioBytes(kFrame128, 12000);
  const std::string v1 = Id3v1("Title", "Artist", "Album", "2001", "Comment", 17);
  std::map<std::string, std::string> files;
  files["tag_size_field_all_7f"] = "ID3\x03\0\0\x7F\x7F\x7F\x7F"s + Frame23("TIT2", Latin1("Title")) + audio + v1;
  files["tag_size_field_all_ff"] = "ID3\x03\0\0\xFF\xFF\xFF\xFF"s + Frame23("TIT2", Latin1("Title")) + audio;
  files["tag_size_zero"] = Id3v2Tag(3, "", 0) + audio + v1;
  files["frame_size_past_the_end"] =
      Id3v2Tag(3, Frame23("TPE1", Latin1("Artist")) + FrameClaiming("TIT2", 30000, Latin1("Cut")), 30100) + audio;
  files["frame_size_32767"] = Id3v2Tag(3, FrameClaiming("TIT2", 32767, Latin1("Big")), 40000) + audio;
  files["frame_size_32768"] = Id3v2Tag(3, FrameClaiming("TIT2", 32768, Latin1("Too big")), 40000) + audio + v1;
  files["empty_frames_repeated"] = Id3v2Tag(3, Frame23("TIT2", "") + Frame23("TIT2", "") + Frame23("TIT2", "")) + audio;
  files["version_24_frame_size_300"] =
      Id3v2Tag(4, "TIT2"s + testing::Syncsafe(300) + "\0\0"s + Latin1(std::string(299, 'x'))) + audio;
  files["extended_header_flag"] =
      Id3v2Tag(3, "\0\0\0\x06\0\0\0\0\0\0"s + Frame23("TIT2", Latin1("T")), 200, 0x40) + audio;
  files["all_ff_bytes"] = std::string(10000, '\xFF');
  files["all_nul_bytes"] = std::string(10000, '\0');
  files["sync_half_a_byte_on"] = "\x0F\xFF\xB9\x06"s + std::string(10000, '\0') + v1;
  files["sync_at_the_window_end"] = std::string(8190, '\0') + "\xFF\xFB\x90\x64"s + std::string(2000, '\0');
  files["refused_header_then_good"] =
      "\xFF\xFB\xF0\x64"s + std::string(10, '\0') + "\xFF\xFB\x90\x64"s + std::string(10000, '\0');
  files["free_format_bitrate"] = AudioBytes("\xFF\xFB\x00\x64"s, 10000);
  files["lower_case_tag_record"] = audio + Id3v1("t", "a", "b", "1999", "c", 0, "tag");
  files["id3_and_tag_only"] = Id3v2Tag(3, Frame23("TIT2", Latin1("Title"))) + v1;
  files["comment_marks_everywhere"] =
      Id3v2Tag(3, Frame23("COMM", "\x01\xFF\xFE\xFE\xFF\xFF\xFE\0"s) + Frame23("TCON", Latin1("(((")) +
                      Frame23("TRCK", "\x01\xFF\xFE"s)) +
      audio;
  return files;
}

TEST(Mp3CutFlawFiles, EveryFileCutAtEveryLengthReadsWithinTheRules) {
  for (const auto& [name, bytes] : FlawFiles()) ExpectEveryCutReads(name, bytes);
}

}  // namespace
}  // namespace nomra::media
