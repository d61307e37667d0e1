// Times the file checksum (<CRC32>) against the reads it cannot avoid (the
// floor) and against zlib's crc32 over the same reads, in the same run, on
// the same files, with the page cache warm:
//   1. one large file (1 GiB): a read() loop, zlib, Nomra;
//   2. 100,000 files of 4 KiB in 100 folders: open+read+close, the same with
//      the fstat the platform's open makes, zlib, Nomra.
// Each line is the median of 5 runs; the three ways take turns in each run,
// so a slower machine minute falls on all of them alike. Every checksum is
// compared with zlib's and a difference fails the benchmark.
//
//   nomra-bench-crc [--size BYTES] [--files N] [--dir PATH]
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "media/Crc32.h"
#include "platform/posix/PosixFileSystem.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRuns = 5;
constexpr double kGibibyte = 1024.0 * 1024.0 * 1024.0;
// The floor and zlib read in blocks of the size Nomra reads in.
constexpr std::size_t kReadBlock = 2 * 1024 * 1024;

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

[[noreturn]] void Fail(const std::string& what) {
  std::perror(what.c_str());
  std::exit(1);
}

void WriteRandomFile(const std::string& path, std::uint64_t size, std::uint64_t seed) {
  const int fd = open(path.c_str(), O_CREAT | O_WRONLY | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) Fail(path);
  std::mt19937_64 random(seed);
  std::vector<std::uint64_t> chunk(1024 * 1024);
  for (std::uint64_t done = 0; done < size;) {
    for (std::uint64_t& word : chunk) word = random();
    const std::size_t take = static_cast<std::size_t>(std::min<std::uint64_t>(chunk.size() * 8, size - done));
    if (write(fd, chunk.data(), take) != static_cast<ssize_t>(take)) Fail(path);
    done += take;
  }
  close(fd);
}

// Reads a whole file with read(), giving each block to `take`.
void ReadWhole(const std::string& path, std::vector<unsigned char>& block,
               const std::function<void(const unsigned char*, std::size_t)>& take) {
  const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) Fail(path);
  for (;;) {
    const ssize_t got = read(fd, block.data(), block.size());
    if (got < 0) Fail(path);
    if (got == 0) break;
    take(block.data(), static_cast<std::size_t>(got));
  }
  close(fd);
}

std::uint32_t Nomra(nomra::platform::FileSystem& files, const std::string& path) {
  int error = 0;
  const auto crc = nomra::media::FileCrc32(files, path, error);
  if (!crc) {
    errno = error;
    Fail(path);
  }
  return *crc;
}

struct Timings {
  std::vector<double> floor, zlib, nomra;
};

