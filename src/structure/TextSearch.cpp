#include "structure/TextSearch.h"

namespace nomra {

namespace {

constexpr char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::size_t FindTagNoCase(std::string_view text, std::string_view tag, std::size_t from) {
  if (tag.empty()) return from <= text.size() ? from : std::string_view::npos;
  if (tag.size() > text.size()) return std::string_view::npos;
  const char first = FoldAscii(tag.front());
  const std::size_t last = text.size() - tag.size();
  for (std::size_t i = from; i <= last; ++i) {
    if (FoldAscii(text[i]) != first) continue;
    std::size_t k = 1;
    while (k < tag.size() && FoldAscii(text[i + k]) == FoldAscii(tag[k])) ++k;
    if (k == tag.size()) return i;
  }
  return std::string_view::npos;
}

}  // namespace nomra
