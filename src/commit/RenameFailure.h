#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nomra {

// Why a rename did not happen, by the failure numbers the messages go by.
enum class FailureKind : int {
  TargetExists = 58,   // another file holds the new name
  PathNotUsable = 75,  // access denied, a path that doesn't resolve, a name the volume refuses
  Other = 0,           // anything else; the system's own description goes with it
};

struct Failure {
  FailureKind kind = FailureKind::Other;
  std::string systemText;  // only for FailureKind::Other
};

// The failure an errno of a rename stands for.
Failure FailureOfError(int error);

// A failure that no errno describes, told in the system's words.
Failure OtherFailure(std::string systemText);

// The nine characters no file name may hold, a NUL byte, or no name at all:
// refused before the disk is touched, so that a text like "<ERROR>" never
// becomes a file name.
std::optional<Failure> RefuseName(std::string_view newName);

}  // namespace nomra
