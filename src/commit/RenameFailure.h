#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "base/Failure.h"

namespace nomra::commit {

// The failure an errno of a rename stands for: a taken name, a path that
// can't be used, or the system's own words for anything else.
base::Failure FailureOfError(int error);

// A failure that no errno describes, told in the system's words.
base::Failure OtherFailure(std::string systemText);

// The nine characters no file name may hold, a NUL byte, or no name at all:
// refused before the disk is touched, so that a text like "<ERROR>" never
// becomes a file name.
std::optional<base::Failure> RefuseName(std::string_view newName);

}  // namespace nomra::commit
