#include "platform/posix/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "platform/posix/Descriptor.h"

namespace nomra::platform {

namespace {

// Between two ticks: large enough to copy fast, small enough that the
// progress moves and a stop is heard within a moment.
constexpr std::size_t kChunk = 4 * 1024 * 1024;

// Moves up to one chunk in the kernel where it can, else through a buffer.
// Returns the bytes moved, 0 at the end, -1 with errno set.
ssize_t CopyChunk(int in, int out, bool& kernelCopy, std::vector<char>& buffer) {
  if (kernelCopy) {
    const ssize_t moved = copy_file_range(in, nullptr, out, nullptr, kChunk, 0);
    if (moved >= 0) return moved;
    if (errno != EXDEV && errno != ENOSYS && errno != EINVAL && errno != EOPNOTSUPP) return -1;
    kernelCopy = false;
  }
  if (buffer.empty()) buffer.resize(kChunk);
  const ssize_t got = read(in, buffer.data(), buffer.size());
  if (got <= 0) return got;
  for (ssize_t written = 0; written < got;) {
    const ssize_t put = write(out, buffer.data() + written, static_cast<std::size_t>(got - written));
    if (put < 0) {
      if (errno == EINTR) continue;
      return -1;
    }
    written += put;
  }
  return got;
}

int CopyBytes(int in, int out, const CopyTick& tick) {
  bool kernelCopy = true;
  std::vector<char> buffer;
  std::uint64_t copied = 0;
  for (;;) {
    const ssize_t moved = CopyChunk(in, out, kernelCopy, buffer);
    if (moved == 0) return 0;
    if (moved < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    copied += static_cast<std::uint64_t>(moved);
    if (tick && !tick(copied)) return ECANCELED;
  }
}

int CopyInto(int in, const struct stat& source, Descriptor& out, const CopyTick& tick, bool durable) {
  if (const int error = CopyBytes(in, out.Get(), tick); error != 0) return error;
  // A volume without permission bits (FAT) refuses them; the bytes count.
  fchmod(out.Get(), source.st_mode & 07777);
  const struct timespec times[2] = {source.st_atim, source.st_mtim};
  futimens(out.Get(), times);
  if (durable && fsync(out.Get()) != 0) return errno;
  return out.Close();
}

}  // namespace

int CopyFileContents(const std::string& from, const std::string& to, const CopyTick& tick, bool durable) {
  Descriptor in(open(from.c_str(), O_RDONLY | O_CLOEXEC));
  if (in.Get() < 0) return errno;
  struct stat source {};
  if (fstat(in.Get(), &source) != 0) return errno;
  if (S_ISDIR(source.st_mode)) return EISDIR;
  // O_EXCL: the new file is ours alone, never one that was there.
  Descriptor out(open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (out.Get() < 0) return errno;
  const int error = CopyInto(in.Get(), source, out, tick, durable);
  if (error != 0) unlink(to.c_str());
  return error;
}

}  // namespace nomra::platform
