#pragma once

namespace nomra::base {

// Flags as the settings keep them: 1 is true, 0 is false, anything below 0
// (a missing setting) gives the default; other values above 1 count as true.
bool ToBoolean(long value, bool defaultValue);
int FromBoolean(bool flag);

}  // namespace nomra::base
