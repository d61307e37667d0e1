#include <algorithm>
#include <memory>

#include "media/Crc32.h"

namespace nomra::media {
namespace {

// Large reads keep the system calls few; the block is reused for the whole
// file. Measured on a warm 1 GiB file, reads of 512 KiB and less copy out of
// the page cache markedly slower, and 4 MiB gains nothing over 2 MiB.
constexpr std::size_t kBlock = 2 * 1024 * 1024;
// For a file that reports no size: read in these steps until the end.
constexpr std::size_t kUnsizedBlock = 64 * 1024;

}  // namespace

std::optional<std::uint32_t> FileCrc32(platform::InputFile& file, int& error) {
  error = 0;
  // The checksum covers the bytes the file held when it was opened. Asking
  // for exactly that many lets a small file take one read into a block of
  // its own size, with no second read to meet the end; a file that shrank
  // meanwhile ends early. Devices and the like report no size and are read
  // until a read comes back short.
  const std::uint64_t size = file.Size();
  const bool sized = size > 0;
  const std::size_t capacity = sized ? static_cast<std::size_t>(std::min<std::uint64_t>(size, kBlock)) : kUnsizedBlock;
  if (size > kBlock) file.ExpectOneSequentialPass();
  const auto block = std::make_unique_for_overwrite<char[]>(capacity);
  std::uint32_t crc = 0;
  std::uint64_t offset = 0;
  while (!sized || offset < size) {
    const std::size_t wanted =
        sized ? static_cast<std::size_t>(std::min<std::uint64_t>(capacity, size - offset)) : capacity;
    const std::int64_t got = file.ReadAt(offset, block.get(), wanted);
    if (got < 0) {
      error = file.Error();
      return std::nullopt;
    }
    const auto count = static_cast<std::size_t>(got);
    crc = Crc32Update(crc, reinterpret_cast<const unsigned char*>(block.get()), count);
    offset += count;
    // A read returns less than asked only at the end of the file.
    if (count < wanted) break;
  }
  return crc;
}

std::optional<std::uint32_t> FileCrc32(platform::FileSystem& files, const std::string& path, int& error) {
  const std::unique_ptr<platform::InputFile> file = files.OpenForReading(path, error);
  if (!file) return std::nullopt;
  return FileCrc32(*file, error);
}

}  // namespace nomra::media
