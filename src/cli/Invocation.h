#pragma once
#include <optional>
#include <string>
#include <vector>

#include "cli/Step.h"

namespace nomra::cli {

// What one command line asks for.
struct Invocation {
  std::vector<std::string> paths;  // loaded first, in this order
  std::vector<Step> steps;         // then run in this order
  std::string dataFolder;          // empty: NOMRA_DATA_DIR or the default folder
  bool commit = false;             // take the pending names to disk after every step
  std::optional<bool> protocolRenames;  // overrides the setting when given
  bool json = false;
  bool answerYes = false;
  bool showHelp = false;
  bool showVersion = false;
};

}  // namespace nomra::cli
