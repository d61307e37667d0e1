#pragma once
#include <optional>
#include <string_view>

namespace nomra::structure {

// A number as the structure language reads it: an optional sign, digits and
// an optional fraction ("-2", "3.5", ".5"); nothing for any other text.
std::optional<double> ParseLanguageNumber(std::string_view text);

// The number as a 32-bit integer, halves rounded to the even neighbour;
// nothing when it doesn't fit.
std::optional<long> ToWholeNumber(double number);

// The whole number of a text, or the fallback when it is empty, no number
// or beyond 32 bits.
long WholeNumberOr(std::string_view text, long fallback);

}  // namespace nomra::structure
