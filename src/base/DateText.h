#pragma once
#include <ctime>
#include <string>

namespace nomra::base {

// The list's date form "yyyy-mm-dd hh:nn:ss", in local time, whole seconds.
std::string FormatListDate(std::time_t t);

inline constexpr const char* kDefaultListDate = "1980-01-01 00:00:00";

// "yyyymmddhhnnss": the moment of a protocol record, the name of a stored
// script, the ending of a journal kept after a failed repair.
std::string FormatTimeStamp(const std::tm& when);

}  // namespace nomra::base
