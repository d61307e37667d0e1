#include "settings/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>

#include "settings/FileBytes.h"

namespace nomra::settings {

namespace {

constexpr mode_t kNewFileMode = 0666;  // the umask takes its share
constexpr int kNameAttempts = 100;

// A link to the settings (say, kept with other dotfiles) must stay a link:
// the new content goes to the file it points at.
std::string ResolveLink(const std::string& path) {
  struct stat st {};
  if (lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return path;
  char resolved[PATH_MAX];
  if (realpath(path.c_str(), resolved) == nullptr) return path;
  return resolved;
}

bool WriteAll(int fd, std::string_view content) {
  while (!content.empty()) {
    const ssize_t done = write(fd, content.data(), content.size());
    if (done < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    content.remove_prefix(static_cast<std::size_t>(done));
  }
  return true;
}

// Opens a fresh file next to `target`. O_EXCL with our own unique names (not
// mkstemp, which makes 0600) lets the umask decide a new file's permissions.
int CreateTempBeside(const std::string& target, std::string& tempPath) {
  static std::atomic<unsigned> counter{0};
  for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
    tempPath = target + ".tmp-" + std::to_string(getpid()) + "-" + std::to_string(counter++);
    const int fd = open(tempPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

}  // namespace

bool MayReplaceFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) && access(path.c_str(), W_OK) == 0;
}

bool ReplaceFileContent(const std::string& path, std::string_view content) {
  const std::string target = ResolveLink(path);
  struct stat existing {};
  const bool exists = stat(target.c_str(), &existing) == 0;
  if (exists && !MayReplaceFile(target)) return false;
  if (!exists && errno != ENOENT) return false;  // e.g. a path under a regular file

  std::string tempPath;
  const int fd = CreateTempBeside(target, tempPath);
  if (fd < 0) return false;
  bool ok = WriteAll(fd, content);
  if (ok && exists) ok = fchmod(fd, existing.st_mode & 07777) == 0;
  ok = close(fd) == 0 && ok;
  if (ok) ok = rename(tempPath.c_str(), target.c_str()) == 0;
  if (!ok) unlink(tempPath.c_str());
  return ok;
}

bool WriteTemporaryFile(const std::string& path, std::string_view content,
                        const std::string& permissionsFrom) {
  const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kNewFileMode);
  if (fd < 0) return false;
  bool ok = WriteAll(fd, content);
  struct stat model {};
  if (ok && stat(permissionsFrom.c_str(), &model) == 0) ok = fchmod(fd, model.st_mode & 07777) == 0;
  ok = close(fd) == 0 && ok;
  return ok;
}

bool MoveFileOver(const std::string& source, const std::string& target) {
  const std::string resolvedTarget = ResolveLink(target);
  if (rename(source.c_str(), resolvedTarget.c_str()) == 0) return true;
  if (errno != EXDEV) return false;
  const auto content = ReadFileBytes(source);
  if (!content || !ReplaceFileContent(resolvedTarget, *content)) return false;
  unlink(source.c_str());
  return true;
}

}  // namespace nomra::settings
