// The start after a crash: files a batch left under a temporary name reach
// their final names, nothing else is renamed, and what can't be set right
// is told and its journal kept aside.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <stdexcept>

#include "commit/CommitExecution.h"
#include "commit/CommitFixture.h"
#include "commit/CommitRecovery.h"
#include "commit/JournalFormat.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;

const std::string kMark(commit::kTemporaryMark);

struct SimulatedCrash : std::runtime_error {
  SimulatedCrash() : std::runtime_error("simulated crash") {}
};

class CommitRecovery : public CommitTest {
 protected:
  // Commits the whole list and throws out of the Nth rename before it
  // reaches the disk, as a crash at that moment would stop the batch.
  void CommitCrashingAt(std::size_t renameNumber) {
    fileSystem.beforeRename = [this, renameNumber](const std::string&, const std::string&) {
      if (fileSystem.renames.size() == renameNumber) throw SimulatedCrash();
    };
    EXPECT_THROW(CommitAll(), SimulatedCrash) << "the batch has fewer renames than " << renameNumber;
    fileSystem.beforeRename = nullptr;
  }

  // The next start, with a fresh log of renames.
  commit::InterruptedCommit Recover() {
    fileSystem.renames.clear();
    return commit::RecoverInterruptedCommit(fileSystem, data.Path());
  }

  Names KeptJournals() const {
    Names kept;
    for (const auto& entry : std::filesystem::directory_iterator(data.Path())) {
      const std::string name = entry.path().filename().string();
      if (name.starts_with("commit.journal.") && name.ends_with(".left")) kept.push_back(name);
    }
    return kept;
  }

  static bool MentionsAll(const commit::InterruptedCommit& commit, const Names& parts) {
    return std::any_of(commit.unresolved.begin(), commit.unresolved.end(), [&](const std::string& line) {
      return std::all_of(parts.begin(), parts.end(),
                         [&](const std::string& part) { return line.find(part) != std::string::npos; });
    });
  }
};

TEST_F(CommitRecovery, SwapCutShortBeforeTheTemporaryNameWasGivenUpIsFinished) {
  AddRow("a", "alpha");
  AddRow("b", "beta");
  Rename("a", "b");
  Rename("b", "a");
  CommitCrashingAt(3);
  ASSERT_EQ(NamesOnDisk(), (Names{"a", "b" + kMark}));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(commit.found);
  EXPECT_EQ(commit.unresolved, Names{});
  EXPECT_EQ(commit.finished, Names{base::Quoted(PathOf("b" + kMark)) + " -> " + base::Quoted(PathOf("b"))});
  EXPECT_EQ(ContentOf("a"), "beta");
  EXPECT_EQ(ContentOf("b"), "alpha");
  EXPECT_FALSE(Exists(JournalPath()));
  EXPECT_EQ(KeptJournals(), Names{});
}

TEST_F(CommitRecovery, WithoutAJournalNothingIsFoundAndNothingRenamed) {
  AddRow("x" + kMark);

  const commit::InterruptedCommit commit = Recover();

  EXPECT_FALSE(commit.found);
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(NamesOnDisk(), Names{"x" + kMark});
}

// A swap, cycles of three and four, a plain rename and a chain: twelve
// renames, seven of them to temporary names, then seven releases; a crash
// before each of the nineteen in turn.
class CrashPoint : public CommitRecovery, public ::testing::WithParamInterface<int> {};

