#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// The one rule of name and extension used everywhere: the extension begins
// at the last "." of the name.

// All before the last "."; the whole name when it holds none.
std::string NameOnly(std::string_view name);

// The last "." and all behind it, or without that "." when keepDot is
// false; "" when the name holds no ".".
std::string ExtensionOnly(std::string_view name, bool keepDot);

// Both at once; the extension keeps its dot, so stem + extension == name.
void SplitNameExtension(std::string_view name, std::string& stem, std::string& extension);

}  // namespace nomra::base
