#include "commit/RenameFailure.h"

#include <cerrno>
#include <utility>

#include "base/FileNames.h"

namespace nomra::commit {

namespace {

base::Failure OfKind(base::FailureKind kind, int error) {
  base::Failure failure;
  failure.kind = kind;
  failure.systemError = error;
  return failure;
}

}  // namespace

base::Failure FailureOfError(int error) {
  switch (error) {
    case EEXIST:
    case ENOTEMPTY: return OfKind(base::FailureKind::TargetExists, error);
    case EACCES:
    case EPERM:
    case EROFS:
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL:  // a name the volume can't hold
      return OfKind(base::FailureKind::PathNotUsable, error);
    default: return base::SystemFailure(error);
  }
}

base::Failure OtherFailure(std::string systemText) {
  base::Failure failure;
  failure.systemText = std::move(systemText);
  return failure;
}

std::optional<base::Failure> RefuseName(std::string_view newName) {
  // UTF-8 never uses ASCII bytes inside a longer character, so a byte search
  // finds exactly the characters.
  if (newName.empty() || newName.find_first_of(base::kForbiddenNameCharacters) != std::string_view::npos ||
      newName.find('\0') != std::string_view::npos) {
    return OfKind(base::FailureKind::PathNotUsable, 0);
  }
  return std::nullopt;
}

}  // namespace nomra::commit
