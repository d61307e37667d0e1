// Loads a tree of empty files into the list and compares the time with
// `find DIR -printf '%s %T@\n'` over the same tree, in the same run.
//
//   nomra-bench-list [--files N] [--folders F] [--dir PATH] [--keep]
#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "BenchList.h"
#include "BenchTree.h"
#include "core/AddFile.h"

namespace {

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point from) { return std::chrono::duration<double>(Clock::now() - from).count(); }

using nomra::bench::MakeTree;

double TimeFind(const std::string& root) {
  const std::string command = "find '" + root + "' -printf '%s %T@\\n' >/dev/null";
  const auto start = Clock::now();
  if (std::system(command.c_str()) != 0) std::fprintf(stderr, "find failed\n");
  return Seconds(start);
}

struct LoadResult {
  double seconds = 0;
  int rows = 0;
  std::size_t heapBytes = 0;
};

LoadResult TimeLoad(const std::string& root) {
  const std::size_t heapBefore = mallinfo2().uordblks;
  LoadResult result;
  {
    nomra::bench::BenchList list;
    list.texts.adding = "Adding";
    std::string path = root;
    const auto start = Clock::now();
    nomra::core::AddFile(list.load, path);
    result.seconds = Seconds(start);
    result.rows = list.state.list.Count();
    result.heapBytes = mallinfo2().uordblks - heapBefore;
  }
  return result;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  int files = 100000;
  int folders = 1000;
  std::string root = (std::filesystem::temp_directory_path() / "nomra-bench-tree").string();
  bool keep = false;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--files" && i + 1 < argc) files = std::atoi(argv[++i]);
    else if (arg == "--folders" && i + 1 < argc) folders = std::atoi(argv[++i]);
    else if (arg == "--dir" && i + 1 < argc) root = argv[++i];
    else if (arg == "--keep") keep = true;
  }

  std::printf("tree: %d empty files in %d folders under %s\n", files, folders, root.c_str());
  if (!std::filesystem::exists(root)) MakeTree(root, files, folders);

  // One untimed pass of each warms the file system's caches alike.
  TimeFind(root);
  TimeLoad(root);

  std::vector<double> findTimes;
  std::vector<double> loadTimes;
  LoadResult last;
  for (int run = 0; run < 5; ++run) {
    findTimes.push_back(TimeFind(root));
    last = TimeLoad(root);
    loadTimes.push_back(last.seconds);
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);

  const double find = Median(findTimes);
  const double load = Median(loadTimes);
  std::printf("rows loaded:          %d\n", last.rows);
  std::printf("find -printf:         %.3f s (median of 5)\n", find);
  std::printf("AddFile (whole tree): %.3f s (median of 5)\n", load);
  std::printf("ratio load/find:      %.2f (target at most 2.00)\n", load / find);
  std::printf("heap of the list:     %.1f MiB, %.0f bytes per row (target at most 1536)\n",
              static_cast<double>(last.heapBytes) / (1024.0 * 1024.0),
              static_cast<double>(last.heapBytes) / std::max(1, last.rows));
  std::printf("peak resident size:   %.1f MiB\n", static_cast<double>(usage.ru_maxrss) / 1024.0);

  if (!keep) std::filesystem::remove_all(root);
  return 0;
}
