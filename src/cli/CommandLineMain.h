#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace nomra::cli {

// The whole of nomra-cli after the program name: picks the command, runs it
// on `system`, prints on `out` and `messages`, and returns the exit status.
// Whatever the engine didn't expect still ends with a message, not an abort.
int RunCliArguments(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& messages);

}  // namespace nomra::cli
