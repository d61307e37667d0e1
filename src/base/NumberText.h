#pragma once
#include <cstdint>
#include <string>

namespace nomra::base {

// "#,##0": groups of three digits, joined by the grouping character of the
// user's locale, or a comma where the locale has none (C, POSIX).
std::string FormatGrouped(std::uint64_t value);

// "000000000000" and the like: zero-padded to `width` digits.
std::string FormatPadded(std::uint64_t value, int width);

}  // namespace nomra::base