template <typename Work>
double Time(const Work& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void PrintLine(const char* who, double seconds, double floor, double rate, const char* unit) {
  std::printf("  %-28s %9.3f s  %9.2f %-8s  %5.2fx floor\n", who, seconds, rate, unit, seconds / floor);
}

bool LargeFile(const std::string& root, std::uint64_t size) {
  const std::string path = root + "/large.bin";
  WriteRandomFile(path, size, 1);
  nomra::platform::PosixFileSystem files;
  std::vector<unsigned char> block(kReadBlock);
  ReadWhole(path, block, [](const unsigned char*, std::size_t) {});  // warm the cache

  Timings t;
  std::uint32_t zlibCrc = 0;
  std::uint32_t nomraCrc = 0;
  volatile unsigned char sink = 0;
  for (int run = 0; run < kRuns; ++run) {
    t.floor.push_back(
        Time([&] { ReadWhole(path, block, [&](const unsigned char* bytes, std::size_t) { sink = bytes[0]; }); }));
    t.zlib.push_back(Time([&] {
      uLong crc = crc32(0, nullptr, 0);
      ReadWhole(path, block, [&](const unsigned char* bytes, std::size_t length) {
        crc = crc32(crc, bytes, static_cast<uInt>(length));
      });
      zlibCrc = static_cast<std::uint32_t>(crc);
    }));
    t.nomra.push_back(Time([&] { nomraCrc = Nomra(files, path); }));
  }
  std::filesystem::remove(path);

  const double gib = static_cast<double>(size) / kGibibyte;
  const double floor = Median(t.floor);
  std::printf("One file of %.3f GiB, %zu KiB reads, median of %d:\n", gib, kReadBlock / 1024, kRuns);
  PrintLine("read() loop (floor)", floor, floor, gib / floor, "GiB/s");
  PrintLine("zlib crc32, same reads", Median(t.zlib), floor, gib / Median(t.zlib), "GiB/s");
  PrintLine("Nomra FileCrc32", Median(t.nomra), floor, gib / Median(t.nomra), "GiB/s");
  const double ratio = Median(t.nomra) / floor;
  std::printf("  Nomra %s the target of 1.35x the floor (%.2fx)%s\n", ratio <= 1.35 ? "meets" : "MISSES", ratio,
              nomra::media::Crc32UsesVectorLibrary() ? "" : "; built without ISA-L");
  if (zlibCrc != nomraCrc) {
    std::printf("  CHECK FAILED: zlib %08X, Nomra %08X\n", zlibCrc, nomraCrc);
    return false;
  }
  return true;
}

bool SmallFiles(const std::string& root, int count) {
  constexpr int kFolders = 100;
  constexpr std::size_t kFileSize = 4096;
  std::vector<std::string> paths;
  paths.reserve(static_cast<std::size_t>(count));
  std::mt19937_64 random(2);
  std::string content(kFileSize, '\0');
  for (int f = 0; f < kFolders; ++f) std::filesystem::create_directories(root + "/small/d" + std::to_string(f));
  for (int i = 0; i < count; ++i) {
    paths.push_back(root + "/small/d" + std::to_string(i % kFolders) + "/f" + std::to_string(i) + ".bin");
    for (char& c : content) c = static_cast<char>(random());
    const int fd = open(paths.back().c_str(), O_CREAT | O_WRONLY | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0 || write(fd, content.data(), content.size()) != static_cast<ssize_t>(content.size())) {
      Fail(paths.back());
    }
    close(fd);
  }
  nomra::platform::PosixFileSystem files;
  // One read of a block larger than the file: the floor asks once, as a
  // program that knows the file is small would.
  std::vector<unsigned char> block(64 * 1024);
  const auto readOnce = [&](const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) Fail(path);
    const ssize_t got = read(fd, block.data(), block.size());
    if (got < 0) Fail(path);
    close(fd);
    return static_cast<std::size_t>(got);
  };
  // The same with the fstat that opening through the platform makes, to
  // refuse a folder and learn the length: the floor of any reader that opens
  // files the way the engine does.
  const auto statAndRead = [&](const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (fd < 0 || fstat(fd, &info) != 0) Fail(path);
    const ssize_t got = pread(fd, block.data(), static_cast<std::size_t>(info.st_size), 0);
    if (got < 0) Fail(path);
    close(fd);
    return static_cast<std::size_t>(got);
  };
  for (const std::string& path : paths) readOnce(path);  // warm the cache

  Timings t;
  std::vector<double> statFloor;
  std::uint64_t bytes = 0;
  std::vector<std::uint32_t> zlibCrcs(paths.size());
  std::vector<std::uint32_t> nomraCrcs(paths.size());
  for (int run = 0; run < kRuns; ++run) {
    t.floor.push_back(Time([&] {
      for (const std::string& path : paths) bytes += readOnce(path);
    }));
    statFloor.push_back(Time([&] {
      for (const std::string& path : paths) bytes += statAndRead(path);
    }));
    t.zlib.push_back(Time([&] {
      for (std::size_t i = 0; i < paths.size(); ++i) {
        const std::size_t got = readOnce(paths[i]);
        zlibCrcs[i] = static_cast<std::uint32_t>(crc32(0, block.data(), static_cast<uInt>(got)));
      }
    }));
    t.nomra.push_back(Time([&] {
      for (std::size_t i = 0; i < paths.size(); ++i) nomraCrcs[i] = Nomra(files, paths[i]);
    }));
  }
  std::filesystem::remove_all(root + "/small");

  const double floor = Median(t.floor);
  const double n = static_cast<double>(count);
  std::printf("%d files of %zu KiB in %d folders, median of %d:\n", count, kFileSize / 1024, kFolders, kRuns);
  PrintLine("open+read+close (floor)", floor, floor, n / floor, "files/s");
  PrintLine("open+fstat+pread+close", Median(statFloor), floor, n / Median(statFloor), "files/s");
  PrintLine("zlib crc32, same reads", Median(t.zlib), floor, n / Median(t.zlib), "files/s");
  PrintLine("Nomra FileCrc32", Median(t.nomra), floor, n / Median(t.nomra), "files/s");
  const double ratio = Median(t.nomra) / floor;
  std::printf("  Nomra %s the target of 1.1x the floor (%.2fx; %.2fx open+fstat+pread+close)\n",
              ratio <= 1.1 ? "meets" : "MISSES", ratio, Median(t.nomra) / Median(statFloor));
  if (bytes != 2ull * kRuns * paths.size() * kFileSize || zlibCrcs != nomraCrcs) {
    std::printf("  CHECK FAILED: a file was read short or the checksums differ\n");
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::uint64_t size = 1024ull * 1024 * 1024;
  int count = 100000;
  std::string dir = std::filesystem::temp_directory_path().string();
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--size" && i + 1 < argc) size = std::strtoull(argv[++i], nullptr, 10);
    else if (arg == "--files" && i + 1 < argc) count = std::atoi(argv[++i]);
    else if (arg == "--dir" && i + 1 < argc) dir = argv[++i];
    else {
      std::fprintf(stderr, "usage: nomra-bench-crc [--size BYTES] [--files N] [--dir PATH]\n");
      return 2;
    }
  }
  std::string root = dir + "/nomra-bench-crc-XXXXXX";
  if (mkdtemp(root.data()) == nullptr) Fail(root);
  std::printf("CRC-32 on %s, %s\n", root.c_str(),
              nomra::media::Crc32UsesVectorLibrary() ? "ISA-L" : "portable tables (no ISA-L)");
  const bool large = LargeFile(root, size);
  const bool small = SmallFiles(root, count);
  std::filesystem::remove_all(root);
  return large && small ? 0 : 1;
}
