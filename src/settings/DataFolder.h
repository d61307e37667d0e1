#pragma once
#include <string>

namespace nomra::settings {

// The per-user data folder (see platform::DefaultDataFolder), with its
// missing levels created; failures are ignored. Ends with "/".
std::string FindDataFolder();

// The folder that holds the language files (*.lng) and the update
// instructions, ending with "/": the executable's own folder when it holds a
// "*.lng" file or "update.nrp" (a portable or build-tree copy), else the
// installed "../share/nomra/" beside it when that exists, else the
// executable's folder.
std::string FindAppFolder();
std::string FindAppFolderFrom(const std::string& executableFolder);

// The start-up order over a data folder: create it when missing, copy the
// first-run files, merge the application folder's "update.nrp" into
// "settings.nrp", compact the settings. Answers whether the data folder is
// usable (exists and is writable); when it isn't, nothing is done, nothing
// gets stored and every read gives its default.
bool PrepareDataFolder(const std::string& appFolder, const std::string& dataFolder);

struct SettingsFolders {
  std::string appFolder;
  std::string dataFolder;
  bool dataFolderUsable = false;
};

// Finds both folders and prepares the data folder: what a front end runs once
// at start-up.
SettingsFolders OpenSettingsFolders();

}  // namespace nomra::settings
