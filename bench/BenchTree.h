#pragma once
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace nomra::bench {

// A tree of empty files spread round-robin over the folders, so that only
// the listing and the list are measured, never file contents.
inline void MakeTree(const std::string& root, int files, int folders) {
  std::filesystem::create_directories(root);
  for (int f = 0; f < folders; ++f) {
    char folder[64];
    std::snprintf(folder, sizeof folder, "/d%04d", f);
    std::filesystem::create_directory(root + folder);
    for (int i = f; i < files; i += folders) {
      char name[64];
      std::snprintf(name, sizeof name, "/file_%06d.dat", i);
      const int fd = open((root + folder + name).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
      if (fd >= 0) close(fd);
    }
  }
}

}  // namespace nomra::bench
