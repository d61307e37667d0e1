// Hundreds of random batches: chains, swaps, cycles up to ten rows, two rows
// to one name, names held by files outside the list, rows whose file
// vanished, changes of case only. After each: no content lost or doubled,
// every row renamed to its target or still pending and reported, and the
// list's keys naming exactly the files on disk.
#include <gtest/gtest.h>

#include <iostream>
#include <string>

#include "commit/CommitFileSystem.h"
#include "commit/RandomBatch.h"
#include "support/TempFolder.h"

namespace nomra::testing {
namespace {

constexpr int kBatches = 200;  // per kind of volume

class RandomCommit : public ::testing::TestWithParam<CaseMode> {
 protected:
  TempFolder files;
  TempFolder data;
};

TEST_P(RandomCommit, BatchesKeepEveryFileAndTheListMatchesTheDisk) {
  const std::uint64_t seed = ChooseSeed();
  std::cout << "[ seed     ] " << seed << " (" << CaseModeName(GetParam()) << "; NOMRA_COMMIT_SEED=" << seed
            << " repeats it)\n";
  RecordProperty("seed", std::to_string(seed));
  BatchGenerator generator(seed, GetParam() == CaseMode::Sensitive);
  const BatchVolume volume{files.Path(), data.Path(), GetParam(), false};
  for (int number = 0; number < BatchCount(kBatches); ++number) {
    const BatchPlan plan = generator.Next();
    SCOPED_TRACE("seed " + std::to_string(seed) + ", batch " + std::to_string(number) + ":\n" + plan.Describe());
    RunBatch(volume, generator, plan, number);
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Volumes, RandomCommit,
                         ::testing::Values(CaseMode::Sensitive, CaseMode::InsensitiveRules,
                                           CaseMode::InsensitiveVolume),
                         [](const ::testing::TestParamInfo<CaseMode>& info) {
                           switch (info.param) {
                             case CaseMode::Sensitive: return std::string("CaseSensitive");
                             case CaseMode::InsensitiveRules: return std::string("CaseInsensitiveRules");
                             case CaseMode::InsensitiveVolume: return std::string("CaseInsensitiveVolume");
                           }
                           return std::string("Unknown");
                         });

}  // namespace
}  // namespace nomra::testing
