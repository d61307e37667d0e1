#pragma once
#include <string_view>

namespace nomra::platform {

// An open file descriptor, closed when it goes.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor(Descriptor&& other) noexcept : fd_(other.fd_) { other.fd_ = -1; }
  Descriptor& operator=(Descriptor&& other) noexcept;

  int Get() const { return fd_; }
  bool IsOpen() const { return fd_ >= 0; }
  // Closing can be where a full disk or a network volume reports its
  // failure: 0 or the errno.
  int Close();

 private:
  int fd_ = -1;
};

// Writes all the bytes, going on after interruptions; 0 or the errno.
int WriteAll(int fd, std::string_view bytes);

}  // namespace nomra::platform
