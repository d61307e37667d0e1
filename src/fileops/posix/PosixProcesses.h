#pragma once
#include "fileops/RunAndWait.h"

namespace nomra::fileops {

// Programs started with posix_spawnp, looked at with waitpid.
class PosixProcesses final : public ProcessControl {
 public:
  long Start(const std::vector<std::string>& command) override;
  std::optional<int> ExitCode(long handle) override;
  void Nap() override;
};

}  // namespace nomra::fileops
