#include "commit/RenameFailure.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include "base/Helpers.h"

namespace nomra {

Failure FailureOfError(int error) {
  switch (error) {
    case EEXIST:
    case ENOTEMPTY:
      return {FailureKind::TargetExists, {}};
    case EACCES:
    case EPERM:
    case EROFS:
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL:  // a name the volume can't hold
      return {FailureKind::PathNotUsable, {}};
    default:
      return OtherFailure(std::strerror(error));
  }
}

Failure OtherFailure(std::string systemText) { return {FailureKind::Other, std::move(systemText)}; }

std::optional<Failure> RefuseName(std::string_view newName) {
  // UTF-8 never uses ASCII bytes inside a longer character, so a byte search
  // finds exactly the characters.
  if (newName.empty() || newName.find_first_of(kForbiddenNameCharacters) != std::string_view::npos ||
      newName.find('\0') != std::string_view::npos) {
    return Failure{FailureKind::PathNotUsable, {}};
  }
  return std::nullopt;
}

}  // namespace nomra
