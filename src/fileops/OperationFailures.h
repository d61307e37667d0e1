#pragma once
#include <string>

#include "base/Failure.h"
#include "core/FrontEnd.h"
#include "fileops/OperationProgress.h"

namespace nomra::fileops {

// Tells the user, with a stop sign, what went wrong and that the original
// is where it was: a full disk, a folder that refuses access, a file where
// a folder should be, a source that has gone, or the system's text.
void ShowTransferFailure(core::FrontEnd& frontEnd, OperationKind kind, const base::Failure& failure);

// After a failure, with files still to come: whether to go on with them.
bool AskGoOn(core::FrontEnd& frontEnd, int filesLeft);

}  // namespace nomra::fileops
