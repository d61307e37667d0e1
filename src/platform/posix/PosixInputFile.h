#pragma once
#include <memory>
#include <string>

#include "platform/InputFile.h"
#include "platform/posix/Descriptor.h"

namespace nomra::platform {

// Reads with pread, so parts of a file are read without moving a position.
class PosixInputFile final : public InputFile {
 public:
  PosixInputFile(Descriptor fd, std::uint64_t size) : fd_(std::move(fd)), size_(size) {}
  std::uint64_t Size() const override { return size_; }
  std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override;
  int Error() const override { return error_; }
  void ExpectOneSequentialPass() override;

 private:
  Descriptor fd_;
  std::uint64_t size_ = 0;
  int error_ = 0;
};

// Opens a regular file (or what a link leads to) for reading; a folder is
// refused with EISDIR.
std::unique_ptr<InputFile> OpenInputFile(const std::string& path, int& error);

}  // namespace nomra::platform
