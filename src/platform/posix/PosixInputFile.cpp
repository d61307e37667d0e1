#include "platform/posix/PosixInputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace nomra::platform {

std::int64_t PosixInputFile::ReadAt(std::uint64_t offset, char* buffer, std::size_t length) {
  std::size_t done = 0;
  while (done < length) {
    const ssize_t got = pread(fd_.Get(), buffer + done, length - done, static_cast<off_t>(offset + done));
    if (got == 0) break;
    if (got < 0) {
      if (errno == EINTR) continue;
      error_ = errno;
      return -1;
    }
    done += static_cast<std::size_t>(got);
  }
  return static_cast<std::int64_t>(done);
}

void PosixInputFile::ExpectOneSequentialPass() {
  // Only a hint: a system that ignores it reads the same bytes.
  posix_fadvise(fd_.Get(), 0, 0, POSIX_FADV_SEQUENTIAL);
}

std::uint64_t PosixInputFile::Size() const {
  if (!size_) {
    struct stat st {};
    size_ = fstat(fd_.Get(), &st) == 0 && S_ISREG(st.st_mode) ? static_cast<std::uint64_t>(st.st_size) : 0;
  }
  return *size_;
}

std::unique_ptr<InputFile> OpenInputFile(const std::string& path, int& error) {
  error = 0;
  Descriptor fd(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!fd.IsOpen()) {
    error = errno;
    return nullptr;
  }
  return std::make_unique<PosixInputFile>(std::move(fd));
}

}  // namespace nomra::platform
