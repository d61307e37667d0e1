#pragma once
#include <string>
#include <string_view>

namespace nomra::cli {

// A JSON string literal, quotes included. Quote, backslash and control
// characters are escaped; other characters pass as UTF-8. A byte of a name
// that isn't UTF-8 becomes "\udcXX", the form the engine carries it in, so
// a reader that knows the convention gets the very same bytes back.
std::string JsonString(std::string_view text);

}  // namespace nomra::cli
