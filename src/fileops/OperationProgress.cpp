#include "fileops/OperationProgress.h"

#include "lang/MessageKeys.h"

namespace nomra::fileops {

const char* ProgressTaskOf(OperationKind kind) {
  switch (kind) {
    case OperationKind::Copy: return lang::kCopying;
    case OperationKind::Move: return lang::kMoving;
    case OperationKind::Trash: return lang::kTrashing;
    case OperationKind::Delete: return lang::kDeleting;
  }
  return lang::kCopying;
}

}  // namespace nomra::fileops
