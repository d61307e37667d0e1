#pragma once
#include <string>

#include "platform/FileSystem.h"

namespace nomra::platform {

// Copies a file's bytes into a new file, then its permission bits and its
// access and modification times; see FileSystem::CopyFile.
int CopyFileContents(const std::string& from, const std::string& to, const CopyTick& tick, bool durable);

}  // namespace nomra::platform
