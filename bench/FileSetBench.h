#pragma once
// What the benchmarks over a set of generated files share: their command
// line, the folder the files go to, the median of the runs and the timing
// of one pass over every file.
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace nomra::bench {

// The program's name in its messages, set by ParseFileSetOptions.
inline std::string& ProgramName() {
  static std::string name = "nomra-bench";
  return name;
}

[[noreturn]] inline void Fail(const std::string& what) {
  std::fprintf(stderr, "%s: %s\n", ProgramName().c_str(), what.c_str());
  std::exit(1);
}

struct FileSetOptions {
  int count = 2000;
  std::string folder;  // ends with '/'; a fresh temporary folder unless --dir gave one
  bool keep = false;   // leave the files for a later run
};

// "[--files N] [--dir PATH] [--keep]"; anything else ends the program with
// its usage.
inline FileSetOptions ParseFileSetOptions(int argc, char** argv, const std::string& program) {
  ProgramName() = program;
  FileSetOptions options;
  for (int k = 1; k < argc; ++k) {
    const std::string arg = argv[k];
    if (arg == "--files" && k + 1 < argc) {
      options.count = std::atoi(argv[++k]);
    } else if (arg == "--dir" && k + 1 < argc) {
      options.folder = argv[++k];
    } else if (arg == "--keep") {
      options.keep = true;
    } else {
      std::fprintf(stderr, "usage: %s [--files N] [--dir PATH] [--keep]\n", program.c_str());
      std::exit(2);
    }
  }
  if (options.folder.empty()) {
    std::string pattern = (std::filesystem::temp_directory_path() / (program + "-XXXXXX")).string();
    if (mkdtemp(pattern.data()) == nullptr) Fail("mkdtemp failed");
    options.folder = pattern;
  }
  if (options.folder.back() != '/') options.folder += '/';
  std::filesystem::create_directories(options.folder);
  return options;
}

inline double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

inline std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

// Seconds for one pass of `read` over every path; what it returns goes to
// `sink`, so the compiler can't leave the work out.
inline double TimeEach(const std::vector<std::string>& paths,
                       const std::function<std::size_t(const std::string&)>& read, std::size_t& sink) {
  const auto start = std::chrono::steady_clock::now();
  for (const std::string& path : paths) sink += read(path);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace nomra::bench
