#pragma once
#include <ctime>
#include <functional>

namespace nomra::base {

// The local time of day, for the protocol; tests fix it.
using LocalClock = std::function<std::tm()>;

std::tm LocalTimeNow();

}  // namespace nomra::base
