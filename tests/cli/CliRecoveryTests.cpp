// Every start of nomra-cli first finishes a commit that a crash or a kill
// cut short, before any path loads; and a real kill -9 in the middle of a
// large commit is set right by the next start.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <thread>

#include "cli/CliTestFixture.h"
#include "commit/CommitExecution.h"
#include "commit/JournalFormat.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;

const std::string kMark(commit::kTemporaryMark);

class CliRecovery : public CliTest {
 protected:
  std::string JournalPath() const { return data.Path() + "commit.journal"; }
  void WriteJournal(const std::string& records) const {
    data.WriteFile("commit.journal", std::string(commit::kJournalHeader) + records);
  }
  Names KeptJournals() const {
    Names kept;
    for (const auto& entry : std::filesystem::directory_iterator(data.Path())) {
      const std::string name = entry.path().filename().string();
      if (name.ends_with(".left")) kept.push_back(name);
    }
    return kept;
  }
};

TEST_F(CliRecovery, TemporaryNameLeftByACrashIsFinishedBeforeThePathsLoad) {
  files.WriteFile("b" + kMark, "alpha");
  WriteJournal(commit::JournalTemporaryRecord(files.Path() + "a", files.Path() + "b" + kMark, files.Path() + "b"));

  const CliResult result = Run({"--json", files.Path()});

  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.err, "nomra-cli: interrupted commit: finished \"" + files.Path() + "b" + kMark + "\" -> \"" +
                            files.Path() + "b\"\n");
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColOldName), Names{"b"});
  EXPECT_EQ(ReadWholeFile(files.Path() + "b"), "alpha");
  EXPECT_FALSE(Exists(JournalPath()));
}

TEST_F(CliRecovery, WhatCantBeSetRightIsPrintedFailsTheRunAndTheJournalIsKept) {
  WriteJournal(commit::JournalPlanRecord(files.Path() + "gone", files.Path() + "never"));

  const CliResult result = Run({files.Path()});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: interrupted commit: \"" + files.Path() + "gone\" -> \"" + files.Path() +
                            "never\": the file is under neither name\n"),
            std::string::npos)
      << result.err;
  EXPECT_NE(result.err.find("nomra-cli: interrupted commit: the journal is kept as"), std::string::npos) << result.err;
  EXPECT_FALSE(Exists(JournalPath()));
  EXPECT_EQ(KeptJournals().size(), 1u);
}

TEST_F(CliRecovery, StartWithoutAJournalSaysNothing) {
  files.WriteFile("a", "alpha");
  const CliResult result = Run({files.Path()});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.err, "");
}

// 10,000 folders, each with "a" and "b" swapped: 20,000 renames, half of
// them to a temporary name, each journaled and flushed first.
class CliKilledCommit : public CliRecovery {
 protected:
  static constexpr int kFolders = 10000;

  static std::string Folder(int index) { return "d" + std::to_string(index) + "/"; }

  void MakeSwaps() const {
    for (int index = 0; index < kFolders; ++index) {
      files.WriteFile(Folder(index) + "a", "a" + std::to_string(index));
      files.WriteFile(Folder(index) + "b", "b" + std::to_string(index));
    }
  }

  int TemporaryFiles() const {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(files.Path())) {
      if (entry.path().filename().string().ends_with(kMark)) ++count;
    }
    return count;
  }

  static std::uintmax_t SizeOf(const std::string& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return error ? 0 : size;
  }
};

TEST_F(CliKilledCommit, KillNineInTheMiddleIsSetRightByTheNextStart) {
  MakeSwaps();
  CliLaunch launch;
  launch.arguments = {"--select", "a", "--scope", "selected", "--edit",   "b",
                      "--select", "b", "--edit",  "a",        "--commit", files.Path()};
  launch.environment["NOMRA_DATA_DIR"] = data.Path();
  RunningCli commit(launch);

  // The journal appears whole with its plan; it grows when the first move to
  // a temporary name is journaled, and that move follows at once.
  using Clock = std::chrono::steady_clock;
  const auto deadline = Clock::now() + std::chrono::minutes(5);
  std::uintmax_t planSize = 0;
  while (!commit.Ended() && Clock::now() < deadline) {
    const std::uintmax_t size = SizeOf(JournalPath());
    if (planSize == 0) planSize = size;
    if (planSize != 0 && size > planSize) break;
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  commit.Signal(SIGKILL);
  const CliResult killed = commit.Wait();
  const bool killedMidBatch = killed.exitStatus == -SIGKILL && Exists(JournalPath());
  const int temporaryFiles = TemporaryFiles();
  RecordProperty("killedMidBatch", killedMidBatch ? "yes" : "no");
  RecordProperty("temporaryFilesAfterTheKill", temporaryFiles);
  if (killedMidBatch) {
    std::printf("killed in the middle of the batch: %d files under a temporary name\n", temporaryFiles);
  } else {
    std::printf("the kill came too late (exit %d): only the final state is checked\n", killed.exitStatus);
  }

  TempFolder empty;
  const CliResult next = Run({empty.Path()});

  EXPECT_EQ(next.exitStatus, 0) << next.err.substr(0, 2000);
  EXPECT_EQ(next.err.find("nomra-cli: interrupted commit: finished"),
            killedMidBatch && temporaryFiles > 0 ? std::size_t{0} : std::string::npos)
      << next.err.substr(0, 2000);
  EXPECT_FALSE(Exists(JournalPath()));
  EXPECT_EQ(KeptJournals(), Names{});
  int swapped = 0;
  for (int index = 0; index < kFolders; ++index) {
    const std::string folder = files.Path() + Folder(index);
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    ASSERT_EQ(names, (Names{"a", "b"})) << "in " << folder;
    const std::string a = ReadWholeFile(folder + "a");
    const std::string b = ReadWholeFile(folder + "b");
    const std::string number = std::to_string(index);
    const bool kept = a == "a" + number && b == "b" + number;
    const bool done = a == "b" + number && b == "a" + number;
    ASSERT_TRUE(kept || done) << "in " << folder << ": a holds " << a << ", b holds " << b;
    if (done) ++swapped;
  }
  std::printf("%d of %d swaps were done\n", swapped, kFolders);
  if (killedMidBatch) {
    EXPECT_LT(swapped, kFolders) << "a batch killed in the middle can't have done every swap";
  }
}

}  // namespace
}  // namespace nomra::testing
