#pragma once
#include <memory>
#include <string>

#include "platform/FileSystem.h"

namespace nomra::platform {

// Locks with flock, which go with the process; see the FileSystem calls of
// the same names.
std::unique_ptr<OpenFile> CreateLockedFile(const std::string& path, int& error);
ExistingLock LockExistingFile(const std::string& path);
int SyncFolderEntries(const std::string& folder);

}  // namespace nomra::platform
