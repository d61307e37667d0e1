#include <gtest/gtest.h>

#include "dialog/DialogStateFixture.h"

namespace nomra::dialog {
namespace {

using dialog::DialogModel;

// Option groups, check boxes and scroll bars: the inputs that store a number.
class ChoiceRoundTripTest : public testing::DialogStateTest {
 protected:
  static DialogModel Dialog() {
    DialogModel model("frmTest");
    for (int index = 0; index < 3; ++index) model.AddOption("opt1", "opt1", index);
    model.AddCheck("chkOne");
    model.AddScrollBar("vsbPosition", 0, 100);
    model.SetOption("opt1(0)", true);
    return model;
  }
};

TEST_F(ChoiceRoundTripTest, OnlyTheSelectedOptionOfAGroupHasAKey) {
  DialogModel stored = Dialog();
  stored.SetOption("opt1(1)", true);
  Store(stored, "frmTest");
  EXPECT_EQ(SettingsText(), "[frmTest]\r\nopt1(1)=-1\r\nchkOne=0\r\nvsbPosition=0\r\n");
}

TEST_F(ChoiceRoundTripTest, RestoringTheSelectedOptionDeselectsTheOthersOfItsGroup) {
  DialogModel stored = Dialog();
  stored.SetOption("opt1(2)", true);
  ASSERT_TRUE(Dialog().IsSelected("opt1(0)"));
  const DialogModel restored = StoredAndRestored(stored, Dialog());
  EXPECT_FALSE(restored.IsSelected("opt1(0)"));
  EXPECT_FALSE(restored.IsSelected("opt1(1)"));
  EXPECT_TRUE(restored.IsSelected("opt1(2)"));
}

TEST_F(ChoiceRoundTripTest, OptionDeselectedSinceTheLastStoreLosesItsKey) {
  DialogModel dialog = Dialog();
  dialog.SetOption("opt1(1)", true);
  Store(dialog, "frmTest");
  dialog.SetOption("opt1(2)", true);
  Store(dialog, "frmTest");
  EXPECT_EQ(SettingsText(), "[frmTest]\r\nchkOne=0\r\nvsbPosition=0\r\nopt1(2)=-1\r\n");
}

TEST_F(ChoiceRoundTripTest, CheckBoxStoresEachOfItsThreeValues) {
  for (int value : {0, 1, 2}) {
    DialogModel stored = Dialog();
    ASSERT_TRUE(stored.SetNumber("chkOne", value));
    DialogModel opened = Dialog();
    opened.SetNumber("chkOne", value == 1 ? 2 : 1);
    EXPECT_EQ(StoredAndRestored(stored, opened).Number("chkOne"), value);
    EXPECT_TRUE(SettingsHaveLine("chkOne=" + std::to_string(value))) << value;
  }
}

TEST_F(ChoiceRoundTripTest, ScrollBarPositionComesBack) {
  DialogModel stored = Dialog();
  ASSERT_TRUE(stored.SetNumber("vsbPosition", 37));
  EXPECT_EQ(StoredAndRestored(stored, Dialog()).Number("vsbPosition"), 37);
  EXPECT_TRUE(SettingsHaveLine("vsbPosition=37"));
}

TEST_F(ChoiceRoundTripTest, InputsWithoutValueNeverHaveAKey) {
  DialogModel stored("frmTest");
  stored.AddNoValue("lblCaption");
  stored.AddNoValue("cmdOK");
  stored.AddText("txtName").text = "x";
  Store(stored, "frmTest");
  EXPECT_EQ(SettingsText(), "[frmTest]\r\ntxtName=x\r\n");
}

TEST_F(ChoiceRoundTripTest, StoringASectionKeepsTheRestOfTheSettingsFile) {
  WriteSettings("[Settings]\r\nsavset=1\r\n\r\n[frmTest]\r\nchkOne=1\r\n\r\n[Other]\r\nkey=value\r\n");
  Store(Dialog(), "frmTest");
  EXPECT_EQ(SettingsText(),
            "[Settings]\r\nsavset=1\r\n\r\n[frmTest]\r\nchkOne=0\r\nopt1(0)=-1\r\nvsbPosition=0\r\n\r\n"
            "[Other]\r\nkey=value\r\n");
}

}  // namespace
}  // namespace nomra::dialog
