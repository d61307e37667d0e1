#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// The text between double quotes, as paths are shown in messages.
std::string Quoted(std::string_view text);

// The text with every double quote taken out.
std::string WithoutDoubleQuotes(std::string_view text);

}  // namespace nomra::base
