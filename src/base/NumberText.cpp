#include "base/NumberText.h"

#include <clocale>

namespace nomra::base {

namespace {

std::string GroupingCharacter() {
  const std::lconv* conv = std::localeconv();
  if (conv != nullptr && conv->thousands_sep != nullptr && conv->thousands_sep[0] != '\0') {
    return conv->thousands_sep;
  }
  return ",";
}

}  // namespace

std::string FormatGrouped(std::uint64_t value) {
  const std::string digits = std::to_string(value);
  const std::string separator = GroupingCharacter();
  std::string out;
  out.reserve(digits.size() + (digits.size() / 3) * separator.size());
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += separator;
    out.push_back(digits[i]);
  }
  return out;
}

std::string FormatPadded(std::uint64_t value, int width) {
  std::string digits = std::to_string(value);
  if (static_cast<int>(digits.size()) < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

}  // namespace nomra::base
