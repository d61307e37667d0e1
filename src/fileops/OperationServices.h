#pragma once
#include "base/LocalClock.h"
#include "core/FrontEnd.h"
#include "fileops/OperationProgress.h"
#include "platform/FileSystem.h"
#include "platform/Trash.h"

namespace nomra::fileops {

// What a copy, move or deletion needs from outside: the file system and the
// desktop's trash, the user for questions and messages, the progress, and
// the clock that dates what goes to the trash.
struct OperationServices {
  platform::FileSystem& fileSystem;
  platform::Trash& trash;
  core::FrontEnd& frontEnd;
  core::Progress& progress;
  base::LocalClock clock = base::LocalTimeNow;
};

}  // namespace nomra::fileops
