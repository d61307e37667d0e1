#include <gtest/gtest.h>
#include <zlib.h>

#include <cerrno>
#include <random>
#include <string>
#include <vector>

#include "media/Crc32.h"
#include "platform/MemoryInputFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::media {
namespace {

std::uint32_t Zlib(const unsigned char* bytes, std::size_t length) {
  return static_cast<std::uint32_t>(crc32(0, bytes, static_cast<uInt>(length)));
}

std::uint32_t Zlib(const std::string& bytes) {
  return Zlib(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

std::string RandomBytes(std::size_t length, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  std::string bytes(length, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFFu);
  return bytes;
}

// A file whose reads fail once `failAt` bytes have been given, as a disk
// that stops answering half-way through.
class FailingInputFile final : public platform::InputFile {
 public:
  FailingInputFile(std::string bytes, std::uint64_t failAt) : bytes_(std::move(bytes)), failAt_(failAt) {}
  std::uint64_t Size() const override { return bytes_.size(); }
  std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    if (offset + length > failAt_) return -1;
    return platform::MemoryInputFile(bytes_).ReadAt(offset, buffer, length);
  }
  int Error() const override { return EIO; }
  void ExpectOneSequentialPass() override {}

 private:
  std::string bytes_;
  std::uint64_t failAt_;
};

// Counts the reads and reports a size fixed by the test, as a file that
// changed length after it was opened.
class CountingInputFile final : public platform::InputFile {
 public:
  CountingInputFile(const std::string& bytes, std::uint64_t reportedSize) : file_(bytes), size_(reportedSize) {}
  std::uint64_t Size() const override {
    ++sizeQueries;
    return size_;
  }
  std::int64_t ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    ++reads;
    return file_.ReadAt(offset, buffer, length);
  }
  int Error() const override { return 0; }
  void ExpectOneSequentialPass() override { ++sequentialHints; }

  int reads = 0;
  int sequentialHints = 0;
  mutable int sizeQueries = 0;

 private:
  platform::MemoryInputFile file_;
  std::uint64_t size_;
};

TEST(Crc32Text, TheCheckValueOfTheDigitsIsCbf43926AndNegativeInDecimal) {
  testing::TempFolder folder;
  platform::PosixFileSystem files;
  int error = 0;
  const auto crc = FileCrc32(files, folder.WriteFile("digits.txt", "123456789"), error);
  ASSERT_TRUE(crc.has_value());
  EXPECT_EQ(Crc32Hex(*crc), "CBF43926");
  EXPECT_EQ(Crc32Decimal(*crc), "-873187034");
  EXPECT_EQ(Crc32Signed(*crc), -873187034);
}

TEST(Crc32Text, AnEmptyFileIsZeroInBothForms) {
  testing::TempFolder folder;
  platform::PosixFileSystem files;
  int error = 0;
  const auto crc = FileCrc32(files, folder.WriteFile("empty"), error);
  ASSERT_TRUE(crc.has_value());
  EXPECT_EQ(*crc, 0u);
  EXPECT_EQ(Crc32Hex(*crc), "0");
  EXPECT_EQ(Crc32Decimal(*crc), "0");
}

TEST(Crc32Text, HexHasNoLeadingZerosSoASmallValueHasFewerThanEightDigits) {
  // "file 328" happens to have a checksum below 0x10000000.
  testing::TempFolder folder;
  platform::PosixFileSystem files;
  int error = 0;
  const auto crc = FileCrc32(files, folder.WriteFile("small", "file 328"), error);
  ASSERT_TRUE(crc.has_value());
  EXPECT_EQ(*crc, Zlib("file 328"));
  EXPECT_EQ(Crc32Hex(*crc), "15067");
  EXPECT_EQ(Crc32Decimal(*crc), "86119");
}

TEST(Crc32Text, HexIsUpperCaseAndDecimalCoversTheWholeSignedRange) {
  EXPECT_EQ(Crc32Hex(0xABCDEFu), "ABCDEF");
  EXPECT_EQ(Crc32Hex(0xFFFFFFFFu), "FFFFFFFF");
  EXPECT_EQ(Crc32Decimal(0xFFFFFFFFu), "-1");
  EXPECT_EQ(Crc32Decimal(0x80000000u), "-2147483648");
  EXPECT_EQ(Crc32Decimal(0x7FFFFFFFu), "2147483647");
}

TEST(Crc32Update, BothWaysEqualZlibOnEveryLengthUpTo4096AtAnyAlignment) {
  const std::string pool = RandomBytes(4096 + 64, 7);
  std::mt19937 random(11);
  const auto* base = reinterpret_cast<const unsigned char*>(pool.data());
  for (std::size_t length = 0; length <= 4096; ++length) {
    const unsigned char* start = base + random() % 64;
    const std::uint32_t expected = Zlib(start, length);
    ASSERT_EQ(Crc32Update(0, start, length), expected) << "length " << length;
    ASSERT_EQ(Crc32Portable(0, start, length), expected) << "length " << length;
  }
}

TEST(Crc32Update, ValuesChainAsZlibsDoWhateverTheSplit) {
  const std::string bytes = RandomBytes(10000, 3);
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  const std::uint32_t whole = Zlib(bytes);
  for (const std::size_t split : {0u, 1u, 7u, 63u, 64u, 4095u, 9999u, 10000u}) {
    EXPECT_EQ(Crc32Update(Crc32Update(0, data, split), data + split, bytes.size() - split), whole) << split;
    EXPECT_EQ(Crc32Portable(Crc32Portable(0, data, split), data + split, bytes.size() - split), whole) << split;
    // A value begun by one way is finished by the other.
    EXPECT_EQ(Crc32Portable(Crc32Update(0, data, split), data + split, bytes.size() - split), whole) << split;
  }
}

TEST(Crc32Update, TheVectorLibraryIsUsedWhereTheBuildHasIt) {
#ifdef NOMRA_TEST_EXPECTS_ISAL
  EXPECT_TRUE(Crc32UsesVectorLibrary());
#else
  EXPECT_FALSE(Crc32UsesVectorLibrary());
#endif
}

TEST(FileCrc32, AFileLargerThanTheReadBlockEqualsZlib) {
  const std::string bytes = RandomBytes(3 * 1024 * 1024 + 17, 5);
  testing::TempFolder folder;
  platform::PosixFileSystem files;
  int error = 0;
  const auto crc = FileCrc32(files, folder.WriteFile("large.bin", bytes), error);
  ASSERT_TRUE(crc.has_value()) << error;
  EXPECT_EQ(*crc, Zlib(bytes));
}

TEST(FileCrc32, ALargeFileIsAnnouncedAsOneSequentialPassAndReadInLargeBlocks) {
  const std::string bytes = RandomBytes(8 * 1024 * 1024 + 1, 9);
  CountingInputFile file(bytes, bytes.size());
  int error = 0;
  EXPECT_EQ(FileCrc32(file, error), Zlib(bytes));
  EXPECT_EQ(file.sequentialHints, 1);
  EXPECT_LE(file.reads, 9);
}

TEST(FileCrc32, ASmallFileTakesASingleReadAndNoSizeQuery) {
  const std::string bytes = RandomBytes(4096, 13);
  CountingInputFile file(bytes, bytes.size());
  int error = 0;
  EXPECT_EQ(FileCrc32(file, error), Zlib(bytes));
  EXPECT_EQ(file.reads, 1);
  EXPECT_EQ(file.sequentialHints, 0);
  EXPECT_EQ(file.sizeQueries, 0);
}

TEST(FileCrc32, ReadsToTheEndWhateverSizeTheFileReported) {
  const std::string bytes = RandomBytes(300000, 17);
  CountingInputFile file(bytes, 10);
  int error = 0;
  EXPECT_EQ(FileCrc32(file, error), Zlib(bytes));
}

TEST(FileCrc32, AFileThatShrankSinceItWasOpenedEndsWhereItNowEnds) {
  const std::string bytes = RandomBytes(1500000, 21);
  CountingInputFile file(bytes, 4000000);
  int error = 0;
  EXPECT_EQ(FileCrc32(file, error), Zlib(bytes));
}

TEST(FileCrc32, AFileThatReportsNoSizeIsReadToItsEnd) {
  const std::string bytes = RandomBytes(300000, 23);
  CountingInputFile file(bytes, 0);
  int error = 0;
  EXPECT_EQ(FileCrc32(file, error), Zlib(bytes));
}

TEST(FileCrc32, AMissingFileFailsWithItsError) {
  testing::TempFolder folder;
  platform::PosixFileSystem files;
  int error = 0;
  EXPECT_FALSE(FileCrc32(files, folder.Path() + "missing", error).has_value());
  EXPECT_EQ(error, ENOENT);
}

TEST(FileCrc32, AFolderFails) {
  testing::TempFolder folder;
  platform::PosixFileSystem files;
  int error = 0;
  EXPECT_FALSE(FileCrc32(files, folder.MakeFolder("sub"), error).has_value());
  EXPECT_EQ(error, EISDIR);
}

TEST(FileCrc32, AFileThatMayNotBeReadFails) {
  testing::TempFolder folder;
  testing::FaultyFileSystem files;
  const std::string path = folder.WriteFile("secret", "hidden");
  files.MakeFileUnreadable(path);
  int error = 0;
  EXPECT_FALSE(FileCrc32(files, path, error).has_value());
  EXPECT_EQ(error, EACCES);
}

TEST(FileCrc32, AReadThatFailsHalfWayFailsRatherThanGivingAValue) {
  const std::string bytes = RandomBytes(5 * 1024 * 1024, 19);
  FailingInputFile file(bytes, 2 * 1024 * 1024 + 100);
  int error = 0;
  EXPECT_FALSE(FileCrc32(file, error).has_value());
  EXPECT_EQ(error, EIO);
}

TEST(FileCrc32, AFailedFirstReadOfASmallFileFails) {
  FailingInputFile file("123456789", 0);
  int error = 0;
  EXPECT_FALSE(FileCrc32(file, error).has_value());
  EXPECT_EQ(error, EIO);
}

}  // namespace
}  // namespace nomra::media
