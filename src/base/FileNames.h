#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// The nine characters that never stand in a file name, on any platform: an
// error text such as "<ERROR>" never becomes a file name, and a tag value
// holding the separator can never move a file into another folder.
inline constexpr std::string_view kForbiddenNameCharacters = "\\/:?*<>|\"";

// Whether a typed character is one of the nine.
bool IsForbiddenNameCharacter(char32_t character);

// Removes each of the nine forbidden characters from a name.
std::string CleanFileName(std::string_view name);

}  // namespace nomra::base
