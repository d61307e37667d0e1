#pragma once
#include <map>
#include <optional>
#include <string>
#include <vector>

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

// Runs the built nomra-cli to its end and captures what it printed.
CliResult RunCli(const CliLaunch& launch);

}  // namespace nomra::testing
