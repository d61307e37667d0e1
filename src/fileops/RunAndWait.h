#pragma once
#include <optional>
#include <string>
#include <vector>

#include "core/FrontEnd.h"

namespace nomra::fileops {

// Starting a program and asking whether it has ended.
class ProcessControl {
 public:
  virtual ~ProcessControl() = default;
  // The program and its arguments, no shell between; a handle, or -1 when
  // it could not be started.
  virtual long Start(const std::vector<std::string>& command) = 0;
  // The exit code once the program has ended; nothing while it runs. A
  // program ended by a signal counts as exit code 128 plus its number.
  virtual std::optional<int> ExitCode(long handle) = 0;
  // The short wait between two looks.
  virtual void Nap() = 0;
};

// Starts a program and waits for its end, with the event pump running
// between looks when `pump` is on, so the window stays alive. The exit
// code, or -1 when the program could not be started.
int RunAndWait(const std::vector<std::string>& command, bool pump, FrontEnd& frontEnd, ProcessControl& processes);

}  // namespace nomra::fileops
