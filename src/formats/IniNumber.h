#pragma once
#include <optional>
#include <string_view>

namespace nomra::formats {

// A stored number as a signed 32-bit integer: blanks around it, an optional
// sign and decimal digits, or "&H" and up to eight hexadecimal digits (colour
// values are kept that way; eight digits wrap as two's complement, so
// "&HFFFFFFFF" is -1). Nothing for any other text or a value beyond 32 bits.
std::optional<long> ParseIniNumber(std::string_view text);

}  // namespace nomra::formats
