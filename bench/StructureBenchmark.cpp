// The structure language over 100,000 rows, without opening a file: a
// structure of the name family and case brackets, and one heavy in
// <NAMEPART( and find(. Prints rows per second.
#include <benchmark/benchmark.h>

#include <string>

#include "BenchList.h"
#include "structure/StructureEngine.h"

namespace {

constexpr int kRows = 100000;

struct Fixture : nomra::bench::BenchList {
  Fixture() {
    for (int i = 0; i < kRows; ++i) {
      const std::string folder = "/home/user/music/Artist " + std::to_string(i % 500) + "/";
      const std::string name = "0" + std::to_string(i % 9 + 1) + " - Artist " + std::to_string(i % 500) +
                               " - Song title number " + std::to_string(i) + ".mp3";
      nomra::core::FileEntry* row = state.list.Add(folder + name);
      (*row)[nomra::core::kColPath] = folder;
      (*row)[nomra::core::kColOldName] = name;
      (*row)[nomra::core::kColNewName] = name;
    }
  }
};

void EvaluateAllRows(benchmark::State& state, const std::string& structure) {
  Fixture f;
  std::size_t bytes = 0;
  for (auto _ : state) {
    for (int row = 1; row <= kRows; ++row) {
      const std::string result = nomra::structure::EvaluateStructure(f.state.list.Item(row), structure);
      bytes += result.size();
    }
  }
  benchmark::DoNotOptimize(bytes);
  state.counters["rows"] = kRows;
  state.counters["rows_per_second"] = benchmark::Counter(
      static_cast<double>(kRows) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_NameFamilyAndCaseBrackets(benchmark::State& state) {
  EvaluateAllRows(state, "<NAME>_<NAME_M(2,5)>_<UC><EXT></UC>.<EXT>");
}
BENCHMARK(BM_NameFamilyAndCaseBrackets)->Unit(benchmark::kMillisecond);

void BM_NamePartAndFind(benchmark::State& state) {
  EvaluateAllRows(state,
                  "<NAMEPART(\" - \",2)> - <NAMEPART(\" - \",3)>_<NAME_L(find(\" - \",2,-1))>_"
                  "<NAME_M(find(\"number\",1,7),find(\".\",1,-1))>_<WC><NAMEPART(\"-\",1,1)></WC><.EXT>");
}
BENCHMARK(BM_NamePartAndFind)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
