#pragma once
#include <string>

#include "platform/FileSystem.h"

namespace nomra::settings {

// Tidies an INI file: drops each line whose trimmed text ends in the delete
// marker and puts one empty line ahead of a section header that follows a
// non-empty line. The new text goes through "format.tmp" in the data folder
// and replaces the file in one rename. False, with the file unchanged, when
// it is missing or can't be rewritten.
bool CompactIniFile(platform::FileSystem& fileSystem, const std::string& path, const std::string& dataFolder);

}  // namespace nomra::settings
