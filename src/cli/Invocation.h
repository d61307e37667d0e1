#pragma once
#include <optional>
#include <string>
#include <vector>

#include "cli/Step.h"

namespace nomra::cli {

// One thing to load, named on the command line: a file or folder, or a
// playlist whose entries are loaded.
struct LoadSource {
  enum class Kind { Path, Playlist };
  Kind kind = Kind::Path;
  std::string path;  // as given
};

// "Rename with Nomra" in the user's file managers, asked for instead of a run.
enum class IntegrationRequest { None, Install, Remove };

// What one command line asks for.
struct Invocation {
  std::vector<LoadSource> sources;      // loaded first, in command-line order
  std::vector<Step> steps;              // then run in this order
  std::string dataFolder;               // empty: NOMRA_DATA_DIR or the default folder
  bool commit = false;                  // take the pending names to disk after every step
  std::optional<bool> protocolRenames;  // overrides the setting when given
  bool json = false;
  bool answerYes = false;
  bool showHelp = false;
  bool showVersion = false;
  IntegrationRequest integration = IntegrationRequest::None;
};

}  // namespace nomra::cli
