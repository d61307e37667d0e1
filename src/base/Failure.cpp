#include "base/Failure.h"

#include <system_error>
#include <utility>

namespace nomra::base {

std::string SystemErrorText(int error) { return std::generic_category().message(error); }

Failure SystemFailure(int error, std::string path, std::string target) {
  Failure failure;
  failure.systemError = error;
  failure.path = std::move(path);
  failure.target = std::move(target);
  failure.systemText = SystemErrorText(error);
  return failure;
}

}  // namespace nomra::base
