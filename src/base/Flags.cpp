#include "base/Flags.h"

namespace nomra::base {

bool ToBoolean(long value, bool defaultValue) {
  if (value < 0) return defaultValue;
  return value != 0;
}

int FromBoolean(bool flag) { return flag ? 1 : 0; }

}  // namespace nomra::base
