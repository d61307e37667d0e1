// The commit journal on disk: the plan is there before the first rename, a
// move to a temporary name is journaled before it happens, and the journal
// goes when the batch ends.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <stdexcept>

#include "commit/CommitExecution.h"
#include "commit/CommitFixture.h"
#include "commit/JournalFormat.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;
using CommitJournaling = CommitTest;

const std::string kMark(kTemporaryMark);

std::optional<JournalContent> JournalAt(const std::string& path) {
  if (!Exists(path)) return std::nullopt;
  return ParseJournal(ReadWholeFile(path));
}

Names NamesIn(const std::string& folder) {
  Names names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

Names Finals(const JournalContent& content) {
  Names finals;
  for (const JournalPlanEntry& entry : content.plan) finals.push_back(entry.final);
  return finals;
}

TEST_F(CommitJournaling, PlanIsOnDiskAtTheFirstRenameAndGoneAfterTheBatch) {
  AddRow("a");
  AddRow("b");
  AddRow("c");
  Rename("a", "x");
  Rename("c", "z");
  std::optional<JournalContent> atFirstRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    if (fileSystem.renames.size() == 1) atFirstRename = JournalAt(JournalPath());
  };

  const CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  ASSERT_TRUE(atFirstRename.has_value()) << "no journal when the first rename began";
  EXPECT_TRUE(atFirstRename->headerOk);
  EXPECT_FALSE(atFirstRename->tornTail);
  ASSERT_EQ(atFirstRename->plan.size(), 2u) << "the row without a change is not in the plan";
  EXPECT_EQ(atFirstRename->plan[0].source, PathOf("a"));
  EXPECT_EQ(atFirstRename->plan[0].final, PathOf("x"));
  EXPECT_EQ(atFirstRename->plan[1].source, PathOf("c"));
  EXPECT_EQ(atFirstRename->plan[1].final, PathOf("z"));
  EXPECT_TRUE(atFirstRename->temporaries.empty()) << "plain renames write nothing more";
  EXPECT_FALSE(Exists(JournalPath()));
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "x", "z"}));
}

TEST_F(CommitJournaling, BlockedRowsAreNotInThePlan) {
  AddRow("a");
  AddForeignFile("taken");
  AddRow("b");
  Rename("a", "taken");
  Rename("b", "y");
  std::optional<JournalContent> atFirstRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    if (fileSystem.renames.size() == 1) atFirstRename = JournalAt(JournalPath());
  };

  CommitAll();

  ASSERT_TRUE(atFirstRename.has_value());
  EXPECT_EQ(Finals(*atFirstRename), Names{PathOf("y")});
}

TEST_F(CommitJournaling, MoveToATemporaryNameIsJournaledBeforeItHappens) {
  AddRow("a", "alpha");
  AddRow("b", "beta");
  Rename("a", "b");
  Rename("b", "a");
  std::vector<std::optional<JournalContent>> atEachRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    atEachRename.push_back(JournalAt(JournalPath()));
  };

  CommitAll();

  ASSERT_EQ(fileSystem.renames.size(), 3u);
  EXPECT_EQ(fileSystem.renames[0], std::make_pair(PathOf("a"), PathOf("b") + kMark));
  ASSERT_TRUE(atEachRename[0].has_value());
  ASSERT_EQ(atEachRename[0]->temporaries.size(), 1u);
  EXPECT_EQ(atEachRename[0]->temporaries[0].source, PathOf("a"));
  EXPECT_EQ(atEachRename[0]->temporaries[0].temporary, PathOf("b") + kMark);
  EXPECT_EQ(atEachRename[0]->temporaries[0].final, PathOf("b"));
  EXPECT_EQ(Finals(*atEachRename[0]), (Names{PathOf("b"), PathOf("a")}));
  ASSERT_TRUE(atEachRename[2].has_value()) << "the journal stays until the temporary names are given up";
  EXPECT_EQ(atEachRename[2]->temporaries.size(), 1u);
  EXPECT_FALSE(Exists(JournalPath()));
  EXPECT_EQ(ContentOf("a"), "beta");
  EXPECT_EQ(ContentOf("b"), "alpha");
}

TEST_F(CommitJournaling, ForeignFileUnderTheTemporaryNameIsNotJournaled) {
  AddRow("a");
  AddRow("b");
  AddForeignFile("b" + kMark, "foreign");
  Rename("a", "b");
  Rename("b", "a");
  std::optional<JournalContent> atFirstRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    if (fileSystem.renames.size() == 1) atFirstRename = JournalAt(JournalPath());
  };

  CommitAll();

  ASSERT_TRUE(atFirstRename.has_value());
  EXPECT_TRUE(atFirstRename->temporaries.empty());
  EXPECT_EQ(ContentOf("b" + kMark), "foreign");
}

TEST_F(CommitJournaling, SingleRowIsJournaledToo) {
  AddRow("a");
  Rename("a", "x");
  std::optional<JournalContent> atRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) { atRename = JournalAt(JournalPath()); };

  const CommitResult result = CommitRow(1);

  EXPECT_TRUE(result.notRenamed.empty());
  ASSERT_TRUE(atRename.has_value());
  EXPECT_EQ(Finals(*atRename), Names{PathOf("x")});
  EXPECT_FALSE(Exists(JournalPath()));
}

TEST_F(CommitJournaling, NothingToRenameWritesNoJournal) {
  AddRow("a");

  const CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(ReadWholeFile(ProtocolPath()), "");
  EXPECT_FALSE(Exists(JournalPath()));
}

// A journal a crash left is the next start's to read; this batch doesn't
// replace it, says so in one row and renames all the same.
TEST_F(CommitJournaling, JournalAlreadyThereIsOneReportRowKeptWholeAndTheRenamesStillHappen) {
  const std::string left = std::string(kJournalHeader) + JournalPlanRecord("/old/a", "/old/b");
  data.WriteFile("commit.journal", left);
  AddRow("a");
  Rename("a", "x");

  const CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), Names{"MsgText06"});
  EXPECT_EQ(result.notRenamed[0].about, "the commit journal");
  EXPECT_NE(result.notRenamed[0].Describe().find("one is there already"), std::string::npos)
      << result.notRenamed[0].Describe();
  EXPECT_EQ(ReadWholeFile(JournalPath()), left);
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
  EXPECT_EQ(NamesIn(data.Path()), (Names{"commit.journal", "renamed.nrp"})) << "no draft is left behind";
}

struct SimulatedCrash : std::runtime_error {
  SimulatedCrash() : std::runtime_error("simulated crash") {}
};

TEST_F(CommitJournaling, BatchCutShortByAnExceptionLeavesItsJournal) {
  AddRow("a");
  AddRow("b");
  Rename("a", "b");
  Rename("b", "a");
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    if (fileSystem.renames.size() == 2) throw SimulatedCrash();
  };

  EXPECT_THROW(CommitAll(), SimulatedCrash);

  const std::optional<JournalContent> left = JournalAt(JournalPath());
  ASSERT_TRUE(left.has_value());
  EXPECT_EQ(left->temporaries.size(), 1u);
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "b" + kMark}));
}

}  // namespace
}  // namespace nomra::testing