TEST_P(CrashPoint, EveryFileEndsUnderItsOldOrItsFinalNameWithItsContent) {
  const std::map<std::string, std::string> finals{{"a", "b"}, {"b", "a"}, {"c", "d"}, {"d", "e"},
                                                  {"e", "c"}, {"f", "g"}, {"h", "i"}, {"i", "j"},
                                                  {"k", "l"}, {"l", "m"}, {"m", "n"}, {"n", "k"}};
  for (const auto& [old, final] : finals) AddRow(old);
  for (const auto& [old, final] : finals) Rename(old, final);
  const std::multiset<std::string> before = Contents();

  CommitCrashingAt(static_cast<std::size_t>(GetParam()));
  const commit::InterruptedCommit commit = Recover();

  EXPECT_EQ(commit.unresolved, Names{});
  EXPECT_EQ(Contents(), before);
  EXPECT_FALSE(Exists(JournalPath()));
  for (const std::string& name : NamesOnDisk()) EXPECT_FALSE(name.ends_with(kMark)) << name;
  for (const auto& [old, final] : finals) {
    const std::string content = "content of " + old;
    const bool atOld = Exists(PathOf(old)) && ContentOf(old) == content;
    const bool atFinal = Exists(PathOf(final)) && ContentOf(final) == content;
    EXPECT_TRUE(atOld || atFinal) << old << " is under neither " << old << " nor " << final;
  }
  for (const auto& [from, to] : fileSystem.renames) {
    EXPECT_TRUE(from.ends_with(kMark)) << "only temporary names are moved, not " << from;
  }
}

INSTANTIATE_TEST_SUITE_P(BeforeEachRename, CrashPoint, ::testing::Range(1, 20));

// The other half of the swap never moved: the file can't go on, so it goes
// back, and the swap is as if it had never started.
TEST_F(CommitRecovery, TemporaryFileWhoseFinalNameIsTakenGoesBackToItsOldName) {
  AddRow("a", "alpha");
  AddRow("b", "beta");
  Rename("a", "b");
  Rename("b", "a");
  CommitCrashingAt(2);

  const commit::InterruptedCommit commit = Recover();

  EXPECT_EQ(commit.unresolved, Names{});
  ASSERT_EQ(commit.finished.size(), 1u);
  EXPECT_EQ(commit.finished[0], base::Quoted(PathOf("b" + kMark)) + " -> " + base::Quoted(PathOf("a")) +
                                    " (back to its old name: the final name is taken)");
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "b"}));
  EXPECT_EQ(ContentOf("a"), "alpha");
  EXPECT_EQ(ContentOf("b"), "beta");
  EXPECT_FALSE(Exists(JournalPath()));
}

TEST_F(CommitRecovery, TemporaryFileWhoseFinalAndOldNamesAreTakenStaysAndIsReported) {
  AddRow("a", "alpha");
  AddRow("b", "beta");
  Rename("a", "b");
  Rename("b", "a");
  CommitCrashingAt(2);
  files.WriteFile("a", "came in between");

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(commit.finished, Names{});
  EXPECT_TRUE(MentionsAll(commit, {base::Quoted(PathOf("b" + kMark)), "are both taken"}));
  EXPECT_EQ(ContentOf("b" + kMark), "alpha");
  EXPECT_EQ(ContentOf("b"), "beta");
  EXPECT_EQ(ContentOf("a"), "came in between");
  EXPECT_FALSE(Exists(JournalPath()));
  ASSERT_EQ(KeptJournals().size(), 1u);
  EXPECT_TRUE(MentionsAll(commit, {KeptJournals()[0], "will not be read again"}));
  EXPECT_FALSE(Recover().found) << "a kept journal is not read again";
}

TEST_F(CommitRecovery, TornLastRecordIsIgnoredAndTheWholeOnesAreDone) {
  files.WriteFile("b" + kMark, "alpha");
  files.WriteFile("d" + kMark, "gamma");
  const std::string torn = commit::JournalTemporaryRecord(PathOf("c"), PathOf("d" + kMark), PathOf("d"));
  data.WriteFile("commit.journal", std::string(commit::kJournalHeader) +
                                       commit::JournalPlanRecord(PathOf("a"), PathOf("b")) +
                                       commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b")) +
                                       torn.substr(0, torn.size() - 3));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_EQ(commit.unresolved, Names{});
  EXPECT_EQ(commit.finished.size(), 1u);
  EXPECT_EQ(ContentOf("b"), "alpha");
  EXPECT_EQ(ContentOf("d" + kMark), "gamma") << "the torn record names nothing";
  EXPECT_FALSE(Exists(JournalPath()));
}

