#include "fileops/posix/PosixOperationSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

#include "fileops/posix/FileCopy.h"
#include "platform/posix/NoReplaceRename.h"

namespace nomra::fileops {

namespace {

EntryType TypeOf(mode_t mode) {
  if (S_ISREG(mode)) return EntryType::File;
  if (S_ISDIR(mode)) return EntryType::Folder;
  return EntryType::Other;
}

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::string(value) : std::string();
}

std::string HomeFolder() {
  std::string home = Environment("HOME");
  if (home.empty()) {
    if (const passwd* user = getpwuid(getuid())) home = user->pw_dir;
  }
  return home;
}

}  // namespace

EntryInfo PosixOperationSystem::Inspect(const std::string& path) {
  EntryInfo info;
  struct stat own {};
  if (lstat(path.c_str(), &own) != 0) {
    info.error = errno;
    return info;
  }
  info.isLink = S_ISLNK(own.st_mode);
  struct stat target = own;
  // A link that leads nowhere still takes its name.
  if (info.isLink && stat(path.c_str(), &target) != 0) target = own;
  info.type = TypeOf(target.st_mode);
  info.size = static_cast<std::uint64_t>(target.st_size);
  info.device = static_cast<std::uint64_t>(target.st_dev);
  info.inode = static_cast<std::uint64_t>(target.st_ino);
  info.modified = target.st_mtim.tv_sec;
  info.sticky = (target.st_mode & S_ISVTX) != 0;
  return info;
}

int PosixOperationSystem::CopyFile(const std::string& from, const std::string& to, const CopyTick& tick,
                                   bool durable) {
  return CopyFileContents(from, to, tick, durable);
}

int PosixOperationSystem::Rename(const std::string& from, const std::string& to, bool replace) {
  if (replace) return rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
  const platform::RenameResult result = platform::RenameWithoutReplacing(from, to);
  return result.ok ? 0 : result.error;
}

int PosixOperationSystem::RemoveFile(const std::string& path) { return unlink(path.c_str()) == 0 ? 0 : errno; }

int PosixOperationSystem::MakeFolder(const std::string& path, unsigned mode) {
  return mkdir(path.c_str(), static_cast<mode_t>(mode)) == 0 ? 0 : errno;
}

int PosixOperationSystem::WriteNewFile(const std::string& path, std::string_view content) {
  const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (fd < 0) return errno;
  int error = 0;
  for (std::size_t written = 0; written < content.size() && error == 0;) {
    const ssize_t put = write(fd, content.data() + written, content.size() - written);
    if (put >= 0) {
      written += static_cast<std::size_t>(put);
    } else if (errno != EINTR) {
      error = errno;
    }
  }
  if (close(fd) != 0 && error == 0) error = errno;
  if (error != 0) unlink(path.c_str());
  return error;
}

bool PosixOperationSystem::ListFolder(const std::string& folder,
                                      const std::function<void(std::string_view name)>& visit) {
  std::unique_ptr<DIR, int (*)(DIR*)> dir(opendir(folder.c_str()), closedir);
  if (!dir) return false;
  while (const dirent* entry = readdir(dir.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") visit(name);
  }
  return true;
}

std::string PosixOperationSystem::DataHome() {
  // The XDG base directory rules count only an absolute $XDG_DATA_HOME.
  std::string data = Environment("XDG_DATA_HOME");
  if (data.empty() || data.front() != '/') data = HomeFolder() + "/.local/share";
  while (data.size() > 1 && data.back() == '/') data.pop_back();
  return data;
}

unsigned PosixOperationSystem::UserId() { return static_cast<unsigned>(getuid()); }

}  // namespace nomra::fileops
