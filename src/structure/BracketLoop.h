#pragma once
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "structure/TagArguments.h"

namespace nomra::structure {

// The replacement of one bracket tag from its arguments.
using BracketTagRule = std::function<std::string(const TagArguments& args)>;

// Replaces every `tag` (an opening such as "<NAME_M(", case ignored) in s,
// first occurrence first, from the tag to the first ">" behind it (so a ">"
// inside a quoted argument cuts the tag there, and the rest stays as text).
// A tag whose arguments are malformed, or fewer than `minArguments` or more
// than `maxArguments`, becomes "<ERROR>". A replacement that brings the tag
// in anew is replaced again only a bounded number of times, so that a name
// holding its own tag ends instead of growing for ever.
void RunBracketLoop(std::string& s, std::string_view tag, std::size_t minArguments, std::size_t maxArguments,
                    const BracketTagRule& rule);

}  // namespace nomra::structure