TEST_F(CommitRecovery, JournalNamingFilesThatDontExistRenamesNothingAndReports) {
  data.WriteFile("commit.journal", std::string(commit::kJournalHeader) +
                                       commit::JournalPlanRecord(PathOf("p"), PathOf("q")) +
                                       commit::JournalTemporaryRecord(PathOf("x"), PathOf("y" + kMark), PathOf("y")));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_TRUE(MentionsAll(commit, {base::Quoted(PathOf("p")), base::Quoted(PathOf("q")), "under neither name"}));
  EXPECT_TRUE(MentionsAll(commit, {base::Quoted(PathOf("y" + kMark)), "under none of these names"}));
  EXPECT_EQ(KeptJournals().size(), 1u);
  EXPECT_EQ(NamesOnDisk(), Names{});
}

// The swap's move to a temporary name is in the journal before the first
// rename; a crash before it leaves a record of a move that never was.
TEST_F(CommitRecovery, APredictedTemporaryNameThatNeverCameIntoBeingIsPassedOver) {
  AddRow("c", "gamma");
  AddRow("a", "alpha");
  AddRow("b", "beta");
  Rename("c", "x");
  Rename("a", "b");
  Rename("b", "a");
  CommitCrashingAt(1);
  ASSERT_EQ(commit::ParseJournal(ReadWholeFile(JournalPath())).temporaries.size(), 1u);

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(commit.found);
  EXPECT_EQ(commit.unresolved, Names{});
  EXPECT_EQ(commit.finished, Names{});
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(ContentOf("a"), "alpha");
  EXPECT_EQ(ContentOf("b"), "beta");
  EXPECT_EQ(ContentOf("c"), "gamma");
  EXPECT_FALSE(Exists(JournalPath()));
}

