#pragma once
#include <string>
#include <string_view>

namespace nomra::structure {

// Pieces of a text counted in characters, never cut inside one.
std::string LeftCharacters(std::string_view text, long count);
std::string RightCharacters(std::string_view text, long count);
// `count` characters from the 1-based position `start`.
std::string MiddleCharacters(std::string_view text, long start, long count);

// The slice of the _M tags: negative positions count from the end, a start
// below 1 becomes 1, an end below 1 the last character, and the two may come
// in either order. Throws RuntimeFault when the start stays below 1, which
// an empty text brings about.
std::string SliceCharacters(std::string_view text, long a, long b);

}  // namespace nomra::structure
