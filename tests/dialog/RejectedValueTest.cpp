#include <gtest/gtest.h>

#include <vector>

#include "dialog/DialogStateFixture.h"

namespace nomra::dialog {
namespace {

using dialog::DialogModel;

// A stored value an input refuses leaves that input as it is, and the
// inputs after it are restored all the same.
class RejectedValueTest : public testing::DialogStateTest {
 protected:
  static DialogModel Dialog() {
    DialogModel model("frmTest");
    model.AddCheck("chkOne").number = 1;
    model.AddScrollBar("vsbPosition", 10, 20).number = 15;
    model.AddCombo("cmbFormat", {"a", "b"}).number = 1;
    model.AddList("lstSingle", {"a", "b"}, false).number = 0;
    model.AddOption("optAlone", "").selected = true;
    model.AddList("lstMulti", {"a", "b", "c"}, true);
    model.AddText("txtLast").text = "opening";
    return model;
  }

  // The section as given, restored into a freshly opened dialog.
  DialogModel Restored(const std::string& section) {
    WriteSettings("[frmTest]\r\n" + section);
    DialogModel dialog = Dialog();
    Restore(dialog, "frmTest");
    return dialog;
  }

  // Every input that stores a number still holds what it opened with.
  static void ExpectOpeningNumbers(const DialogModel& dialog) {
    EXPECT_EQ(dialog.Number("chkOne"), 1);
    EXPECT_EQ(dialog.Number("vsbPosition"), 15);
    EXPECT_EQ(dialog.Number("cmbFormat"), 1);
    EXPECT_EQ(dialog.Number("lstSingle"), 0);
  }
};

TEST_F(RejectedValueTest, OutOfRangeValuesLeaveTheirInputsAndTheLoopGoesOn) {
  const DialogModel dialog =
      Restored("chkOne=7\r\nvsbPosition=21\r\ncmbFormat=2\r\nlstSingle=-2\r\ntxtLast=restored\r\n");
  ExpectOpeningNumbers(dialog);
  EXPECT_EQ(dialog.Text("txtLast"), "restored");
}

TEST_F(RejectedValueTest, ValuesThatAreNoNumbersLeaveTheirInputsAndTheLoopGoesOn) {
  const DialogModel dialog = Restored(
      "chkOne=yes\r\nvsbPosition=1x\r\ncmbFormat=99999999999\r\nlstSingle=one\r\noptAlone=selected\r\n"
      "txtLast=restored\r\n");
  ExpectOpeningNumbers(dialog);
  EXPECT_TRUE(dialog.IsSelected("optAlone"));
  EXPECT_EQ(dialog.Text("txtLast"), "restored");
}

TEST_F(RejectedValueTest, StoredZeroDeselectsAnOption) {
  EXPECT_FALSE(Restored("optAlone=0\r\n").IsSelected("optAlone"));
}

TEST_F(RejectedValueTest, RefusedPartsOfAMultiSelectionAreAnnouncedButSelectNothing) {
  const DialogModel dialog = Restored("lstMulti=1,x,9,2\r\ntxtLast=restored\r\n");
  EXPECT_EQ(dialog.At("lstMulti").rowSelected, (std::vector<bool>{false, true, true}));
  EXPECT_EQ(frontEnd.plainMessages, (std::vector<std::string>{"0", "1", "2", "3", "1", "2"}));
  EXPECT_EQ(dialog.Text("txtLast"), "restored");
}

TEST_F(RejectedValueTest, MissingSectionOrFileLeavesEveryInputAsItWas) {
  DialogModel dialog = Dialog();
  Restore(dialog, "frmTest");
  WriteSettings("[frmOther]\r\ntxtLast=elsewhere\r\n");
  Restore(dialog, "frmTest");
  ExpectOpeningNumbers(dialog);
  EXPECT_EQ(dialog.Text("txtLast"), "opening");
  EXPECT_TRUE(frontEnd.plainMessages.empty());
}

}  // namespace
}  // namespace nomra::dialog
