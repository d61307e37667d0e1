#pragma once
#include <ostream>

namespace nomra::cli {

// The text of --help, built from the option table so that no option can be
// left out of it.
void WriteHelp(std::ostream& out);

}  // namespace nomra::cli
