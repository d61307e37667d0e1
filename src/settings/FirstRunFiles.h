#pragma once
#include <string>

#include "platform/FileSystem.h"

namespace nomra::settings {

// Gives a new user the shipped "structures.nrp" and "settings.nrp": each is
// copied from the application folder into the data folder when the data
// folder lacks it. A file the user already has is never overwritten.
void CopyFirstRunFiles(platform::FileSystem& fileSystem, const std::string& appFolder, const std::string& dataFolder);

}  // namespace nomra::settings
