#include "settings/FileBytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace nomra::settings {

std::optional<std::string> ReadFileBytes(const std::string& path) {
  const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  std::string content;
  char buffer[65536];
  for (;;) {
    const ssize_t got = read(fd, buffer, sizeof buffer);
    if (got == 0) break;
    if (got < 0) {
      if (errno == EINTR) continue;
      close(fd);  // a folder opens but can't be read: EISDIR
      return std::nullopt;
    }
    content.append(buffer, static_cast<std::size_t>(got));
  }
  close(fd);
  return content;
}

bool PathExists(const std::string& path) {
  struct stat st {};
  return lstat(path.c_str(), &st) == 0;
}

bool IsRegularFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

}  // namespace nomra::settings
