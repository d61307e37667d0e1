#pragma once
#include "base/LocalClock.h"
#include "core/FrontEnd.h"
#include "fileops/OperationProgress.h"
#include "fileops/OperationSystem.h"

namespace nomra::fileops {

// What a copy, move or deletion needs from outside: the system calls, the
// user for questions and messages, the progress, and the clock that dates
// what goes to the trash.
struct OperationServices {
  OperationSystem& system;
  FrontEnd& frontEnd;
  OperationProgress& progress;
  LocalClock clock = LocalTimeNow;
};

}  // namespace nomra::fileops
