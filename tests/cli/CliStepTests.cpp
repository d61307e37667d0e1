// The options that act on the list, run in command-line order.
#include <gtest/gtest.h>

#include "cli/CliTestFixture.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;

class CliSteps : public CliTest {
 protected:
  // Loaded as single files, so the list holds them in this order.
  std::vector<std::string> LoadArguments(const Names& names) const {
    std::vector<std::string> paths;
    for (const std::string& name : names) paths.push_back(files.WriteFile(name));
    return paths;
  }

  JsonValue RunOn(const Names& names, std::vector<std::string> steps) const {
    const std::vector<std::string> paths = LoadArguments(names);
    steps.insert(steps.end(), paths.begin(), paths.end());
    return RunJson(steps);
  }
};

TEST_F(CliSteps, SelectWithTwoPatternsSelectsExactlyTheMatchingRows) {
  const JsonValue document = RunOn({"a.txt", "b.txt", "c.log", "d.txt"}, {"--select", "a.txt;*.log"});
  EXPECT_EQ(SelectedNames(document), (Names{"a.txt", "c.log"}));
}

TEST_F(CliSteps, LaterSelectReplacesTheSelection) {
  const JsonValue document = RunOn({"a.txt", "b.txt", "c.log", "d.txt"}, {"--select", "a.txt;*.log", "--select", "b*"});
  EXPECT_EQ(SelectedNames(document), Names{"b.txt"});
}

TEST_F(CliSteps, SelectIgnoresCase) {
  const JsonValue document = RunOn({"Photo.JPG", "notes.txt"}, {"--select", "*.jpg"});
  EXPECT_EQ(SelectedNames(document), Names{"Photo.JPG"});
}

TEST_F(CliSteps, EditWithoutScopeRenamesEveryRow) {
  const JsonValue document = RunOn({"a.txt", "b.txt"}, {"--edit", "same.txt"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"same.txt", "same.txt"}));
  EXPECT_EQ(document["changed"].number, 2);
}

TEST_F(CliSteps, SelectAndEditTwiceGiveTwoRowsTwoNames) {
  const JsonValue document = RunOn({"a.txt", "b.txt", "c.txt"}, {"--scope", "selected",  //
                                                                 "--select", "a.txt", "--edit", "first.txt", "--select",
                                                                 "b.txt", "--edit", "second.txt"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"first.txt", "second.txt", "c.txt"}));
  EXPECT_EQ(document["changed"].number, 2);
}

TEST_F(CliSteps, ScopeUnselectedEditsOnlyTheRowsNotSelected) {
  const JsonValue document =
      RunOn({"a.txt", "b.txt", "c.txt"}, {"--select", "b.txt", "--scope", "unselected", "--edit", "other.txt"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"other.txt", "b.txt", "other.txt"}));
}

TEST_F(CliSteps, ScopeAllAfterSelectedActsOnEveryRowAgain) {
  const JsonValue document = RunOn({"a.txt", "b.txt"}, {"--select", "a.txt", "--scope", "selected", "--edit", "x.txt",
                                                        "--scope", "all", "--edit", "y.txt"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"y.txt", "y.txt"}));
}

TEST_F(CliSteps, EditDropsTheCharactersANameCannotHold) {
  const JsonValue document = RunOn({"a.txt"}, {"--edit", "x\\y/z:w?v*u<t>s|r\"q.txt"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), Names{"xyzwvutsrq.txt"});
}

TEST_F(CliSteps, EditOfOnlyBlanksIsIgnoredWithANote) {
  const std::vector<std::string> paths = LoadArguments({"a.txt"});
  const CliResult result = Run({"--json", "--edit", "   ", paths[0]});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_NE(result.err.find("only blanks"), std::string::npos) << result.err;
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColNewName), Names{"a.txt"});
}

TEST_F(CliSteps, EditOfOnlyForbiddenCharactersIsIgnored) {
  const JsonValue document = RunOn({"a.txt"}, {"--edit", "**??"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), Names{"a.txt"});
  EXPECT_EQ(document["changed"].number, 0);
}

TEST_F(CliSteps, UndoAfterTwoEditsGivesTheFirstEditsNames) {
  const JsonValue document = RunOn({"a.txt", "b.txt"}, {"--edit", "first.txt", "--edit", "second.txt", "--undo"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"first.txt", "first.txt"}));
}

