#include "platform/posix/FileLocks.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/PosixOpenFile.h"

namespace nomra::platform {

std::unique_ptr<OpenFile> CreateLockedFile(const std::string& path, int& error) {
  Descriptor fd(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  if (!fd.IsOpen()) {
    error = errno;
    return nullptr;
  }
  if (flock(fd.Get(), LOCK_EX | LOCK_NB) != 0) {
    error = errno;
    return nullptr;
  }
  error = 0;
  return std::make_unique<PosixOpenFile>(std::move(fd));
}

ExistingLock LockExistingFile(const std::string& path) {
  ExistingLock lock;
  Descriptor fd(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!fd.IsOpen()) {
    lock.error = errno;
    lock.state = lock.error == ENOENT ? ExistingLock::State::Missing : ExistingLock::State::Failed;
    if (lock.error == ENOENT) lock.error = 0;
    return lock;
  }
  if (flock(fd.Get(), LOCK_EX | LOCK_NB) != 0) {
    lock.state = ExistingLock::State::Busy;
    return lock;
  }
  // The one who wrote it may have finished and removed it meanwhile.
  struct stat opened {};
  struct stat named {};
  const bool stale = fstat(fd.Get(), &opened) != 0 || stat(path.c_str(), &named) != 0 ||
                     opened.st_ino != named.st_ino || opened.st_dev != named.st_dev;
  lock.state = stale ? ExistingLock::State::Stale : ExistingLock::State::Locked;
  lock.handle = std::make_unique<PosixOpenFile>(std::move(fd));
  return lock;
}

int SyncFolderEntries(const std::string& folder) {
  Descriptor fd(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!fd.IsOpen()) return errno;
  return fsync(fd.Get()) == 0 ? 0 : errno;
}

}  // namespace nomra::platform
