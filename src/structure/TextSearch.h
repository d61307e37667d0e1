#pragma once
#include <cstddef>
#include <string>
#include <string_view>

#include "base/AsciiSearch.h"
#include "base/ReplaceText.h"

namespace nomra::structure {

// Where the language's tags and marks stand: they are ASCII, and found
// without regard to the case of their ASCII letters. npos when absent.
inline std::size_t FindTagNoCase(std::string_view text, std::string_view tag, std::size_t from = 0) {
  return base::FindAsciiNoCase(text, tag, from);
}

inline bool HoldsTagNoCase(std::string_view text, std::string_view tag) {
  return FindTagNoCase(text, tag) != std::string_view::npos;
}

// Every occurrence of a plain tag, found without regard to case, gives way
// to its value; a value is never searched again.
inline void ReplaceTag(std::string& s, std::string_view tag, std::string_view value) {
  if (HoldsTagNoCase(s, tag)) s = base::ReplaceText(s, tag, value, 1, base::kReplaceAll, 1);
}

}  // namespace nomra::structure
