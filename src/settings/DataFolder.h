#pragma once
#include <string>
#include <vector>

#include "platform/DataLocations.h"
#include "platform/FileSystem.h"

namespace nomra::settings {

// The per-user data folder (see DataLocations::DataFolder), with its
// missing levels created; failures are ignored. Ends with "/".
std::string FindDataFolder(platform::FileSystem& fileSystem, platform::DataLocations& locations);

// The folder that holds the language files (*.lng) and the update
// instructions, ending with "/": the executable's own folder when it holds a
// "*.lng" file or "update.nrp" (a portable or build-tree copy), else the
// installed "../share/nomra/" beside it when that exists, else the
// executable's folder.
std::string FindAppFolder(platform::FileSystem& fileSystem, platform::DataLocations& locations);
std::string FindAppFolderFrom(platform::FileSystem& fileSystem, const std::string& executableFolder);

// Where FindAppFolder looks, in its order: the executable's folder and the
// installed "../share/nomra/" beside it. A message about missing language
// files names them.
std::vector<std::string> AppFolderCandidates(const std::string& executableFolder);

// The start-up order over a data folder: create it when missing, copy the
// first-run files, merge the application folder's "update.nrp" into
// "settings.nrp", compact the settings. Answers whether the data folder is
// usable (exists and is writable); when it isn't, nothing is done, nothing
// gets stored and every read gives its default.
bool PrepareDataFolder(platform::FileSystem& fileSystem, const std::string& appFolder, const std::string& dataFolder);

}  // namespace nomra::settings
