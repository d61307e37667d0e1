#include <gtest/gtest.h>

#include <stdexcept>

#include "dialog/DialogModel.h"
#include "dialog/DialogState.h"

namespace nomra::dialog {
namespace {

TEST(DialogModelTest, MemberOfAGroupIsKeyedByNameAndIndex) {
  DialogModel model("frmTest");
  model.AddOption("opt2", "opt2", 1);
  model.AddText("txtPr");
  EXPECT_EQ(model.Inputs()[0].Key(), "opt2(1)");
  EXPECT_EQ(model.Inputs()[1].Key(), "txtPr");
  EXPECT_NE(model.Find("opt2(1)"), nullptr);
  EXPECT_EQ(model.Find("opt2"), nullptr);
  EXPECT_THROW(model.At("txtSu"), std::out_of_range);
}

TEST(DialogModelTest, InputsKeepTheOrderTheyWereAddedIn) {
  DialogModel model("frmTest");
  model.AddText("txtB");
  model.AddCheck("chkA");
  model.AddNoValue("cmdOK");
  std::string order;
  for (const DialogInput& input : model.Inputs()) order += input.Key() + ";";
  EXPECT_EQ(order, "txtB;chkA;cmdOK;");
}

TEST(DialogModelTest, OptionGroupsExcludeEachOtherOnlyWithinTheGroup) {
  DialogModel model("frmTest");
  model.AddOption("opt1", "opt1", 0);
  model.AddOption("opt1", "opt1", 1);
  model.AddOption("optOther", "");
  model.SetOption("opt1(0)", true);
  model.SetOption("optOther", true);
  model.SetOption("opt1(1)", true);
  EXPECT_FALSE(model.IsSelected("opt1(0)"));
  EXPECT_TRUE(model.IsSelected("opt1(1)"));
  EXPECT_TRUE(model.IsSelected("optOther"));
}

TEST(DialogModelTest, ControlsRefuseValuesTheyCannotTake) {
  DialogModel model("frmTest");
  model.AddCheck("chk");
  model.AddScrollBar("vsb", 5, 9);
  model.AddList("lst", {"a"}, false);
  model.AddNoValue("lbl");
  EXPECT_FALSE(model.SetNumber("chk", 3));
  EXPECT_FALSE(model.SetNumber("vsb", 4));
  EXPECT_FALSE(model.SetNumber("vsb", 10));
  EXPECT_FALSE(model.SetNumber("lst", 1));
  EXPECT_FALSE(model.SetNumber("lbl", 0));
  EXPECT_FALSE(model.SetText("chk", "x"));
  EXPECT_EQ(model.Number("chk"), 0);
  EXPECT_EQ(model.Number("vsb"), 5);
  EXPECT_EQ(model.Number("lst"), -1);
  EXPECT_TRUE(model.SetNumber("vsb", 9));
  EXPECT_EQ(model.Number("vsb"), 9);
}

TEST(DialogModelTest, StoredValueOfEachKind) {
  DialogModel model("frmTest");
  model.AddText("txt").text = "a b";
  model.AddOption("optOn", "").selected = true;
  model.AddOption("optOff", "");
  model.AddCheck("chk").number = 2;
  model.AddCombo("cmb", {"x"}).text = "typed";
  model.AddList("lst", {"a", "b", "c"}, true).rowSelected = {true, false, true};
  model.AddNoValue("lbl");
  EXPECT_EQ(StoredValueOf(model.At("txt")), "a b");
  EXPECT_EQ(StoredValueOf(model.At("optOn")), "-1");
  EXPECT_EQ(StoredValueOf(model.At("optOff")), "");
  EXPECT_EQ(StoredValueOf(model.At("chk")), "2");
  EXPECT_EQ(StoredValueOf(model.At("cmb")), "-1");
  EXPECT_EQ(StoredValueOf(model.At("lst")), "0,2");
  EXPECT_EQ(StoredValueOf(model.At("lbl")), "");
}

TEST(DialogModelTest, EncodingTurnsEveryBlankIntoTheStandInAndDecodingBack) {
  EXPECT_EQ(EncodeStoredValue(" a  b "),
            "\xC2\x90"
            "a\xC2\x90\xC2\x90"
            "b\xC2\x90");
  EXPECT_EQ(DecodeStoredText("\xC2\x90"
                             "a\xC2\x90\xC2\x90"
                             "b\xC2\x90"),
            " a  b ");
  // Other characters with 0x90 in their UTF-8 form stay as they are.
  EXPECT_EQ(DecodeStoredText("\xE2\x80\x90\xC3\x90"), "\xE2\x80\x90\xC3\x90");
}

}  // namespace
}  // namespace nomra::dialog
