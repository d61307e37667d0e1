// Sorting by new name and the refresh after an action, on 100,000 rows.
#include <benchmark/benchmark.h>

#include <string>

#include "BenchList.h"
#include "core/SortFileList.h"

namespace {

constexpr int kRows = 100000;
constexpr int kFolders = 1000;

// Rows as AddFile makes them, without the disk: 100 files in each of 1,000
// folders, names in a shuffled order.
void FillRows(nomra::core::FileList& list) {
  for (int i = 0; i < kRows; ++i) {
    const int scrambled = static_cast<int>((static_cast<long long>(i) * 7919) % kRows);
    const std::string folder = "/home/user/photos/d" + std::to_string(i % kFolders) + "/";
    const std::string name = "IMG_" + std::to_string(scrambled) + ".jpg";
    nomra::core::FileEntry* row = list.Add(folder + name);
    (*row)[nomra::core::kColPath] = folder;
    (*row)[nomra::core::kColOldName] = name;
    (*row)[nomra::core::kColNewName] = name;
    (*row)[nomra::core::kColHistory0] = name;
    (*row)[nomra::core::kColCreated] = "2020-01-01 12:00:00";
    (*row)[nomra::core::kColModified] = "2020-01-01 12:00:00";
    (*row)[nomra::core::kColSize] = "0";
    row->sizeTag = "000000000000";
    row->selected = i % 10 == 0;  // the tenth that the benchmark's action changes
  }
}

struct Fixture : nomra::bench::BenchList {
  Fixture() { FillRows(state.list); }
};

void BM_SortByNewName(benchmark::State& state) {
  Fixture f;
  for (auto _ : state) {
    f.state.list.sortOrder = f.state.list.sortOrder == 0 ? 1 : 0;
    nomra::core::sortFileList(f.state.list, f.ui, 4);
  }
  state.counters["rows"] = f.state.list.Count();
}
BENCHMARK(BM_SortByNewName)->Unit(benchmark::kMillisecond);

// Each iteration is an action that changes every tenth name, then the refresh.
void RefreshAfterTenPercentChanged(benchmark::State& state, int sortColumn) {
  Fixture f;
  f.state.list.sortKey = sortColumn;
  int round = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ++round;
    f.state.list.ForEach([&](nomra::core::FileEntry& row) {
      if (row.selected)
        row[nomra::core::kColNewName] = "new_" + std::to_string(round) + "_" + row[nomra::core::kColOldName];
    });
    state.ResumeTiming();
    f.preview.Refresh();
  }
  state.counters["rows"] = f.state.list.Count();
  state.counters["changed"] = f.state.changedCount;
}

void BM_RefreshFolderOrder(benchmark::State& state) { RefreshAfterTenPercentChanged(state, 0); }
void BM_RefreshSortedByNewName(benchmark::State& state) {
  RefreshAfterTenPercentChanged(state, nomra::core::kColNewName);
}
BENCHMARK(BM_RefreshFolderOrder)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RefreshSortedByNewName)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
