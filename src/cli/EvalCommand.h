#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace nomra::cli {

inline constexpr char kEvalCommand[] = "eval";

// "nomra-cli eval STRUCTURE PATH... [--json] [--data-dir DIR]": what the
// structure gives for each file, one line each, changing nothing. A row
// whose evaluation meets a fault is printed on `messages` and makes the
// exit status 1; the others are still printed. Returns the exit status.
int RunEvalCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                   std::ostream& messages);

}  // namespace nomra::cli
