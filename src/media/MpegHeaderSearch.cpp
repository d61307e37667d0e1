#include "media/MpegHeaderSearch.h"

#include <array>
#include <cmath>
#include <optional>

#include "media/ByteReader.h"

namespace nomra::media {

namespace {

// kbit/s by rate index; columns 1 to 3 are version 2 and 2.5 layers III,
// II, I, columns 5 to 7 version 1 layers III, II, I (the column is the
// layer bits, plus 4 for an odd version), and columns 0 and 4 are a layer
// of 0. Rows 0 and 15 make a header invalid.
// clang-format off
constexpr std::array<std::array<int, 8>, 16> kBitrates = {{
    {0, 0, 0, 0, 0, 0, 0, 0},
    {0, 8, 8, 32, 0, 32, 32, 32},
    {0, 16, 16, 48, 0, 40, 48, 64},
    {0, 24, 24, 56, 0, 48, 56, 96},
    {0, 32, 32, 64, 0, 56, 64, 128},
    {0, 40, 40, 80, 0, 64, 80, 160},
    {0, 48, 48, 96, 0, 80, 96, 192},
    {0, 56, 56, 112, 0, 96, 112, 224},
    {0, 64, 64, 128, 0, 112, 128, 256},
    {0, 80, 80, 144, 0, 128, 160, 288},
    {0, 96, 96, 160, 0, 160, 192, 320},
    {0, 112, 112, 176, 0, 192, 224, 352},
    {0, 128, 128, 192, 0, 224, 256, 384},
    {0, 144, 144, 224, 0, 256, 320, 416},
    {0, 160, 160, 256, 0, 320, 384, 448},
    {0, 0, 0, 0, 0, 0, 0, 0},
}};
// Hz by sampling index (rows) and version (columns 0 to 3).
constexpr std::array<std::array<int, 4>, 4> kFrequencies = {{
    {11025, 0, 22050, 44100},
    {12000, 0, 24000, 48000},
    {8000, 0, 16000, 32000},
    {99999, 0, 99999, 99999},
}};
// clang-format on

// Frames per second by the sampling index alone. Index 1 (48 kHz) has the
// smaller value; lengths have always been worked out with these.
constexpr std::array<double, 4> kFramesPerSecond = {38.5, 32.5, 27.8, 0.0};
constexpr int kRefused = 99999;
constexpr std::size_t kLastCounter = 8191;

// Rounds to the nearest whole number, a tie to the even one.
std::int32_t RoundHalfEven(double value) { return static_cast<std::int32_t>(std::nearbyint(value)); }

struct Candidate {
  std::uint8_t b1, b2, b3;
};

// The header bytes at counter i (positions counted from 1), found by the
// sync word on a byte boundary or half a byte on; nothing when i matches
// neither; and a read past the buffer is the end of the search.
enum class Probe { NoMatch, Match, OutOfBuffer };

Probe ProbeAt(const ByteReader& bytes, std::size_t i, Candidate& found) {
  const auto at = [&bytes](std::size_t position) { return bytes.Byte(position - 1); };
  const auto a = at(i), b = at(i + 1);
  if (!a || !b) return Probe::OutOfBuffer;
  std::size_t first = 0;
  if (*a == 0xFF && (*b & 0xE0) == 0xE0) {
    first = i + 1;
  } else {
    const auto c = at(i + 2);
    if (!c) return Probe::OutOfBuffer;
    const std::uint8_t shifted1 = static_cast<std::uint8_t>(((*a & 0x0F) << 4) | (*b >> 4));
    const std::uint8_t shifted2 = static_cast<std::uint8_t>(((*b & 0x0F) << 4) | (*c >> 4));
    if (shifted1 != 0xFF || (shifted2 & 0xE0) != 0xE0) return Probe::NoMatch;
    // The bytes taken are the whole ones behind, not the shifted ones.
    first = i + 2;
  }
  const auto h1 = at(first), h2 = at(first + 1), h3 = at(first + 2);
  if (!h1 || !h2 || !h3) return Probe::OutOfBuffer;
  found = {*h1, *h2, *h3};
  return Probe::Match;
}

// The header fields, and whether the candidate holds a usable rate pair.
bool Decode(const Candidate& c, MpegHeader& header, int& samplingIndex) {
  header.version = static_cast<std::uint8_t>((c.b1 >> 3) & 3);
  header.layer = static_cast<std::uint8_t>((c.b1 >> 1) & 3);
  header.crcProtected = (c.b1 & 1) != 0;
  const int rateIndex = c.b2 >> 4;
  samplingIndex = (c.b2 >> 2) & 3;
  header.padding = (c.b2 & 2) != 0;
  header.channelMode = static_cast<std::uint8_t>(c.b3 >> 6);
  header.channelModeExtension = static_cast<std::uint8_t>((c.b3 >> 4) & 3);
  header.copyright = (c.b3 & 8) != 0;
  header.original = (c.b3 & 4) != 0;
  header.emphasis = static_cast<std::uint8_t>(c.b3 & 3);
  header.privateBit = false;
  const int column = ((header.version & 1) * 4) | header.layer;
  header.bitrate = kBitrates[rateIndex][column] * 1000;
  header.frequency = kFrequencies[samplingIndex][header.version];
  return header.frequency != kRefused && header.frequency != 0 && header.bitrate != 0;
}

// The frame size as a real number before the channel mode's correction,
// which halves it (cut to whole bytes first) for joint stereo and mono
// below version 1, and once more for joint stereo at version 2.5.
double FrameSize(const MpegHeader& header) {
  double size = 0;
  if (header.layer == 3) {
    size = (12.0 * header.bitrate / header.frequency + (header.padding ? 1 : 0)) * 4;
  } else {
    size = 144.0 * header.bitrate / header.frequency;
  }
  const bool below1 = header.version < 3;
  if (header.channelMode == 1 && below1) {
    size = std::trunc(size) / 2;
    if (header.version == 0) size = std::trunc(size) / 2;
  } else if (header.channelMode == 3 && below1) {
    size = std::trunc(size) / 2;
  }
  return size;
}

}  // namespace

void SearchMpegHeader(std::string_view buffer, std::int32_t base, MpegHeader& header) {
  const ByteReader bytes(buffer);
  std::size_t i = 0;
  bool testLast = true;
  for (;;) {
    if (testLast && i == kLastCounter) return;
    testLast = true;
    ++i;
    Candidate candidate{};
    const Probe probe = ProbeAt(bytes, i, candidate);
    if (probe == Probe::OutOfBuffer) return;
    if (probe == Probe::NoMatch) continue;
    header.headerPosition = static_cast<std::int32_t>(base + static_cast<std::int64_t>(i) - 1);
    if (i == kLastCounter) return;
    int samplingIndex = 0;
    if (!Decode(candidate, header, samplingIndex)) {
      // Five positions on in all: four here and the step's own one, whose
      // test for the last position is passed over.
      i += 4;
      testLast = false;
      continue;
    }
    const std::int32_t frameSize = static_cast<std::int32_t>(std::trunc(FrameSize(header)));
    header.frameSize = frameSize;
    if (frameSize == 0) return;
    header.frames = RoundHalfEven(static_cast<double>(header.fileSize) / frameSize);
    header.seconds = RoundHalfEven(header.frames / kFramesPerSecond[samplingIndex]);
    return;
  }
}

}  // namespace nomra::media
