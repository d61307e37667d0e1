#pragma once
#include <string>

#include "formats/IniFile.h"

namespace nomra::settings {

enum class MergeOutcome {
  NoInstructions,  // no update file
  AlreadyApplied,  // same version as the settings: only compacted
  Applied,
};

// Brings the user's settings up to a new version of the program with the
// instructions of an update file: [Add] A1, A2, ... "section|key|value" add a
// key the settings lack; [Copy] C1, ... "oldsection|oldkey|newsection|newkey"
// move a value; [Del] D1, ... "section|key" delete a key; [Main] Version
// names the instructions. The version is stored in the settings, so the same
// instructions never run twice even when the update file can't be deleted
// afterwards (an installed, read-only application folder).
MergeOutcome MergeUpdateInstructions(const formats::IniFile& updateFile, const formats::IniFile& settingsFile,
                                     const std::string& dataFolder);

}  // namespace nomra::settings
