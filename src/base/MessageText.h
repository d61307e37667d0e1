#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace nomra::base {

// Replaces "%1", "%2", ... one after the other with the values, in order;
// an empty list leaves the text alone.
std::string FormatMessage(std::string_view text, const std::vector<std::string>& values);

}  // namespace nomra::base
