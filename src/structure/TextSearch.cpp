#include "structure/TextSearch.h"

#include <cstring>

namespace nomra {

namespace {

constexpr bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

constexpr char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::size_t FindTagNoCase(std::string_view text, std::string_view tag, std::size_t from) {
  if (tag.empty()) return from <= text.size() ? from : std::string_view::npos;
  if (tag.size() > text.size()) return std::string_view::npos;
  const char first = FoldAscii(tag.front());
  const std::size_t last = text.size() - tag.size();
  const auto matchesAt = [&](std::size_t i) {
    std::size_t k = 1;
    while (k < tag.size() && FoldAscii(text[i + k]) == FoldAscii(tag[k])) ++k;
    return k == tag.size();
  };
  // Tags and marks begin with "<", which has no case: the library's search
  // for one byte finds the candidates far faster than a walk.
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

}  // namespace nomra
