#include "platform/posix/FileContents.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>

#include "platform/posix/Descriptor.h"
#include "platform/posix/PosixOpenFile.h"

namespace nomra::platform {

namespace {

constexpr mode_t kNewFileMode = 0666;  // the umask takes its share
constexpr mode_t kAppendedFileMode = 0644;
constexpr int kNameAttempts = 100;

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

std::optional<std::string> ReadWholeFile(const std::string& path, int& error) {
  error = 0;
  Descriptor fd(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!fd.IsOpen()) {
    error = errno;
    return std::nullopt;
  }
  std::string content;
  char buffer[65536];
  for (;;) {
    const ssize_t got = read(fd.Get(), buffer, sizeof buffer);
    if (got == 0) break;
    if (got < 0) {
      if (errno == EINTR) continue;
      error = errno;  // a folder opens but can't be read: EISDIR
      return std::nullopt;
    }
    content.append(buffer, static_cast<std::size_t>(got));
  }
  return content;
}

int WriteNewPrivateFile(const std::string& path, std::string_view content) {
  Descriptor fd(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (!fd.IsOpen()) return errno;
  int error = WriteAll(fd.Get(), content);
  const int closed = fd.Close();
  if (error == 0) error = closed;
  if (error != 0) unlink(path.c_str());
  return error;
}

int WriteFileWithPermissionsOf(const std::string& path, std::string_view content, const std::string& permissionsFrom) {
  Descriptor fd(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kNewFileMode));
  if (!fd.IsOpen()) return errno;
  int error = WriteAll(fd.Get(), content);
  struct stat model {};
  if (error == 0 && stat(permissionsFrom.c_str(), &model) == 0 && fchmod(fd.Get(), model.st_mode & 07777) != 0) {
    error = errno;
  }
  const int closed = fd.Close();
  return error != 0 ? error : closed;
}

bool MayReplaceFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) && access(path.c_str(), W_OK) == 0;
}

// A link to the settings (say, kept with other dotfiles) must stay a link:
// the new content goes to the file it points at.
std::string ResolvedLink(const std::string& path) {
  struct stat st {};
  if (lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return path;
  char resolved[PATH_MAX];
  if (realpath(path.c_str(), resolved) == nullptr) return path;
  return resolved;
}

int ReplaceFileContent(const std::string& path, std::string_view content) {
  const std::string target = ResolvedLink(path);
  struct stat existing {};
  const bool exists = stat(target.c_str(), &existing) == 0;
  if (exists && !MayReplaceFile(target)) return EACCES;
  if (!exists && errno != ENOENT) return errno;  // e.g. a path under a regular file

  std::string tempPath;
  Descriptor fd(CreateTempBeside(target, tempPath));
  if (!fd.IsOpen()) return errno;
  int error = WriteAll(fd.Get(), content);
  if (error == 0 && exists && fchmod(fd.Get(), existing.st_mode & 07777) != 0) error = errno;
  const int closed = fd.Close();
  if (error == 0) error = closed;
  if (error == 0 && rename(tempPath.c_str(), target.c_str()) != 0) error = errno;
  if (error != 0) unlink(tempPath.c_str());
  return error;
}

std::unique_ptr<OpenFile> OpenAppending(const std::string& path, int& error) {
  Descriptor fd(open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kAppendedFileMode));
  if (!fd.IsOpen()) {
    error = errno;
    return nullptr;
  }
  error = 0;
  return std::make_unique<PosixOpenFile>(std::move(fd));
}

}  // namespace nomra::platform
