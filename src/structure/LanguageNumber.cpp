#include "structure/LanguageNumber.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

namespace nomra::structure {

std::optional<double> ParseLanguageNumber(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++digits;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++digits;
  }
  if (digits == 0 || i != text.size()) return std::nullopt;
  // strtod, not stod: a number too large for a double is a huge one, not an error.
  return std::strtod(std::string(text).c_str(), nullptr);
}

std::optional<long> ToWholeNumber(double number) {
  const double rounded = std::nearbyint(number);  // the default rounding mode: halves to even
  if (rounded < std::numeric_limits<std::int32_t>::min() || rounded > std::numeric_limits<std::int32_t>::max()) {
    return std::nullopt;
  }
  return static_cast<long>(rounded);
}

long WholeNumberOr(std::string_view text, long fallback) {
  const std::optional<double> number = ParseLanguageNumber(text);
  if (!number) return fallback;
  return ToWholeNumber(*number).value_or(fallback);
}

}  // namespace nomra::structure
