#include "commit/RenameFailure.h"

#include <cerrno>
#include <utility>

#include "base/FileNames.h"

namespace nomra {

namespace {

Failure OfKind(FailureKind kind, int error) {
  Failure failure;
  failure.kind = kind;
  failure.systemError = error;
  return failure;
}

}  // namespace

Failure FailureOfError(int error) {
  switch (error) {
    case EEXIST:
    case ENOTEMPTY:
      return OfKind(FailureKind::TargetExists, error);
    case EACCES:
    case EPERM:
    case EROFS:
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL:  // a name the volume can't hold
      return OfKind(FailureKind::PathNotUsable, error);
    default:
      return SystemFailure(error);
  }
}

Failure OtherFailure(std::string systemText) {
  Failure failure;
  failure.systemText = std::move(systemText);
  return failure;
}

std::optional<Failure> RefuseName(std::string_view newName) {
  // UTF-8 never uses ASCII bytes inside a longer character, so a byte search
  // finds exactly the characters.
  if (newName.empty() || newName.find_first_of(kForbiddenNameCharacters) != std::string_view::npos ||
      newName.find('\0') != std::string_view::npos) {
    return OfKind(FailureKind::PathNotUsable, 0);
  }
  return std::nullopt;
}

}  // namespace nomra
