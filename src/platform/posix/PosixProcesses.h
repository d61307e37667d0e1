#pragma once
#include "platform/Processes.h"

namespace nomra::platform {

// Programs started with posix_spawnp, looked at with waitpid.
class PosixProcesses final : public Processes {
 public:
  long Start(const std::vector<std::string>& command) override;
  std::optional<int> ExitCode(long handle) override;
  void Nap() override;
};

}  // namespace nomra::platform
