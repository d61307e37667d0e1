#include "fileops/RunAndWait.h"

namespace nomra::fileops {

int RunAndWait(const std::vector<std::string>& command, bool pump, core::FrontEnd& frontEnd,
               platform::Processes& processes) {
  const long handle = processes.Start(command);
  if (handle < 0) return -1;
  for (;;) {
    if (const std::optional<int> code = processes.ExitCode(handle)) return *code;
    if (pump) frontEnd.Pump();
    processes.Nap();
  }
}

}  // namespace nomra::fileops
