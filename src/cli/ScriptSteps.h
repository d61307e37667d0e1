#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "cli/CliSession.h"
#include "platform/Platform.h"

namespace nomra::cli {

// Plays the script FILE with all its steps, without windows, as the window's
// command line does: a path, or else a name in the data folder's "Script"
// folder. Throws RuntimeFault when neither exists.
void PlayScriptFile(CliSession& session, const std::string& file, std::ostream& notes);

// Sets every pending name of the scope to what the structure gives.
void ApplyStructureStep(CliSession& session, const std::string& structure);

// "nomra-cli scripts [--data-dir DIR] [--json]": the stored scripts, one
// line each, the file name and the display text separated by a tab. Returns
// the exit status.
int RunScriptsCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                      std::ostream& messages);

}  // namespace nomra::cli
