#include "base/LocalClock.h"

namespace nomra::base {

std::tm LocalTimeNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local;
}

}  // namespace nomra::base
