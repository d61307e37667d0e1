#pragma once
#include <string>
#include <vector>

#include "core/FrontEnd.h"
#include "platform/Processes.h"

namespace nomra::fileops {

// Starts a program and waits for its end, with the event pump running
// between looks when `pump` is on, so the window stays alive. The exit
// code, or -1 when the program could not be started.
int RunAndWait(const std::vector<std::string>& command, bool pump, core::FrontEnd& frontEnd,
               platform::Processes& processes);

}  // namespace nomra::fileops
