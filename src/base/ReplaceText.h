#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// The program's one replace routine, which every tag substitution and most
// clean-ups go through.
//
// An empty `find` gives the text unchanged. `start` is a 1-based character
// position; text before it is kept. At most `count` replacements are made.
// With `compare` other than 0 the search ignores case (both sides
// lower-cased for the search only; what is copied comes from the text as it
// stands). The search goes on behind each inserted text, so a replacement is
// never scanned again in the same call.
inline constexpr long kReplaceAll = 2147483647;

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view with, long start = 1,
                        long count = kReplaceAll, int compare = 0);

}  // namespace nomra::base
