#pragma once
#include <string>

#include "fileops/OperationSystem.h"

namespace nomra::fileops {

// Copies a file's bytes into a new file, then its permission bits and its
// access and modification times; see OperationSystem::CopyFile.
int CopyFileContents(const std::string& from, const std::string& to, const CopyTick& tick, bool durable);

}  // namespace nomra::fileops
