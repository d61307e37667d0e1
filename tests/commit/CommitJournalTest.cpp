// The commit journal on disk: the plan and the moves to temporary names it
// foresees are there before the first rename, a move the plan didn't
// foresee is journaled before it happens, and the journal goes when the
// batch ends.
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
const std::string kMark(commit::kTemporaryMark);

std::optional<commit::JournalContent> JournalAt(const std::string& path) {
  if (!Exists(path)) return std::nullopt;
  return commit::ParseJournal(ReadWholeFile(path));
}

class CommitJournaling : public CommitTest {
 protected:
  // What the journal holds at the moment the first rename is made.
  void KeepJournalAtFirstRename(std::optional<commit::JournalContent>& kept) {
    fileSystem.beforeRename = [&](const std::string&, const std::string&) {
      if (fileSystem.renames.size() == 1) kept = JournalAt(JournalPath());
    };
  }
};

Names NamesIn(const std::string& folder) {
  Names names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

Names Finals(const commit::JournalContent& content) {
  Names finals;
  for (const commit::JournalPlanEntry& entry : content.plan) finals.push_back(entry.final);
  return finals;
}

TEST_F(CommitJournaling, PlanIsOnDiskAtTheFirstRenameAndGoneAfterTheBatch) {
  AddRow("a");
  AddRow("b");
  AddRow("c");
  Rename("a", "x");
  Rename("c", "z");
  std::optional<commit::JournalContent> atFirstRename;
  KeepJournalAtFirstRename(atFirstRename);

  const commit::CommitResult result = CommitAll();

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
  std::optional<commit::JournalContent> atFirstRename;
  KeepJournalAtFirstRename(atFirstRename);

  CommitAll();

  ASSERT_TRUE(atFirstRename.has_value());
  EXPECT_EQ(Finals(*atFirstRename), Names{PathOf("y")});
}

TEST_F(CommitJournaling, MoveToATemporaryNameIsJournaledBeforeItHappens) {
  AddRow("a", "alpha");
  AddRow("b", "beta");
  Rename("a", "b");
  Rename("b", "a");
  std::vector<std::optional<commit::JournalContent>> atEachRename;
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

// The first row can't move (its temporary name is taken), so the second
// finds its new name still held and goes through a temporary name of its
// own: that one is journaled, the foreign file's name never is.
TEST_F(CommitJournaling, ForeignFileUnderTheTemporaryNameIsNotJournaled) {
  AddRow("a");
  AddRow("b");
  AddForeignFile("b" + kMark, "foreign");
  Rename("a", "b");
  Rename("b", "a");
  std::vector<std::optional<commit::JournalContent>> atEachRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    atEachRename.push_back(JournalAt(JournalPath()));
  };

  CommitAll();

  ASSERT_FALSE(atEachRename.empty());
  for (const std::optional<commit::JournalContent>& journal : atEachRename) {
    ASSERT_TRUE(journal.has_value());
    ASSERT_EQ(journal->temporaries.size(), 1u);
    EXPECT_EQ(journal->temporaries[0].temporary, PathOf("a") + kMark);
  }
  EXPECT_EQ(ContentOf("b" + kMark), "foreign");
}

// A plain rename comes first, so the moves to temporary names of the swap
// and of the cycle of three can only be in the journal by being foreseen;
// and nothing is appended while the batch runs.
TEST_F(CommitJournaling, TemporaryNamesOfASwapAreInTheJournalBeforeTheFirstRename) {
  for (const char* name : {"c", "a", "b", "d", "e", "f"}) AddRow(name);
  Rename("c", "x");
  Rename("a", "b");
  Rename("b", "a");
  Rename("d", "e");
  Rename("e", "f");
  Rename("f", "d");
  std::vector<std::string> textAtEachRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    textAtEachRename.push_back(Exists(JournalPath()) ? ReadWholeFile(JournalPath()) : "");
  };

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  ASSERT_FALSE(textAtEachRename.empty());
  EXPECT_EQ(fileSystem.renames[0], std::make_pair(PathOf("c"), PathOf("x"))) << "a plain rename comes first";
  const commit::JournalContent atFirstRename = commit::ParseJournal(textAtEachRename[0]);
  ASSERT_EQ(atFirstRename.temporaries.size(), 3u);
  const std::vector<std::pair<std::string, std::string>> expected{{"a", "b"}, {"d", "e"}, {"e", "f"}};
  for (std::size_t at = 0; at < expected.size(); ++at) {
    EXPECT_EQ(atFirstRename.temporaries[at].source, PathOf(expected[at].first));
    EXPECT_EQ(atFirstRename.temporaries[at].temporary, PathOf(expected[at].second) + kMark);
    EXPECT_EQ(atFirstRename.temporaries[at].final, PathOf(expected[at].second));
  }
  EXPECT_EQ(fileSystem.TemporaryRenames(), 3) << "each foreseen move happened";
  for (const std::string& text : textAtEachRename) EXPECT_EQ(text, textAtEachRename[0]);
  EXPECT_FALSE(Exists(JournalPath()));
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "b", "d", "e", "f", "x"}));
}

