// The renaming actions over 100,000 rows, without opening a file, side by
// side with the structure language's plain <NAME>: each run is the whole
// command as the window gives it (the walk over the scope, the status text
// of every row and the refresh of the list's state), and the refresh alone
// is measured too. Prints rows per second.
#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>

#include "BenchList.h"
#include "actions/FrmNumber.h"
#include "actions/FrmRenumber.h"
#include "actions/FrmReplace.h"
#include "actions/FrmTrim.h"
#include "rename/ActionContext.h"
#include "structure/ApplyStructure.h"

namespace {

constexpr int kRows = 100000;

struct Fixture : nomra::bench::BenchList {
  Fixture() {
    texts.rowOfCount = "File %1 of %2";
    for (int i = 0; i < kRows; ++i) {
      const std::string folder = "/home/user/music/Artist " + std::to_string(i % 500) + "/";
      const std::string name = std::to_string(i + 1) + " - Artist_" + std::to_string(i % 500) +
                               " - Song title number " + std::to_string(i) + ".mp3";
      nomra::core::FileEntry* row = state.list.Add(folder + name);
      (*row)[nomra::core::kColPath] = folder;
      (*row)[nomra::core::kColOldName] = name;
      (*row)[nomra::core::kColNewName] = name;
    }
  }
  nomra::rename::ActionContext Actions() { return {List(), texts, script, fs}; }
  void Reset() {
    state.list.ForEach(
        [](nomra::core::FileEntry& row) { row[nomra::core::kColNewName] = row[nomra::core::kColOldName]; });
  }
};

void Report(benchmark::State& state) {
  state.counters["rows"] = kRows;
  state.counters["rows_per_second"] = benchmark::Counter(
      static_cast<double>(kRows) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void RunEach(benchmark::State& state, const std::function<void(Fixture&)>& run) {
  Fixture f;
  for (auto _ : state) {
    state.PauseTiming();
    f.Reset();
    state.ResumeTiming();
    run(f);
  }
  Report(state);
}

void BM_StructurePlainName(benchmark::State& state) {
  RunEach(state, [](Fixture& f) { nomra::structure::ApplyStructure(f.Actions(), "<NAME><.EXT>"); });
}
BENCHMARK(BM_StructurePlainName)->Unit(benchmark::kMillisecond);

void BM_ReplaceText(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmReplace dialog;
    dialog.Model().SetText("txtToRep", "_");
    dialog.Model().SetText("txtRepBy", " ");
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_ReplaceText)->Unit(benchmark::kMillisecond);

void BM_ReplaceRegularExpression(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmReplace dialog;
    dialog.Model().SetText("txtToRep", "^(\\d+) - (.*)$");
    dialog.Model().SetText("txtRepBy", "$2 [$1]");
    dialog.Model().SetNumber("chkRegExp", 1);
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_ReplaceRegularExpression)->Unit(benchmark::kMillisecond);

void BM_RemoveSpecialCharacters(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmReplace dialog;
    dialog.Model().SetOption("optFollowingChr", true);
    dialog.Model().SetNumber("cmbRemove", 2);
    dialog.Model().SetOption("optRemove", true);
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_RemoveSpecialCharacters)->Unit(benchmark::kMillisecond);

void BM_TrimFirstCharacters(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmTrim dialog;
    dialog.Model().SetOption("opt1(1)", true);
    dialog.Model().SetText("txtPos(0)", "12");
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_TrimFirstCharacters)->Unit(benchmark::kMillisecond);

void BM_TrimPathLimit(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmTrim dialog;
    dialog.Model().SetOption("opt1(5)", true);
    dialog.Model().SetText("txtMaxPath", "60");
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_TrimPathLimit)->Unit(benchmark::kMillisecond);

void BM_NumberSuffixAutoWidth(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmNumber dialog;
    dialog.Model().SetOption("optSuffix", true);
    dialog.Model().SetNumber("cmbAnz", 0);
    dialog.Model().SetNumber("chkIntChr", 1);
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_NumberSuffixAutoWidth)->Unit(benchmark::kMillisecond);

void BM_NumberRandomOrder(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmNumber dialog;
    dialog.Model().SetNumber("chkRandom", 1);
    dialog.SeedRandomOrder(7);
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_NumberRandomOrder)->Unit(benchmark::kMillisecond);

void BM_RenumberOpenAndOk(benchmark::State& state) {
  RunEach(state, [](Fixture& f) {
    nomra::actions::FrmRenumber dialog;
    dialog.Open(f.Actions());
    dialog.Run(f.Actions());
  });
}
BENCHMARK(BM_RenumberOpenAndOk)->Unit(benchmark::kMillisecond);

void BM_RefreshAlone(benchmark::State& state) {
  RunEach(state, [](Fixture& f) { f.preview.Refresh(); });
}
BENCHMARK(BM_RefreshAlone)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
