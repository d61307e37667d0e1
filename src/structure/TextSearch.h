#pragma once
#include <cstddef>
#include <string_view>

#include "base/AsciiSearch.h"

namespace nomra::structure {

// Where the language's tags and marks stand: they are ASCII, and found
// without regard to the case of their ASCII letters. npos when absent.
inline std::size_t FindTagNoCase(std::string_view text, std::string_view tag, std::size_t from = 0) {
  return base::FindAsciiNoCase(text, tag, from);
}

inline bool HoldsTagNoCase(std::string_view text, std::string_view tag) {
  return FindTagNoCase(text, tag) != std::string_view::npos;
}

}  // namespace nomra::structure
