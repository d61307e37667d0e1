#include "base/AsciiSearch.h"

#include <cstring>

namespace nomra::base {

namespace {

constexpr bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

constexpr char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::size_t FindAsciiNoCase(std::string_view text, std::string_view needle, std::size_t from) {
  if (needle.empty()) return from <= text.size() ? from : std::string_view::npos;
  if (needle.size() > text.size()) return std::string_view::npos;
  const char first = FoldAscii(needle.front());
  const std::size_t last = text.size() - needle.size();
  const auto matchesAt = [&](std::size_t i) {
    std::size_t k = 1;
    while (k < needle.size() && FoldAscii(text[i + k]) == FoldAscii(needle[k])) ++k;
    return k == needle.size();
  };
  // A needle that begins with a byte without case, as every tag does with
  // "<": the library's search for one byte finds the candidates far faster
  // than a walk.
  if (!IsAsciiLetter(first)) {
    for (std::size_t i = from; i <= last;) {
      const void* hit = std::memchr(text.data() + i, first, last - i + 1);
      if (hit == nullptr) return std::string_view::npos;
      i = static_cast<std::size_t>(static_cast<const char*>(hit) - text.data());
      if (matchesAt(i)) return i;
      ++i;
    }
    return std::string_view::npos;
  }
  for (std::size_t i = from; i <= last; ++i) {
    if (FoldAscii(text[i]) == first && matchesAt(i)) return i;
  }
  return std::string_view::npos;
}

bool IsAscii(std::string_view text) {
  for (const char c : text) {
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  }
  return true;
}

std::string ToUpperAscii(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return out;
}

}  // namespace nomra::base
