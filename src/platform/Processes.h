#pragma once
#include <optional>
#include <string>
#include <vector>

namespace nomra::platform {

// Starting a program and asking whether it has ended.
class Processes {
 public:
  virtual ~Processes() = default;
  // The program and its arguments, no shell between; a handle, or -1 when
  // it could not be started.
  virtual long Start(const std::vector<std::string>& command) = 0;
  // The exit code once the program has ended; nothing while it runs. A
  // program ended by a signal counts as exit code 128 plus its number.
  virtual std::optional<int> ExitCode(long handle) = 0;
  // The short wait between two looks.
  virtual void Nap() = 0;
};

}  // namespace nomra::platform
