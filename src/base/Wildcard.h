#pragma once
#include <string_view>

namespace nomra::base {

// Wildcard match of a whole text, case ignored: "*" any run of characters,
// "?" one character, "#" one digit, "[...]" one of the listed characters
// (ranges such as "a-z" allowed, a leading "!" negates). A "[" without its
// closing "]" stands for itself.
bool MatchesWildcard(std::string_view text, std::string_view pattern);

}  // namespace nomra::base
