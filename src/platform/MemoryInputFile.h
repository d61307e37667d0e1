#pragma once
#include <algorithm>
#include <string_view>

#include "platform/InputFile.h"

namespace nomra::platform {

// Bytes in memory read as a file: the fuzz targets and the tests of the
// binary readers hand a reader exactly the bytes they mean, nothing more.
class MemoryInputFile final : public InputFile {
 public:
  explicit MemoryInputFile(std::string_view bytes) : bytes_(bytes) {}
  std::uint64_t Size() const override { return bytes_.size(); }
  std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    if (offset >= bytes_.size()) return 0;
    const std::size_t count = std::min<std::size_t>(length, bytes_.size() - offset);
    std::copy_n(bytes_.data() + offset, count, buffer);
    return static_cast<std::int64_t>(count);
  }
  int Error() const override { return 0; }
  void ExpectOneSequentialPass() override {}

 private:
  std::string_view bytes_;
};

}  // namespace nomra::platform
