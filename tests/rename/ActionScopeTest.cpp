#include <gtest/gtest.h>

#include <vector>

#include "base/Fault.h"
#include "rename/ActionFixture.h"
#include "rename/ActionScope.h"
#include "structure/ApplyStructure.h"

namespace nomra::rename {
namespace {

class ActionScopeTest : public testing::ActionTest {
 protected:
  void Select(int row) { state.list.Item(row).selected = true; }

  // Appends "!" to every pending name in scope.
  void MarkNamesInScope() {
    RewritePendingNames(Actions(), [](int, const core::FileEntry& entry) { return entry[core::kColNewName] + "!"; });
  }
};

TEST_F(ActionScopeTest, ScopeZeroTakesEveryRowOneTheSelectedAndTwoTheOthers) {
  AddFiles({"a", "b"});
  Select(1);
  // For each scope: whether row 1 (selected) and row 2 lie in it.
  const std::vector<std::pair<bool, bool>> expected{{true, true}, {true, false}, {false, true}};
  for (int scope = 0; scope < 3; ++scope) {
    state.applyScope = scope;
    EXPECT_EQ(std::make_pair(core::InScope(state, 1), core::InScope(state, 2)), expected[scope]) << scope;
  }
}

TEST_F(ActionScopeTest, OnlyRowsInScopeGetANewName) {
  AddFiles({"a", "b", "c"});
  Select(2);
  state.applyScope = 2;
  MarkNamesInScope();
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a!", "b", "c!"}));
}

TEST_F(ActionScopeTest, ScopeTwoWithNothingSelectedChangesEveryRow) {
  AddFiles({"a", "b", "c"});
  state.applyScope = 2;
  MarkNamesInScope();
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a!", "b!", "c!"}));
}

TEST_F(ActionScopeTest, ScopeOneWithNothingSelectedChangesNoRowYetCountsAllAndRefreshes) {
  AddFiles({"a", "b", "c"});
  // A pending name that no refresh has seen yet: only a refresh paints it.
  SetNewName(2, "renamed");
  frontEnd.statusTexts.clear();
  state.applyScope = 1;
  MarkNamesInScope();
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a", "renamed", "c"}));
  EXPECT_EQ(frontEnd.statusTexts,
            (std::vector<std::string>{"File 1 of 3", "File 2 of 3", "File 3 of 3", "3 files in 1 folders, 1 changed"}));
  EXPECT_EQ(state.list.Item(2).colour, core::RowColour::DarkRed);
}

TEST_F(ActionScopeTest, StatusTextOfARowIsSetBeforeItsNewNameUnderTheBusyPointer) {
  AddFiles({"a", "b"});
  std::vector<std::string> seen;
  RewritePendingNames(Actions(), [&](int row, const core::FileEntry& entry) {
    seen.push_back(std::to_string(row) + " " + entry[core::kColNewName] + " " + frontEnd.statusTexts.back() + " busy " +
                   std::to_string(frontEnd.busyDepth));
    return entry[core::kColNewName];
  });
  EXPECT_EQ(seen, (std::vector<std::string>{"1 a File 1 of 2 busy 1", "2 b File 2 of 2 busy 1"}));
  EXPECT_EQ(frontEnd.busyDepth, 0);
}

TEST_F(ActionScopeTest, EmptyListTouchesNoRowReturnsThePointerAndRefreshes) {
  window.selectedScriptLabel = "before";
  int calls = 0;
  RewritePendingNames(Actions(), [&](int, const core::FileEntry&) {
    ++calls;
    return std::string();
  });
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(frontEnd.busyDepth, 0);
  EXPECT_EQ(frontEnd.statusTexts, (std::vector<std::string>{"0 files in 0 folders, 0 changed"}));
  EXPECT_EQ(window.selectedScriptLabel, "No script");
}

TEST_F(ActionScopeTest, FaultEndsTheWalkAtItsRowAndTheRowsBeforeKeepTheirNames) {
  AddFiles({"a", "b", "c"});
  frontEnd.statusTexts.clear();
  EXPECT_THROW(RewritePendingNames(Actions(),
                                   [](int row, const core::FileEntry& entry) {
                                     if (row == 2) throw base::RuntimeFault("stopped at row 2");
                                     return entry[core::kColNewName] + "!";
                                   }),
               base::RuntimeFault);
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a!", "b", "c"}));
  EXPECT_EQ(frontEnd.busyDepth, 0);
  EXPECT_EQ(frontEnd.statusTexts.back(), "3 files in 1 folders, 1 changed");
  EXPECT_EQ(state.list.Item(1).colour, core::RowColour::DarkRed);
}

TEST_F(ActionScopeTest, StructureWithoutTagsBecomesThePendingNameOfEachRowInScope) {
  AddFiles({"a.txt", "b.txt"});
  Select(1);
  state.applyScope = 1;
  structure::ApplyStructure(Actions(), "fixed name.txt");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"fixed name.txt", "b.txt"}));
  EXPECT_EQ(state.changedCount, 1);
}

}  // namespace
}  // namespace nomra::rename
