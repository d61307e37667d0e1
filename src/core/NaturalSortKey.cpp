#include "core/NaturalSortKey.h"

namespace nomra::core {

namespace {

constexpr std::size_t kDigits = 15;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string NaturalSortKey(std::string_view text) {
  std::string out;
  AssignNaturalSortKey(out, text);
  return out;
}

void AssignNaturalSortKey(std::string& out, std::string_view text) {
  out.clear();
  std::size_t i = 0;
  while (i < text.size()) {
    if (!IsDigit(text[i])) {
      out.push_back(text[i++]);
      continue;
    }
    std::size_t end = i;
    while (end < text.size() && IsDigit(text[end])) ++end;
    // The value of the run: leading zeros go, and so "007" and "7" sort alike.
    std::size_t first = i;
    while (first + 1 < end && text[first] == '0') ++first;
    const std::string_view value = text.substr(first, end - first);
    if (value.size() < kDigits) out.append(kDigits - value.size(), '0');
    out.append(value);
    i = end;
  }
}

}  // namespace nomra::core
