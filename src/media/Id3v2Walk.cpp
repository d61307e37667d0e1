#include "media/Id3v2Walk.h"

#include <array>
#include <optional>

#include "base/AsciiSearch.h"
#include "media/Id3Text.h"

namespace nomra::media {

namespace {

constexpr std::size_t kIdLength = 4;
constexpr std::size_t kFrameHeaderLength = 10;
constexpr int kLargestSize = 32767;

// b4 x 16384 + b3 x 2048 + b2 x 256 + b1 with every product and sum held
// to 16 bits; nothing when a step goes beyond.
std::optional<int> FrameSize(const std::string& sizeBytes) {
  const auto byte = [&sizeBytes](int k) { return static_cast<int>(static_cast<unsigned char>(sizeBytes[k])); };
  const int products[4] = {byte(0) * 16384, byte(1) * 2048, byte(2) * 256, byte(3)};
  int sum = 0;
  for (const int product : products) {
    if (product > kLargestSize) return std::nullopt;
    sum += product;
    if (sum > kLargestSize) return std::nullopt;
  }
  return sum;
}

// The text of a comment frame starts behind its first NUL when that lies
// within the first five bytes, else two bytes behind a byte order mark
// there; it is cleaned twice.
std::string CommentText(const std::string& data) {
  const std::string_view raw(data);
  std::size_t start = 0;
  const std::size_t nul = raw.find('\0');
  if (nul != std::string_view::npos && nul < 5) {
    start = nul + 1;
  } else {
    // A mark that starts at the fifth byte still counts.
    const std::string_view head = raw.substr(0, 6);
    std::size_t mark = head.find("\xFF\xFE");
    if (mark == std::string_view::npos) mark = head.find("\xFE\xFF");
    if (mark != std::string_view::npos) start = mark + 2;
  }
  return CleanFrameText(CleanFrameText(raw.substr(std::min(start, raw.size()))));
}

// "(17)Rock" gives "17", "(RX)" gives "RX", "Rock" stays "Rock".
std::string GenreText(const std::string& text) {
  if (text.empty() || text.front() != '(') return text;
  const std::size_t close = text.find(')');
  if (close == std::string::npos) return text;
  return text.substr(1, close - 1);
}

}  // namespace

const std::array<std::string_view, 38>& KnownFrameIds() {
  // The last place once held WPUB and was then given to WXXX.
  static const std::array<std::string_view, 38> ids = {
      "COMM", "TALB", "TBPM", "TCOM", "TCON", "TCOP", "TENC", "TEXT", "TIT2", "TKEY", "TLAN", "TMOO", "TOAL",
      "TOFN", "TOLY", "TOPE", "TORY", "TOWN", "TPE1", "TPE2", "TPE3", "TPE4", "TPOS", "TPUB", "TRCK", "TRSN",
      "TRSO", "TSRC", "TYER", "USLT", "WCOM", "WCOP", "WOAF", "WOAR", "WOAS", "WORS", "WPAY", "WXXX"};
  return ids;
}

Id3v2Walked WalkId3v2Frames(FilePieces& file, std::int32_t tagSize) {
  Id3v2Walked walked;
  // p counts from 1 and starts behind the ten bytes of the tag header.
  std::int64_t p = 11;
  while (p < tagSize) {
    const std::string header = file.Padded(static_cast<std::uint64_t>(p - 1), kFrameHeaderLength);
    const std::string id = header.substr(0, kIdLength);
    if (id.find('\0') != std::string::npos || id.compare(0, 3, "3DI") == 0) break;
    const std::optional<int> size = FrameSize(header.substr(kIdLength, 4));
    if (!size) {
      walked.sizesHeld = false;
      break;
    }
    p += kFrameHeaderLength;
    const std::string key = base::ToUpperAscii(id);
    const auto known = walked.frames.find(key);
    if (known != walked.frames.end() && !known->second.empty()) continue;
    const std::string data = file.Padded(static_cast<std::uint64_t>(p - 1), static_cast<std::size_t>(*size));
    const std::string text = CleanFrameText(data);
    if (key == "COMM") {
      walked.frames[key] = CommentText(data);
    } else {
      walked.frames[key] = data;
    }
    if (key == "TCON") walked.genreText = GenreText(text);
    p += *size;
  }
  return walked;
}

}  // namespace nomra::media
