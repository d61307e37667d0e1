#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/InputFile.h"

namespace nomra::media {

// Parts of an open file, read as the MP3 reader asks for them. A cache of
// one block serves the many small reads of a tag walk with few system calls.
class FilePieces {
 public:
  explicit FilePieces(platform::InputFile& file) : file_(file) {}

  std::uint64_t Size() const { return file_.Size(); }

  // Exactly `count` bytes at `offset`, or nothing when the file ends before
  // or the read fails.
  std::optional<std::string> Exact(std::uint64_t offset, std::size_t count);

  // `count` bytes at `offset`; bytes past the end, or of a failed read,
  // are NULs.
  std::string Padded(std::uint64_t offset, std::size_t count);

 private:
  // Makes the cache hold `offset`, reading at least `wanted` bytes there.
  bool Fill(std::uint64_t offset, std::size_t wanted);

  // The first read of a file asks for 8 KiB, as much as the frame search
  // needs; asking for more would only cost copying.
  static constexpr std::size_t kBlock = 8 * 1024;
  platform::InputFile& file_;
  std::unique_ptr<char[]> block_;
  std::size_t capacity_ = 0;
  std::size_t blockSize_ = 0;
  std::uint64_t blockStart_ = 0;
};

}  // namespace nomra::media
