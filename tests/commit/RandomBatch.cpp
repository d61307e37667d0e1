#include "commit/RandomBatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <numeric>
#include <sstream>
#include <stdexcept>

#include "base/CaseMap.h"
#include "commit/CommitFixture.h"
#include "commit/RenameFiles.h"
#include "core/AddFile.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::testing {

namespace {

constexpr int kMaxRows = 12;
constexpr int kMaxForeignFiles = 3;
constexpr int kMaxCycle = 10;
constexpr int kFreshNames = 6;  // few, so that two rows often want one of them

void WriteFileAt(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary);
  out << content;
  if (!out) throw std::runtime_error("cannot write " + path);
}

// Each file of the folder with its content, read once per batch.
std::map<std::string, std::string> FilesIn(const std::string& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files.emplace(entry.path().filename(), ReadWholeFile(entry.path()));
  }
  return files;
}

std::vector<std::string> SortedContents(const std::map<std::string, std::string>& files) {
  std::vector<std::string> contents;
  for (const auto& [name, content] : files) contents.push_back(content);
  std::sort(contents.begin(), contents.end());
  return contents;
}

bool Reported(const commit::CommitResult& result, const std::string& path) {
  const std::string quoted = "\"" + path + "\"";
  return std::any_of(result.notRenamed.begin(), result.notRenamed.end(), [&](const commit::ReportRow& row) {
    return !row.arguments.empty() && row.arguments[0] == quoted;
  });
}

}  // namespace

namespace {

constexpr std::uint64_t kFixedSeed = 20261125;
constexpr int kSoakFactor = 10;

bool Soaking() {
  const char* soak = std::getenv("NOMRA_RANDOM_SOAK");
  return soak != nullptr && std::string(soak) == "1";
}

}  // namespace

std::uint64_t ChooseSeed() {
  if (const char* fixed = std::getenv("NOMRA_COMMIT_SEED")) return std::strtoull(fixed, nullptr, 10);
  if (!Soaking()) return kFixedSeed;
  std::random_device device;
  return (static_cast<std::uint64_t>(device()) << 32) ^ device();
}

int BatchCount(int usual) { return Soaking() ? usual * kSoakFactor : usual; }

std::string BatchPlan::Describe() const {
  std::ostringstream out;
  for (std::size_t i = 0; i < names.size(); ++i) {
    out << "  " << names[i] << " -> " << targets[i] << (vanished[i] ? " (vanished)" : "") << '\n';
  }
  for (const std::string& name : foreign) out << "  foreign " << name << '\n';
  return out.str();
}

std::string BatchGenerator::Fold(const std::string& name) const { return caseSensitive_ ? name : base::ToLower(name); }

BatchPlan BatchGenerator::Next() {
  BatchPlan plan;
  std::set<std::string> taken;
  const int rows = Uniform(1, kMaxRows);
  for (int i = 0; i < rows; ++i) plan.names.push_back(NewNameOnDisk(taken));
  const int foreign = Uniform(0, kMaxForeignFiles);
  for (int i = 0; i < foreign; ++i) plan.foreign.push_back(NewNameOnDisk(taken));
  plan.targets = plan.names;
  std::vector<bool> assigned(static_cast<std::size_t>(rows), false);
  if (rows >= 2 && Uniform(0, 99) < 40) MakeCycle(plan, assigned);
  for (int i = 0; i < rows; ++i) {
    if (!assigned[static_cast<std::size_t>(i)]) plan.targets[static_cast<std::size_t>(i)] = PickTarget(plan, i);
    plan.vanished.push_back(Uniform(0, 99) < 6);
  }
  return plan;
}

bool BatchGenerator::AllCanBeRenamed(const BatchPlan& plan) const {
  if (std::find(plan.vanished.begin(), plan.vanished.end(), true) != plan.vanished.end()) return false;
  std::set<std::string> kept;
  for (const std::string& name : plan.foreign) kept.insert(Fold(name));
  for (std::size_t i = 0; i < plan.names.size(); ++i) {
    if (plan.names[i] == plan.targets[i]) kept.insert(Fold(plan.names[i]));
  }
  std::set<std::string> wanted;
  for (std::size_t i = 0; i < plan.names.size(); ++i) {
    if (plan.names[i] == plan.targets[i]) continue;
    const std::string target = Fold(plan.targets[i]);
    if (kept.contains(target) || !wanted.insert(target).second) return false;
  }
  return true;
}

int BatchGenerator::Uniform(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

std::string BatchGenerator::NewNameOnDisk(std::set<std::string>& taken) {
  for (;;) {
    const std::string name = (Uniform(0, 1) == 0 ? "n" : "N") + std::to_string(Uniform(0, 29));
    if (taken.insert(Fold(name)).second) return name;
  }
}

void BatchGenerator::MakeCycle(BatchPlan& plan, std::vector<bool>& assigned) {
  std::vector<std::size_t> order(plan.names.size());
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), random_);
  const auto length = static_cast<std::size_t>(Uniform(2, std::min<int>(kMaxCycle, static_cast<int>(order.size()))));
  for (std::size_t j = 0; j < length; ++j) {
    plan.targets[order[j]] = plan.names[order[(j + 1) % length]];
    assigned[order[j]] = true;
  }
}

