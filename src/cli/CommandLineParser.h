#pragma once
#include <string>
#include <vector>

#include "cli/Invocation.h"

namespace nomra::cli {

// Reads the arguments after the program name by the option table. Options
// and paths may come in any order; "--" makes everything after it a path.
// "--name=value" and "--name value" both work. Stops at --help or --version.
// Throws UsageError for an unknown option, a missing or bad value, or
// nothing to load at all: no path and no playlist.
Invocation ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace nomra::cli