TEST_F(CliSteps, TwoUndosAfterTwoEditsGiveTheOldNames) {
  const JsonValue document =
      RunOn({"a.txt", "b.txt"}, {"--edit", "first.txt", "--edit", "second.txt", "--undo", "--undo"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"a.txt", "b.txt"}));
  EXPECT_EQ(document["changed"].number, 0);
}

TEST_F(CliSteps, RejectBringsEveryNameBack) {
  const JsonValue document = RunOn({"a.txt", "b.txt"}, {"--select", "a.txt", "--scope", "selected", "--edit", "x.txt",
                                                        "--scope", "unselected", "--edit", "y.txt", "--reject"});
  EXPECT_EQ(ColumnOfRows(document, core::kColNewName), (Names{"a.txt", "b.txt"}));
  EXPECT_EQ(document["changed"].number, 0);
}

TEST_F(CliSteps, UndoWithNothingToUndoNotesItAndSucceeds) {
  const std::vector<std::string> paths = LoadArguments({"a.txt"});
  const CliResult result = Run({"--undo", paths[0]});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.err, "nomra-cli: nothing to undo\n");
}

TEST_F(CliSteps, RejectWithNothingPendingNotesItAndSucceeds) {
  const std::vector<std::string> paths = LoadArguments({"a.txt"});
  const CliResult result = Run({"--reject", paths[0]});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.err, "nomra-cli: no pending changes to reject\n");
}

TEST_F(CliSteps, StepsTakeEffectInCommandLineOrder) {
  const std::vector<std::string> paths = LoadArguments({"a.txt"});
  // The reject comes before anything is pending, so the edit stays.
  const CliResult result = Run({"--json", "--reject", "--edit", "new.txt", paths[0]});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_NE(result.err.find("no pending changes"), std::string::npos) << result.err;
  EXPECT_EQ(ColumnOfRows(ParseJson(result.out), core::kColNewName), Names{"new.txt"});
}

TEST_F(CliSteps, SortByNewNameOrdersNumbersByValue) {
  const JsonValue ascending = RunOn({"f10.txt", "f2.txt"}, {"--sort", "new"});
  EXPECT_EQ(ColumnOfRows(ascending, core::kColNewName), (Names{"f2.txt", "f10.txt"}));
}

TEST_F(CliSteps, SortDescendingReversesTheOrder) {
  const JsonValue descending = RunOn({"f2.txt", "f10.txt"}, {"--sort", "new:desc"});
  EXPECT_EQ(ColumnOfRows(descending, core::kColNewName), (Names{"f10.txt", "f2.txt"}));
}

TEST_F(CliSteps, SortByNewNameFollowsThePendingNames) {
  const JsonValue document =
      RunOn({"a.txt", "b.txt"}, {"--select", "a.txt", "--scope", "selected", "--edit", "z.txt", "--sort", "new"});
  EXPECT_EQ(ColumnOfRows(document, core::kColOldName), (Names{"b.txt", "a.txt"}));
}

TEST_F(CliSteps, SortByHeadNumberMatchesSortByName) {
  const JsonValue byNumber = RunOn({"b.txt", "a.txt", "c.txt"}, {"--sort", "3:desc"});
  EXPECT_EQ(ColumnOfRows(byNumber, core::kColOldName), (Names{"c.txt", "b.txt", "a.txt"}));
}

TEST_F(CliSteps, UnsortedKeepsTheLoadOrder) {
  const JsonValue document = RunOn({"z.txt", "a.txt", "m.txt"}, {"--sort", "21"});
  EXPECT_EQ(ColumnOfRows(document, core::kColOldName), (Names{"z.txt", "a.txt", "m.txt"}));
}

TEST_F(CliSteps, UnsortedAfterASortKeepsTheSortedOrder) {
  const JsonValue document = RunOn({"z.txt", "a.txt", "m.txt"}, {"--sort", "old", "--sort", "unsorted"});
  EXPECT_EQ(ColumnOfRows(document, core::kColOldName), (Names{"a.txt", "m.txt", "z.txt"}));
}

}  // namespace
}  // namespace nomra::testing
