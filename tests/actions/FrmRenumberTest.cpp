// Renumbering: the numbers found at either end of the names, the threshold
// that offers an end, the suggested settings, the user's order and the new
// series written back by position.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/FrmRenumber.h"
#include "lang/MessageKeys.h"
#include "rename/ActionFixture.h"
#include "rename/ActionFrame.h"

namespace nomra::actions {
namespace {

using Names = std::vector<std::string>;

class FrmRenumberTest : public testing::ActionTest {
 protected:
  dialog::DialogModel& Model() { return dialog.Model(); }
  void Open(const Names& files) {
    AddFiles(files);
    rename::LoadActionDialog(dialog, Actions());
  }
  Names Ends() { return Model().At("erkNum").rows; }
  Names Sorted() { return Model().At("lstFilesSorted").rows; }
  Names Unsorted() { return Model().At("lstFilesUnsorted").rows; }
  Names Ok() {
    EXPECT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
    return PendingNames();
  }
  FrmRenumber dialog;
};

TEST_F(FrmRenumberTest, TwoPrefixNumbersOfThreeNamesOfferThePrefix) {
  Open({"1 a.txt", "2 b.txt", "x.txt"});
  EXPECT_EQ(Ends(), Names{FrmRenumber::kPrefixChoice});
  EXPECT_FALSE(dialog.ClosesAtOnce());
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(FrmRenumberTest, OneNumberInFiveNamesIsToldAndTheDialogClosesAtOnce) {
  Open({"1 a.txt", "b.txt", "c.txt", "d.txt", "e.txt"});
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, lang::kNoNumbersToRenumber);
  EXPECT_EQ(frontEnd.asked[0].captionKey, lang::kAttentionCaption);
  EXPECT_EQ(Ends(), Names{FrmRenumber::kNoChoice});
  EXPECT_TRUE(dialog.ClosesAtOnce());
  EXPECT_FALSE(rename::ActivateActionDialog(dialog, Actions(), true));
}

TEST_F(FrmRenumberTest, CommonRestIsSuggestedWithAutoWidthFromALeadingZero) {
  Open({"01 a.txt", "02 a.txt"});
  EXPECT_TRUE(Model().IsSelected("optPrefix"));
  EXPECT_EQ(Model().Text("txtInit"), "1");
  EXPECT_EQ(Model().Number("cmbAnzahl"), 0);
  EXPECT_EQ(Model().Text("txtInc"), "1");
  EXPECT_EQ(Model().Number("chkReplace"), 1);
  EXPECT_EQ(Model().Text("txtRepName"), " a");
  EXPECT_EQ(Ok(), (Names{"1 a.txt", "2 a.txt"}));
}

TEST_F(FrmRenumberTest, DifferentRestsAreKeptEachToItsName) {
  Open({"01 a.txt", "02 b.txt"});
  EXPECT_EQ(Model().Number("chkReplace"), 0);
  EXPECT_EQ(Model().Text("txtRepName"), "");
  EXPECT_EQ(Ok(), (Names{"1 a.txt", "2 b.txt"}));
}

TEST_F(FrmRenumberTest, NumbersAreOrderedByValueNotByText) {
  Open({"10 a.txt", "9 b.txt"});
  EXPECT_EQ(Sorted(), (Names{"9 b", "10 a"}));
}

TEST_F(FrmRenumberTest, DigitsInsideTheNameAreNeitherPrefixNorSuffix) {
  Open({"a1b2.txt", "c3d4.txt"});
  EXPECT_EQ(Ends(), Names{FrmRenumber::kSuffixChoice});
  EXPECT_TRUE(Model().IsSelected("optSuffix"));
  EXPECT_EQ(Model().Text("txtInit"), "2");
  EXPECT_EQ(Model().Number("chkReplace"), 0);
}

TEST_F(FrmRenumberTest, StemOfDigitsOnlyCountsAtBothEnds) {
  Open({"2004.jpg", "2005.jpg"});
  EXPECT_EQ(Ends(), (Names{FrmRenumber::kPrefixChoice, FrmRenumber::kSuffixChoice}));
  EXPECT_EQ(Model().Text("txtRepName"), "");
  EXPECT_EQ(Model().Number("chkReplace"), 1) << "the rests are all empty, so they are the same";
}

TEST_F(FrmRenumberTest, DigitsOfTheOtherEndAreLostInTheSeries) {
  Open({"3 x 7.txt", "4 y 8.txt"});
  Model().SetNumber("chkReplace", 0);
  Model().SetText("txtInit", "1");
  EXPECT_EQ(Ok(), (Names{"01 x .txt", "02 y .txt"})) << "two digits: the width the dialog opens with";
}

TEST_F(FrmRenumberTest, NamesLeftOutKeepTheirDigitsOfTheOtherEnd) {
  Open({"1 a.txt", "2 b.txt", "3 c 9.txt"});
  Model().SetNumber("lstFilesSorted", 2);
  dialog.LeaveOutOfSeries();
  EXPECT_EQ(Unsorted(), Names{"3 c 9"});
  Model().SetText("txtInit", "5");
  EXPECT_EQ(Ok(), (Names{"05 a.txt", "06 b.txt", " c 9.txt"}));
}

TEST_F(FrmRenumberTest, TheUsersOrderDecidesTheNumbers) {
  Open({"1 a.txt", "2 b.txt", "3 c.txt"});
  Model().SetNumber("lstFilesSorted", 2);
  dialog.MoveUp();
  dialog.MoveUp();
  EXPECT_EQ(Sorted(), (Names{"3 c", "1 a", "2 b"}));
  EXPECT_EQ(Ok(), (Names{"02 a.txt", "03 b.txt", "01 c.txt"}));
}

TEST_F(FrmRenumberTest, ANameWithoutNumberCanJoinTheSeries) {
  Open({"1 a.txt", "2 b.txt", "c.txt"});
  EXPECT_EQ(Unsorted(), Names{"c"});
  Model().SetNumber("lstFilesUnsorted", 0);
  dialog.TakeIntoSeries();
  EXPECT_EQ(Sorted(), (Names{"1 a", "2 b", "c"}));
  EXPECT_EQ(Ok(), (Names{"01 a.txt", "02 b.txt", "03c.txt"}));
}

TEST_F(FrmRenumberTest, ButtonsFollowTheSelectedPlace) {
  Open({"1 a.txt", "2 b.txt"});
  Model().SetNumber("lstFilesSorted", 0);
  EXPECT_FALSE(dialog.IsEnabled("cmdUp"));
  EXPECT_TRUE(dialog.IsEnabled("cmdDown"));
  Model().SetNumber("lstFilesSorted", 1);
  EXPECT_TRUE(dialog.IsEnabled("cmdUp"));
  EXPECT_FALSE(dialog.IsEnabled("cmdDown"));
}

TEST_F(FrmRenumberTest, ANarrowerScopeWritesItsNamesToTheFirstRowsOfTheList) {
  AddFiles({"z.txt", "1 a.txt", "2 b.txt"});
  state.list.Item(2).selected = true;
  state.list.Item(3).selected = true;
  state.applyScope = core::kScopeSelected;
  rename::LoadActionDialog(dialog, Actions());
  Model().SetText("txtInit", "7");
  EXPECT_EQ(Ok(), (Names{"07 a.txt", "08 b.txt", "2 b.txt"}));
}

TEST_F(FrmRenumberTest, FixedWidthAndANegativeStep) {
  Open({"1 a.txt", "2 b.txt", "3 c.txt"});
  Model().SetNumber("cmbAnzahl", 3);
  Model().SetText("txtInit", "10");
  Model().SetText("txtInc", "-5");
  Model().SetNumber("chkReplace", 0);
  EXPECT_EQ(Ok(), (Names{"010 a.txt", "005 b.txt", "000 c.txt"}));
}

TEST_F(FrmRenumberTest, RemembersNothingButIsRecordedAsStepTwo) {
  EXPECT_EQ(dialog.Traits().storeSection, "");
  EXPECT_EQ(dialog.Traits().stepType, 2);
  script.saveDialogSettings = true;
  Open({"1 a.txt", "2 b.txt"});
  Ok();
  EXPECT_EQ(SettingsText(), "");
}

}  // namespace
}  // namespace nomra::actions
