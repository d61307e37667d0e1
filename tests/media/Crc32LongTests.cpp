#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <vector>

#include "media/Crc32.h"

// A gibibyte through every way of taking the checksum, against zlib. Too
// slow for the test run: the build target `long` runs it.

namespace nomra::media {
namespace {

constexpr std::uint64_t kGibibyte = 1024ull * 1024 * 1024;

// Eight pseudo-random bytes made from their offset alone, so any read at any
// offset gives the same bytes and nothing of the gibibyte is ever held whole.
std::uint64_t Mix(std::uint64_t word) {
  word += 0x9E3779B97F4A7C15ull;
  word = (word ^ (word >> 30)) * 0xBF58476D1CE4E5B9ull;
  word = (word ^ (word >> 27)) * 0x94D049BB133111EBull;
  return word ^ (word >> 31);
}

void Fill(std::uint64_t offset, unsigned char* out, std::size_t length) {
  std::size_t done = 0;
  while (done < length) {
    const std::uint64_t at = offset + done;
    const std::uint64_t word = Mix(at / 8);
    const std::size_t from = static_cast<std::size_t>(at % 8);
    const std::size_t take = std::min<std::size_t>(8 - from, length - done);
    for (std::size_t k = 0; k < take; ++k) out[done + k] = static_cast<unsigned char>(word >> (8 * (from + k)));
    done += take;
  }
}

// The gibibyte as a file that exists only as a formula.
class GeneratedInputFile final : public platform::InputFile {
 public:
  explicit GeneratedInputFile(std::uint64_t size) : size_(size) {}
  std::uint64_t Size() const override { return size_; }
  std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    if (offset >= size_) return 0;
    const std::size_t count = static_cast<std::size_t>(std::min<std::uint64_t>(length, size_ - offset));
    Fill(offset, reinterpret_cast<unsigned char*>(buffer), count);
    return static_cast<std::int64_t>(count);
  }
  int Error() const override { return 0; }
  void ExpectOneSequentialPass() override {}

 private:
  std::uint64_t size_;
};

TEST(Crc32OverAGibibyte, EveryWayEqualsZlibInUnevenChunks) {
  // Chunks of a length that is no power of two, so the vector code meets
  // every split of its lanes across the stream.
  constexpr std::size_t kChunk = 1024 * 1024 + 13;
  std::vector<unsigned char> chunk(kChunk);
  uLong zlib = crc32(0, nullptr, 0);
  std::uint32_t fast = 0;
  std::uint32_t portable = 0;
  for (std::uint64_t offset = 0; offset < kGibibyte; offset += kChunk) {
    const std::size_t length = static_cast<std::size_t>(std::min<std::uint64_t>(kChunk, kGibibyte - offset));
    Fill(offset, chunk.data(), length);
    zlib = crc32(zlib, chunk.data(), static_cast<uInt>(length));
    fast = Crc32Update(fast, chunk.data(), length);
    portable = Crc32Portable(portable, chunk.data(), length);
  }
  EXPECT_EQ(fast, static_cast<std::uint32_t>(zlib));
  EXPECT_EQ(portable, static_cast<std::uint32_t>(zlib));

  GeneratedInputFile file(kGibibyte);
  int error = 0;
  EXPECT_EQ(FileCrc32(file, error), static_cast<std::uint32_t>(zlib));
}

}  // namespace
}  // namespace nomra::media
