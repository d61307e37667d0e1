#pragma once
#include <string>

#include "core/FrontEnd.h"
#include "core/ListOptions.h"
#include "dialog/ScriptSession.h"
#include "platform/DataLocations.h"
#include "platform/FileSystem.h"

namespace nomra::shell {

struct StartupPaths {
  std::string appFolder;          // holds the language files; ends with the separator
  std::string dataFolder;         // per-user data; ends with the separator
  std::string settingsPath;       // dataFolder + "settings.nrp"
  bool dataFolderUsable = false;  // false: nothing is stored, reads give defaults
};

// Finds the data folder (the override when not empty), creates it, copies the
// first-run files, merges update instructions and compacts the settings.
StartupPaths PrepareStartup(platform::FileSystem& fileSystem, platform::DataLocations& locations,
                            const std::string& dataFolderOverride);

// Where the start-up settings go, and what reading them needs.
struct StartupTarget {
  platform::FileSystem& fileSystem;
  core::FrontEnd& frontEnd;  // a value that isn't a number is shown as a fault
  core::ListOptions& options;
  dialog::ScriptSession& script;
};

// Reads the flags the list and the dialogs need from the settings and
// creates the rename protocol when it is missing. A value that isn't a
// number is shown as a fault and the default is used instead; the start
// goes on.
void LoadStartupSettings(const StartupPaths& paths, const StartupTarget& target);

}  // namespace nomra::shell