std::string BatchGenerator::PickTarget(const BatchPlan& plan, int row) {
  const auto index = static_cast<std::size_t>(row);
  const int rows = static_cast<int>(plan.names.size());
  const int pick = Uniform(0, 99);
  if (pick < 15) return plan.names[index];
  if (pick < 45 && rows > 1) {
    int other = Uniform(0, rows - 2);
    if (other >= row) ++other;
    return plan.names[static_cast<std::size_t>(other)];
  }
  if (pick < 55 && !plan.foreign.empty()) {
    return plan.foreign[static_cast<std::size_t>(Uniform(0, static_cast<int>(plan.foreign.size()) - 1))];
  }
  if (pick < 85) return "g" + std::to_string(Uniform(0, kFreshNames - 1));
  std::string flipped = plan.names[index];
  flipped[0] = flipped[0] == 'n' ? 'N' : 'n';
  return flipped;
}

void RunBatch(const BatchVolume& volume, const BatchGenerator& generator, const BatchPlan& plan, int number) {
  const std::string folder = volume.root + "batch" + std::to_string(number) + "/";
  std::filesystem::create_directories(folder);
  const std::size_t rowCount = plan.names.size();
  std::vector<std::string> contents;
  // What the folder holds when the commit starts, known without reading it.
  std::vector<std::string> contentsBefore;
  for (std::size_t i = 0; i < rowCount; ++i) {
    contents.push_back("batch " + std::to_string(number) + " row " + std::to_string(i));
    WriteFileAt(folder + plan.names[i], contents.back());
    if (!plan.vanished[i]) contentsBefore.push_back(contents.back());
  }
  for (std::size_t i = 0; i < plan.foreign.size(); ++i) {
    const std::string content = "foreign " + std::to_string(i);
    WriteFileAt(folder + plan.foreign[i], content);
    contentsBefore.push_back(content);
  }
  std::sort(contentsBefore.begin(), contentsBefore.end());

  ListParts<CommitFileSystem> list;
  CommitFileSystem& fileSystem = list.fileSystem;
  fileSystem.mode = volume.mode;
  list.texts.renamed = "Renamed";
  list.options.dataFolder = volume.dataFolder;
  fileSystem.ownFolder = volume.dataFolder;
  std::vector<core::FileEntry*> rows;
  for (std::size_t i = 0; i < rowCount; ++i) {
    std::string path = folder + plan.names[i];
    core::AddFile(list.load, path);
    rows.push_back(list.state.list.Find(path));
    ASSERT_NE(rows.back(), nullptr) << path;
  }
  list.preview.Refresh();
  for (std::size_t i = 0; i < rowCount; ++i) (*rows[i])[core::kColNewName] = plan.targets[i];
  list.preview.Refresh();
  for (std::size_t i = 0; i < rowCount; ++i) {
    if (plan.vanished[i]) std::remove((folder + plan.names[i]).c_str());
  }

  const commit::CommitResult result = commit::mdlRenameFiles(list.Commit(), commit::kWholeList, FixedLocalTime);
  list.preview.Refresh();

  const std::map<std::string, std::string> filesAfter = FilesIn(folder);
  EXPECT_EQ(SortedContents(filesAfter), contentsBefore) << "a file's content was lost or doubled";
  std::set<std::string> expectedNames(plan.foreign.begin(), plan.foreign.end());
  for (std::size_t i = 0; i < rowCount; ++i) {
    const core::FileEntry& row = *rows[i];
    const std::string original = folder + plan.names[i];
    SCOPED_TRACE("row " + plan.names[i] + " -> " + plan.targets[i]);
    if (plan.vanished[i]) {
      EXPECT_EQ(row.key, original);
      if (plan.names[i] != plan.targets[i]) {
        EXPECT_TRUE(Reported(result, original));
      }
      continue;
    }
    if (!row.HasPendingChange() && row[core::kColOldName] == plan.targets[i]) {
      EXPECT_EQ(row.key, folder + plan.targets[i]);
    } else {
      EXPECT_EQ(row[core::kColOldName], plan.names[i]);
      EXPECT_EQ(row[core::kColNewName], plan.targets[i]);
      EXPECT_EQ(row.key, original);
      EXPECT_TRUE(Reported(result, original)) << "a row left pending must be in the report";
    }
    EXPECT_EQ(row.key, folder + row[core::kColOldName]);
    const auto onDisk = filesAfter.find(row[core::kColOldName]);
    ASSERT_NE(onDisk, filesAfter.end()) << "the row's file must be on disk under its name";
    EXPECT_EQ(onDisk->second, contents[i]) << "the row's key must name its own file";
    EXPECT_TRUE(expectedNames.insert(row[core::kColOldName]).second) << "two rows hold one name";
  }
  std::set<std::string> namesAfter;
  for (const auto& [name, content] : filesAfter) namesAfter.insert(name);
  EXPECT_EQ(namesAfter, expectedNames) << "the files on disk must be the rows' and the foreign ones";
  if (!volume.mayRefuseTemporaryNames && generator.AllCanBeRenamed(plan)) {
    EXPECT_TRUE(result.notRenamed.empty())
        << "every row could have been renamed; first: " << result.notRenamed.front().Describe();
    EXPECT_EQ(list.state.changedCount, 0);
  }
}

}  // namespace nomra::testing
