#pragma once
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace nomra::testing {

// Permission bits don't stop the superuser, so cases that rely on them are
// skipped there; the cases with a path under a regular file still run.
inline bool PermissionsAreIgnored() { return geteuid() == 0; }

inline unsigned PermissionBits(const std::string& path) {
  struct stat st {};
  stat(path.c_str(), &st);
  return st.st_mode & 07777;
}

}  // namespace nomra::testing
