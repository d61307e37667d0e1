#pragma once
#include <cstddef>
#include <cstdint>

namespace nomra::platform {

// A file held open for reading its bytes where they lie: the media readers
// take the first few kilobytes and the last 128 bytes of a file without
// reading what lies between, and a checksum reads it once, front to back.
class InputFile {
 public:
  virtual ~InputFile() = default;

  // The length of the file when first asked; 0 for what is no regular
  // file.
  virtual std::uint64_t Size() const = 0;

  // Reads up to `length` bytes at `offset` into `buffer`: the count read,
  // which is less than `length` only at the end of the file, or -1 when the
  // read failed (see Error).
  virtual std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) = 0;

  // The errno of the last failed read.
  virtual int Error() const = 0;

  // Tells the system the file will be read once from front to back, so it
  // reads ahead further and need not keep the pages.
  virtual void ExpectOneSequentialPass() = 0;
};

}  // namespace nomra::platform
