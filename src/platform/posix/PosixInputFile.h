#pragma once
#include <memory>
#include <optional>
#include <string>

#include "platform/InputFile.h"
#include "platform/posix/Descriptor.h"

namespace nomra::platform {

// Reads with pread, so parts of a file are read without moving a position.
class PosixInputFile final : public InputFile {
 public:
  explicit PosixInputFile(Descriptor fd) : fd_(std::move(fd)) {}
  std::uint64_t Size() const override;
  std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override;
  int Error() const override { return error_; }
  void ExpectOneSequentialPass() override;

 private:
  Descriptor fd_;
  // Asked of the system the first time it is wanted: a reader that goes to
  // the end anyway (the checksum) never pays for it.
  mutable std::optional<std::uint64_t> size_;
  int error_ = 0;
};

// Opens a file (or what a link leads to) for reading. A folder opens, and
// each read of it fails with EISDIR.
std::unique_ptr<InputFile> OpenInputFile(const std::string& path, int& error);

}  // namespace nomra::platform
