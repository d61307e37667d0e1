#pragma once
#include <ostream>

#include "cli/Invocation.h"
#include "platform/Platform.h"

namespace nomra::cli {

// One run of nomra-cli after its command line was read: starts the engine
// over the data folder, loads every path, runs the steps in order and prints
// the list to `out`. Questions, notes and faults go to `messages`. Returns
// the exit status.
int RunInvocation(platform::Platform& system, const Invocation& invocation, std::ostream& out, std::ostream& messages);

}  // namespace nomra::cli
