#pragma once
#include <stdexcept>

namespace nomra::cli {

// The command line can't be understood: nothing runs, the exit status is 2.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace nomra::cli
