#include "base/DateText.h"

namespace nomra::base {

namespace {

void PutDigits(char* at, int value, int width) {
  for (int i = width - 1; i >= 0; --i) {
    at[i] = static_cast<char>('0' + value % 10);
    value /= 10;
  }
}

}  // namespace

// Written by hand rather than through a format routine: a load of 100,000
// files formats 200,000 dates.
std::string FormatListDate(std::time_t t) {
  std::tm local{};
  if (localtime_r(&t, &local) == nullptr || local.tm_year + 1900 < 0 || local.tm_year + 1900 > 9999) {
    return kDefaultListDate;
  }
  char out[19] = {'0', '0', '0', '0', '-', '0', '0', '-', '0', '0', ' ', '0', '0', ':', '0', '0', ':', '0', '0'};
  PutDigits(out, local.tm_year + 1900, 4);
  PutDigits(out + 5, local.tm_mon + 1, 2);
  PutDigits(out + 8, local.tm_mday, 2);
  PutDigits(out + 11, local.tm_hour, 2);
  PutDigits(out + 14, local.tm_min, 2);
  PutDigits(out + 17, local.tm_sec, 2);
  return std::string(out, sizeof out);
}

std::string FormatTimeStamp(const std::tm& when) {
  char out[14];
  PutDigits(out, when.tm_year + 1900, 4);
  PutDigits(out + 4, when.tm_mon + 1, 2);
  PutDigits(out + 6, when.tm_mday, 2);
  PutDigits(out + 8, when.tm_hour, 2);
  PutDigits(out + 10, when.tm_min, 2);
  PutDigits(out + 12, when.tm_sec, 2);
  return std::string(out, sizeof out);
}

}  // namespace nomra::base
