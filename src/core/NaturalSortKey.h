#pragma once
#include <string>
#include <string_view>

namespace nomra::core {

// The sort text of a column: each run of the digits "0" to "9" becomes its
// value in 15 digits, so "9" sorts before "10". Other characters stay.
std::string NaturalSortKey(std::string_view text);

// The same, written into `out`, whose buffer is reused.
void AssignNaturalSortKey(std::string& out, std::string_view text);

}  // namespace nomra::core
