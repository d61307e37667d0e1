#pragma once
#include <string>

#include "formats/IniFile.h"
#include "platform/posix/PosixDataLocations.h"
#include "platform/posix/PosixFileSystem.h"

namespace nomra::testing {

// The real file system, for tests over real files in temporary folders.
inline platform::FileSystem& RealFiles() {
  static platform::PosixFileSystem files;
  return files;
}

// The user's real folders, as the environment names them.
inline platform::DataLocations& RealLocations() {
  static platform::PosixDataLocations locations;
  return locations;
}

// An INI file on the real disk.
inline formats::IniFile Ini(const std::string& path) { return formats::IniFile(RealFiles(), path); }

}  // namespace nomra::testing
