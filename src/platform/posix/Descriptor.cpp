#include "platform/posix/Descriptor.h"

#include <unistd.h>

#include <cerrno>

namespace nomra::platform {

Descriptor::~Descriptor() {
  if (fd_ >= 0) close(fd_);
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this != &other) {
    if (fd_ >= 0) close(fd_);
    fd_ = other.fd_;
    other.fd_ = -1;
  }
  return *this;
}

int Descriptor::Close() {
  if (fd_ < 0) return 0;
  const int result = close(fd_);
  fd_ = -1;
  return result == 0 ? 0 : errno;
}

int WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = write(fd, bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return errno;
    if (done == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
  return 0;
}

}  // namespace nomra::platform
