#include "base/DateText.h"

#include <cstdio>

namespace nomra::text {

std::string FormatListDate(std::time_t t) {
  std::tm local{};
  if (localtime_r(&t, &local) == nullptr) return kDefaultListDate;
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", local.tm_year + 1900,
                local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
  return buffer;
}

}  // namespace nomra::text
