// Runs a fuzz target over stored inputs, without libFuzzer: every file in
// the folders (and below) or files given, in name order. A crash or a
// sanitizer report fails the run; so do a path that isn't there and no
// input at all, so a renamed or emptied corpus can't pass unseen. README
// and .gitkeep files are notes, not inputs.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

bool IsNote(const fs::path& path) {
  const std::string name = path.filename().string();
  return name == ".gitkeep" || name.rfind("README", 0) == 0;
}

void Replay(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  const std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  // An empty vector's data() may be null; the targets get a valid pointer.
  static const std::uint8_t none = 0;
  const auto* data = bytes.empty() ? &none : reinterpret_cast<const std::uint8_t*>(bytes.data());
  LLVMFuzzerTestOneInput(data, bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t replayed = 0;
  for (int k = 1; k < argc; ++k) {
    const fs::path given(argv[k]);
    std::vector<fs::path> inputs;
    if (fs::is_directory(given)) {
      for (const auto& entry : fs::recursive_directory_iterator(given)) {
        if (entry.is_regular_file() && !IsNote(entry.path())) inputs.push_back(entry.path());
      }
    } else if (fs::is_regular_file(given)) {
      inputs.push_back(given);
    } else {
      std::cerr << "no such file or folder: " << given << "\n";
      return 2;
    }
    std::sort(inputs.begin(), inputs.end());
    for (const fs::path& input : inputs) {
      Replay(input);
      ++replayed;
    }
  }
  std::cout << "replayed " << replayed << " inputs\n";
  // No input at all means the corpus went missing.
  return replayed == 0 ? 3 : 0;
}
