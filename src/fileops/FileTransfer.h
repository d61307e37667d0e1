#pragma once
#include <optional>
#include <string>

#include "fileops/OperationFailures.h"
#include "platform/FileSystem.h"

namespace nomra::fileops {

// How one file came through.
struct FileResult {
  bool done = false;     // the file stands at its target
  bool stopped = false;  // the user stopped while its bytes were copied
  std::optional<base::Failure> failure;
};

// Makes every missing folder of a path, from the left. A file standing
// where a folder should be fails with ENOTDIR and is named in the failure.
std::optional<base::Failure> EnsureFolder(platform::FileSystem& fileSystem, const std::string& folder);

// Puts one file at its target, copying or moving. The bytes go to a hidden
// work file beside the target first, and take the target's name only when
// they are complete and their size is that of the source; so a stopped or
// failed copy, a full disk too, leaves nothing behind but the untouched
// source. A move within one volume is a rename; across volumes it is such
// a copy, and the source goes only after it. With `replace` the file there
// is replaced, which the caller may do only on the user's word.
FileResult PutFile(platform::FileSystem& fileSystem, const std::string& from, const std::string& to,
                   const platform::FileStatus& source, bool move, bool replace, const platform::CopyTick& tick);

}  // namespace nomra::fileops
