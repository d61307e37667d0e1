#pragma once
#include <string>

namespace nomra::fileops {

// "rwxr-x---" and the like, with s, S, t, T where set-id and sticky bits
// stand, as `ls -l` shows them.
std::string PermissionText(unsigned mode);

}  // namespace nomra::fileops
