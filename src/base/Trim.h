#pragma once
#include <string_view>

namespace nomra::base {

// The text without the given characters at either end.
std::string_view Trim(std::string_view text, std::string_view characters);

// Without the spaces (not tabs) at either end, as the program's own trim has
// always done.
inline std::string_view TrimSpaces(std::string_view text) { return Trim(text, " "); }

// Without spaces and tabs at either end: the blanks around the names and
// values of our INI files and delimited text.
inline std::string_view TrimBlanks(std::string_view text) { return Trim(text, " \t"); }

}  // namespace nomra::base
