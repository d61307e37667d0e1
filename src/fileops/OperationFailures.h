#pragma once
#include <string>

#include "core/FrontEnd.h"
#include "fileops/OperationProgress.h"

namespace nomra::fileops {

// Why one file could not be copied or moved.
struct TransferFailure {
  int error = 0;  // errno
  std::string source;
  std::string target;
  // A file standing where a folder of the target's path should be.
  std::string notAFolder;
  bool sourceMissing = false;
  // The copy is complete, only the original could not be removed.
  bool originalKept = false;
};

// The system's own description of an errno.
std::string SystemText(int error);

// Tells the user, with a stop sign, what went wrong and that the original
// is where it was: a full disk, a folder that refuses access, a file where
// a folder should be, a source that has gone, or the system's text.
void ShowTransferFailure(FrontEnd& frontEnd, OperationKind kind, const TransferFailure& failure);

// After a failure, with files still to come: whether to go on with them.
bool AskGoOn(FrontEnd& frontEnd, int filesLeft);

}  // namespace nomra::fileops
