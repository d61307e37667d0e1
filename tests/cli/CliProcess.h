#pragma once
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace nomra::testing {

struct CliResult {
  int exitStatus = -1;
  std::string out;
  std::string err;
};

struct CliLaunch {
  std::vector<std::string> arguments;  // after the program name
  // Variables set for the child (nullopt: removed). NOMRA_DATA_DIR is always
  // removed unless given here, and HOME and XDG_DATA_HOME always point into
  // a throw-away folder, so no run can touch the real home.
  std::map<std::string, std::optional<std::string>> environment;
  std::string workingFolder;  // empty: the test's own
};

// A nomra-cli started and not yet waited for; its output goes to files of
// its own folder.
class RunningCli {
 public:
  explicit RunningCli(const CliLaunch& launch);
  ~RunningCli();
  RunningCli(const RunningCli&) = delete;
  RunningCli& operator=(const RunningCli&) = delete;

  // Whether it has ended; never waits.
  bool Ended();
  // Sends a signal, e.g. SIGKILL to cut a commit short.
  void Signal(int signal);
  // Waits for the end and collects what it printed.
  CliResult Wait();

 private:
  std::unique_ptr<TempFolder> sandbox_;
  int child_ = -1;
  std::optional<int> status_;
};

// Runs the built nomra-cli to its end and captures what it printed.
CliResult RunCli(const CliLaunch& launch);

}  // namespace nomra::testing
