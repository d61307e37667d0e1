#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "base/Paths.h"

namespace nomra {

// Replaces "%1", "%2", ... one after the other with the values, in order;
// an empty list leaves the text alone.
std::string FormatMessage(std::string_view text, const std::vector<std::string>& values);

// The nine characters that never stand in a file name.
inline constexpr std::string_view kForbiddenNameCharacters = "\\/:?*<>|\"";

// Removes each of the nine forbidden characters from a name.
std::string CleanFileName(std::string_view name);

// The text between double quotes, as paths are shown in messages.
std::string Quoted(std::string_view text);

// The text with every double quote taken out.
std::string WithoutDoubleQuotes(std::string_view text);

// The text without the blanks (spaces, not tabs) at either end, as the
// program's own trim has always done.
std::string_view TrimSpaces(std::string_view text);

// 1 is true, 0 is false, anything below 0 (a missing setting) gives the
// default; other values above 1 count as true.
bool ToBoolean(long value, bool defaultValue);
int FromBoolean(bool flag);

}  // namespace nomra