// A change of case alone, where case doesn't count, holds its own new name.
TEST_F(CommitJournaling, ChangeOfCaseAloneIsForeseenWhereCaseDoesntCount) {
  fileSystem.mode = CaseMode::InsensitiveVolume;
  AddRow("c");
  AddRow("a");
  Rename("c", "x");
  Rename("a", "A");
  std::optional<commit::JournalContent> atFirstRename;
  KeepJournalAtFirstRename(atFirstRename);

  CommitAll();

  ASSERT_TRUE(atFirstRename.has_value());
  ASSERT_EQ(atFirstRename->temporaries.size(), 1u);
  EXPECT_EQ(atFirstRename->temporaries[0].source, PathOf("a"));
  EXPECT_EQ(atFirstRename->temporaries[0].temporary, PathOf("A") + kMark);
  EXPECT_EQ(NamesOnDisk(), (Names{"A", "x"}));
}

// The new name was free when the plan listed the folder; a file that came
// after it sends the row through a temporary name nobody foresaw, which is
// journaled just before the move.
TEST_F(CommitJournaling, AnUnforeseenTemporaryNameIsJournaledAtItsRename) {
  AddRow("c");
  AddRow("a", "alpha");
  Rename("c", "x");
  Rename("a", "b");
  std::vector<std::optional<commit::JournalContent>> atEachRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) {
    if (fileSystem.renames.size() == 1) files.WriteFile("b", "came after the plan");
    atEachRename.push_back(JournalAt(JournalPath()));
  };

  const commit::CommitResult result = CommitAll();

  ASSERT_GE(fileSystem.renames.size(), 3u);
  EXPECT_EQ(fileSystem.renames[2], std::make_pair(PathOf("a"), PathOf("b") + kMark));
  ASSERT_TRUE(atEachRename[0].has_value());
  EXPECT_TRUE(atEachRename[0]->temporaries.empty()) << "nothing was foreseen";
  ASSERT_TRUE(atEachRename[2].has_value());
  ASSERT_EQ(atEachRename[2]->temporaries.size(), 1u);
  EXPECT_EQ(atEachRename[2]->temporaries[0].source, PathOf("a"));
  EXPECT_EQ(atEachRename[2]->temporaries[0].temporary, PathOf("b") + kMark);
  EXPECT_EQ(atEachRename[2]->temporaries[0].final, PathOf("b"));
  // The file that came keeps its name; the release of the temporary name
  // fails and is reported.
  EXPECT_EQ(ContentOf("b"), "came after the plan");
  EXPECT_EQ(ContentOf("b" + kMark), "alpha");
  EXPECT_FALSE(result.notRenamed.empty());
}

TEST_F(CommitJournaling, SingleRowIsJournaledToo) {
  AddRow("a");
  Rename("a", "x");
  std::optional<commit::JournalContent> atRename;
  fileSystem.beforeRename = [&](const std::string&, const std::string&) { atRename = JournalAt(JournalPath()); };

  const commit::CommitResult result = CommitRow(1);

  EXPECT_TRUE(result.notRenamed.empty());
  ASSERT_TRUE(atRename.has_value());
  EXPECT_EQ(Finals(*atRename), Names{PathOf("x")});
  EXPECT_FALSE(Exists(JournalPath()));
}

TEST_F(CommitJournaling, NothingToRenameWritesNoJournal) {
  AddRow("a");

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(ReadWholeFile(ProtocolPath()), "");
  EXPECT_FALSE(Exists(JournalPath()));
}

// A journal a crash left is the next start's to read; this batch doesn't
// replace it, says so in one row and renames all the same.
TEST_F(CommitJournaling, JournalAlreadyThereIsOneReportRowKeptWholeAndTheRenamesStillHappen) {
  const std::string left = std::string(commit::kJournalHeader) + commit::JournalPlanRecord("/old/a", "/old/b");
  data.WriteFile("commit.journal", left);
  AddRow("a");
  Rename("a", "x");

  const commit::CommitResult result = CommitAll();

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

  const std::optional<commit::JournalContent> left = JournalAt(JournalPath());
  ASSERT_TRUE(left.has_value());
  EXPECT_EQ(left->temporaries.size(), 1u);
  EXPECT_EQ(NamesOnDisk(), (Names{"b", "b" + kMark}));
}

}  // namespace
}  // namespace nomra::testing