// A planned file under none of its names is told once, by its plan record,
// not again by the record of a move that may never have happened.
TEST_F(CommitRecovery, PlannedFileUnderNoNameIsToldOnceThoughAMoveWasForeseen) {
  data.WriteFile("commit.journal", std::string(commit::kJournalHeader) +
                                       commit::JournalPlanRecord(PathOf("a"), PathOf("b")) +
                                       commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b")));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(fileSystem.renames.empty());
  ASSERT_EQ(commit.unresolved.size(), 2u) << ::testing::PrintToString(commit.unresolved);
  EXPECT_TRUE(MentionsAll(commit, {base::Quoted(PathOf("a")), base::Quoted(PathOf("b")), "under neither name"}));
  EXPECT_TRUE(MentionsAll(commit, {"will not be read again"}));
}

// A cycle of three cut short with two files under temporary names, the
// first row's move unforeseen and so journaled after the second's: undone
// latest row first, it goes back whole instead of jamming.
TEST_F(CommitRecovery, MovesAreUndoneInTheBatchsOrderNotTheJournals) {
  files.WriteFile("b" + kMark, "alpha");
  files.WriteFile("c" + kMark, "beta");
  files.WriteFile("c", "gamma");
  data.WriteFile("commit.journal", std::string(commit::kJournalHeader) +
                                       commit::JournalPlanRecord(PathOf("a"), PathOf("b")) +
                                       commit::JournalPlanRecord(PathOf("b"), PathOf("c")) +
                                       commit::JournalPlanRecord(PathOf("c"), PathOf("a")) +
                                       commit::JournalTemporaryRecord(PathOf("b"), PathOf("c" + kMark), PathOf("c")) +
                                       commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b")));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_EQ(commit.unresolved, Names{});
  EXPECT_EQ(ContentOf("a"), "alpha");
  EXPECT_EQ(ContentOf("b"), "beta");
  EXPECT_EQ(ContentOf("c"), "gamma");
  EXPECT_EQ(NamesOnDisk(), (Names{"a", "b", "c"}));
}

TEST_F(CommitRecovery, DamagedJournalIsDoneUpToTheDamageOnlyAndKept) {
  files.WriteFile("b" + kMark, "alpha");
  files.WriteFile("d" + kMark, "gamma");
  const std::string whole = std::string(commit::kJournalHeader) +
                            commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b"));
  data.WriteFile("commit.journal",
                 whole + "?garbage\n" + commit::JournalTemporaryRecord(PathOf("c"), PathOf("d" + kMark), PathOf("d")));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_EQ(fileSystem.renames.size(), 1u);
  EXPECT_EQ(ContentOf("b"), "alpha");
  EXPECT_EQ(ContentOf("d" + kMark), "gamma");
  EXPECT_TRUE(MentionsAll(commit, {"unreadable from byte " + std::to_string(whole.size())}));
  EXPECT_EQ(KeptJournals().size(), 1u);
}

TEST_F(CommitRecovery, ForeignHeaderRenamesNothingAndIsKept) {
  files.WriteFile("b" + kMark, "alpha");
  data.WriteFile("commit.journal",
                 "something else\n" + commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b")));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_TRUE(MentionsAll(commit, {"unreadable from byte 0"}));
  EXPECT_EQ(KeptJournals().size(), 1u);
}

TEST_F(CommitRecovery, EntryWhoseTemporaryNameIsNotOfItsFinalNameIsNotMoved) {
  files.WriteFile("other", "alpha");
  data.WriteFile("commit.journal", std::string(commit::kJournalHeader) +
                                       commit::JournalTemporaryRecord(PathOf("a"), PathOf("other"), PathOf("b")));

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_TRUE(MentionsAll(commit, {base::Quoted(PathOf("other")), "not a temporary name"}));
  EXPECT_EQ(NamesOnDisk(), Names{"other"});
}

TEST_F(CommitRecovery, MoveThatFailsIsReportedWithTheSystemsWords) {
  files.WriteFile("b" + kMark, "alpha");
  data.WriteFile("commit.journal", std::string(commit::kJournalHeader) +
                                       commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b")));
  fileSystem.refuseWith[1] = EIO;

  const commit::InterruptedCommit commit = Recover();

  EXPECT_TRUE(MentionsAll(commit, {base::Quoted(PathOf("b")), std::strerror(EIO)}));
  EXPECT_EQ(NamesOnDisk(), Names{"b" + kMark});
  EXPECT_EQ(KeptJournals().size(), 1u);
}

// The lock of a commit running in another Nomra: that commit's temporary
// names are its own to give up.
TEST_F(CommitRecovery, JournalLockedByARunningCommitIsLeftAlone) {
  files.WriteFile("b" + kMark, "alpha");
  const std::string text = std::string(commit::kJournalHeader) +
                           commit::JournalTemporaryRecord(PathOf("a"), PathOf("b" + kMark), PathOf("b"));
  data.WriteFile("commit.journal", text);
  const int held = open(JournalPath().c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_GE(held, 0);
  ASSERT_EQ(flock(held, LOCK_EX | LOCK_NB), 0);

  const commit::InterruptedCommit commit = Recover();
  close(held);

  EXPECT_FALSE(commit.found);
  EXPECT_TRUE(fileSystem.renames.empty());
  EXPECT_EQ(ReadWholeFile(JournalPath()), text);
}

TEST_F(CommitRecovery, UnresolvedLinesAreShownAsFaults) {
  commit::InterruptedCommit commit;
  commit.unresolved = {"one", "two"};

  commit::ShowUnresolved(frontEnd, commit);

  EXPECT_EQ(frontEnd.faults, (Names{"interrupted commit: one", "interrupted commit: two"}));
}

}  // namespace
}  // namespace nomra::testing
