#pragma once
// Random batches of renames and the check run after each, shared by every
// test that throws them at a volume: chains, swaps, cycles up to ten rows,
// two rows to one name, names held by files outside the list, rows whose
// file vanished, changes of case only.
#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "commit/CommitFileSystem.h"

namespace nomra::testing {

// The default run throws the same batches every time, so a failure there
// is the change's and not the dice's. NOMRA_COMMIT_SEED repeats any run;
// the soak (NOMRA_RANDOM_SOAK=1, the build target `soak`) draws a new seed
// each time and throws ten times as many batches.
std::uint64_t ChooseSeed();
int BatchCount(int usual);

struct BatchPlan {
  std::vector<std::string> names;  // of the rows, in list order
  std::vector<std::string> targets;
  std::vector<bool> vanished;
  std::vector<std::string> foreign;  // files the list doesn't hold

  std::string Describe() const;
};

// Names are "n0" to "n29" with the first letter in either case. Where names
// ignore case, no two files ever differ in case alone: each name on disk has
// one spelling, and only a row's own change of case spells it otherwise.
class BatchGenerator {
 public:
  BatchGenerator(std::uint64_t seed, bool caseSensitive) : random_(seed), caseSensitive_(caseSensitive) {}

  std::string Fold(const std::string& name) const;
  BatchPlan Next();

  // Whether every pending row can get its name: nothing vanished, no two
  // rows want one name, and no wanted name is kept by a row or held by a
  // file outside the list.
  bool AllCanBeRenamed(const BatchPlan& plan) const;

 private:
  int Uniform(int low, int high);
  std::string NewNameOnDisk(std::set<std::string>& taken);
  void MakeCycle(BatchPlan& plan, std::vector<bool>& assigned);
  std::string PickTarget(const BatchPlan& plan, int row);

  std::mt19937_64 random_;
  bool caseSensitive_;
};

struct BatchVolume {
  // Holds one folder per batch, "batch" and its number.
  std::string root;
  // The commit's journal and protocol go here.
  std::string dataFolder;
  CaseMode mode = CaseMode::Sensitive;
  // Some volumes refuse the name a file takes on its way through a cycle or
  // a change of case; there a batch that could be done whole may leave rows
  // pending, which the other checks still hold to account.
  bool mayRefuseTemporaryNames = false;
};

// Lays out the batch on the volume, commits the whole list and checks that
// no content was lost or doubled, that every row was renamed to its target
// or is still pending and reported, and that the list's keys name exactly
// the files on disk. Failures are recorded as the test's own.
void RunBatch(const BatchVolume& volume, const BatchGenerator& generator, const BatchPlan& plan, int number);

}  // namespace nomra::testing
