// Trimming to a part of the stem, the short name or a path limit, and
// moving a slice of the stem.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/FrmMove.h"
#include "actions/FrmTrim.h"
#include "base/Fault.h"
#include "rename/ActionFixture.h"
#include "rename/ActionFrame.h"

namespace nomra::actions {
namespace {

using Names = std::vector<std::string>;

class FrmTrimTest : public testing::ActionTest {
 protected:
  Names Apply(int choice, const Names& files) {
    dialog.Model().SetOption("opt1(" + std::to_string(choice) + ")", true);
    AddFiles(files);
    EXPECT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
    return PendingNames();
  }
  FrmTrim dialog;
};

TEST_F(FrmTrimTest, ShortNameIsChosenAndTheLimitIs256WhenNothingIsStored) {
  EXPECT_TRUE(dialog.Model().IsSelected("opt1(4)"));
  EXPECT_EQ(dialog.Structure(), "<DosName>");
  EXPECT_EQ(dialog.Model().Text("txtMaxPath"), "256");
  EXPECT_EQ(dialog.Model().Number("VScrollMaxPath"), 1);
  EXPECT_EQ(dialog.Model().Text("txtPos(0)"), "1");
}

TEST_F(FrmTrimTest, FirstThreeCharactersAndADotEvenWithoutExtension) {
  dialog.Model().SetText("txtPos(0)", "3");
  EXPECT_EQ(Apply(1, {"abcdef.txt", "abcdef"}), (Names{"abc.txt", "abc."}));
}

TEST_F(FrmTrimTest, LastTwoCharacters) {
  dialog.Model().SetText("txtPos(1)", "2");
  EXPECT_EQ(Apply(2, {"abcdef.txt"}), Names{"ef.txt"});
}

TEST_F(FrmTrimTest, RangeGivenBackwardsFollowsTheSliceRule) {
  dialog.Model().SetText("txtFrom", "5");
  dialog.Model().SetText("txtTo", "2");
  EXPECT_EQ(Apply(3, {"abcdef.txt"}), Names{"bcde.txt"});
}

TEST_F(FrmTrimTest, PathLimitCutsTheStemBelowFolderAndExtension) {
  EXPECT_EQ(TrimToPathLimit("C:\\ab\\", "abcdefghijklmnopqrst.txt", 20), "abcdefghijk.txt");
  EXPECT_EQ(TrimToPathLimit("/m/", "short.txt", 20), "short.txt");
  EXPECT_EQ(TrimToPathLimit("/a/very/long/folder/", "name.txt", 10), ".txt") << "the folder alone is over";
  EXPECT_EQ(TrimToPathLimit("/m/", "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6.mp3", 7), "\xC3\xA4.mp3");
}

TEST_F(FrmTrimTest, PathLimitRunsOverTheRowsOfTheList) {
  dialog.Model().SetText("txtMaxPath", std::to_string(temp.Path().size() + 8));
  EXPECT_EQ(Apply(5, {"abcdefghij.txt", "ab.txt"}), (Names{"abcde.txt", "ab.txt"}));
}

TEST_F(FrmTrimTest, OnlyTheChosenButtonsInputsAreUsable) {
  dialog.Model().SetOption("opt1(3)", true);
  EXPECT_TRUE(dialog.IsEnabled("txtFrom"));
  EXPECT_TRUE(dialog.IsEnabled("VScrollTo"));
  EXPECT_FALSE(dialog.IsEnabled("txtPos(0)"));
  EXPECT_FALSE(dialog.IsEnabled("txtMaxPath"));
  EXPECT_TRUE(dialog.IsEnabled("cmdGetPos"));
  dialog.Model().SetOption("opt1(5)", true);
  EXPECT_TRUE(dialog.IsEnabled("txtMaxPath"));
  EXPECT_FALSE(dialog.IsEnabled("cmdGetPos"));
}

class FrmMoveTest : public testing::ActionTest {
 protected:
  void Slice(const char* from, const char* to, const char* position) {
    dialog.Model().SetText("txtFrom", from);
    dialog.Model().SetText("txtTo", to);
    dialog.Model().SetText("txtPos", position);
  }
  FrmMove dialog;
};

TEST_F(FrmMoveTest, SliceGoesToItsPositionInTheRest) {
  EXPECT_EQ(MoveInName("abcde.txt", 1, 2, 3), "cdabe.txt");
  EXPECT_EQ(MoveInName("abcde", 4, 5, 1), "deabc");
}

TEST_F(FrmMoveTest, PreviewMovesInTheStemAloneDotsIncluded) { EXPECT_EQ(MoveInStem("ab.cd", 1, 2, 3), ".cabd"); }

TEST_F(FrmMoveTest, PositionsBeyondTheStemGiveShorterPieces) {
  EXPECT_EQ(MoveInName("ab.txt", 1, 2, 9), "ab.txt");
  EXPECT_EQ(MoveInName("ab.txt", 5, 6, 1), "ab.txt");
}

TEST_F(FrmMoveTest, PositionBelowOneIsAFault) {
  EXPECT_THROW(MoveInName("abc", 0, 1, 1), base::RuntimeFault);
  EXPECT_THROW(MoveInName("abc", 1, 0, 1), base::RuntimeFault);
  EXPECT_THROW(MoveInName("abc", 1, 1, 0), base::RuntimeFault);
}

TEST_F(FrmMoveTest, AllRowsOfTheScopeAreTreatedWhenNothingIsStored) {
  EXPECT_EQ(dialog.Model().Number("chkAdd2All"), 1);
  AddFiles({"abcde.txt", "vwxyz.txt"});
  Slice("1", "2", "3");
  ASSERT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(PendingNames(), (Names{"cdabe.txt", "xyvwz.txt"}));
}

TEST_F(FrmMoveTest, WithoutAllOnlyTheRowShownChangesEvenOutsideAnEmptyScope) {
  AddFiles({"abcde.txt", "vwxyz.txt"});
  state.applyScope = core::kScopeSelected;  // none is selected
  dialog.Model().SetNumber("chkAdd2All", 0);
  dialog.Model().SetNumber("VScroll1", 2);
  Slice("1", "2", "3");
  ASSERT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(PendingNames(), (Names{"abcde.txt", "xyvwz.txt"}));
}

TEST_F(FrmMoveTest, RemembersUnderPrefixAndSuffixYetReadsItsOwnSection) {
  EXPECT_EQ(dialog.Traits().storeSection, "FrmPS");
  EXPECT_EQ(dialog.Traits().restoreSection, "frmMove");
  script.saveDialogSettings = true;
  AddFiles({"abcde.txt"});
  Slice("1", "2", "3");
  ASSERT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_NE(SettingsText().find("[FrmPS]"), std::string::npos) << SettingsText();
  EXPECT_EQ(SettingsText().find("[frmMove]"), std::string::npos) << SettingsText();
}

}  // namespace
}  // namespace nomra::actions
