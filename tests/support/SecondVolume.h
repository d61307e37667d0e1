#pragma once
#include <memory>
#include <string>

#include "support/TempFolder.h"

namespace nomra::testing {

// The memory file system, which on most machines is another file system
// than the temporary folder's: the place to try what crosses file systems.
inline constexpr char kSecondVolume[] = "/dev/shm/";
inline constexpr char kNoSecondVolume[] = "no second volume at /dev/shm";

// Whether kSecondVolume is there, writable, and another file system than
// the one `folder` is on.
bool IsSecondVolumeBeside(const std::string& folder);

// A temporary folder on the second volume; nullptr where there is none.
std::unique_ptr<TempFolder> FolderOnSecondVolume(const TempFolder& usual);

}  // namespace nomra::testing
