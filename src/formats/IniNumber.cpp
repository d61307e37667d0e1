#include "formats/IniNumber.h"

#include <cstdint>
#include <limits>

#include "formats/IniLines.h"

namespace nomra::formats {

namespace {

int HexDigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::optional<long> ParseHex(std::string_view digits) {
  if (digits.empty()) return std::nullopt;
  std::uint64_t value = 0;
  for (char c : digits) {
    const int digit = HexDigitValue(c);
    if (digit < 0) return std::nullopt;
    value = value * 16 + static_cast<std::uint64_t>(digit);
    if (value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  }
  return static_cast<long>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
}

std::optional<long> ParseDecimal(std::string_view text) {
  bool negative = false;
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  if (text.empty()) return std::nullopt;
  // One past the largest magnitude, so any overflow is caught on the way.
  constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  std::int64_t magnitude = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    magnitude = magnitude * 10 + (c - '0');
    if (magnitude > kLimit) return std::nullopt;
  }
  const std::int64_t value = negative ? -magnitude : magnitude;
  if (value > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
  return static_cast<long>(value);
}

}  // namespace

std::optional<long> ParseIniNumber(std::string_view text) {
  text = base::TrimBlanks(text);
  if (text.size() >= 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h')) {
    return ParseHex(text.substr(2));
  }
  return ParseDecimal(text);
}

}  // namespace nomra::formats
