#include <gtest/gtest.h>

#include <vector>

#include "dialog/DialogStateFixture.h"

namespace nomra::dialog {
namespace {

using dialog::DialogModel;

// Combo boxes and lists store the index of their row, or the indexes of
// all rows chosen in a list of several.
class ListRoundTripTest : public testing::DialogStateTest {
 protected:
  static DialogModel Dialog() {
    DialogModel model("frmTest");
    model.AddCombo("cmbFormat", {"first", "second", "third"});
    model.AddList("lstSingle", {"a", "b", "c"}, false);
    model.AddList("lstMulti", {"a", "b", "c", "d", "e"}, true);
    return model;
  }
};

TEST_F(ListRoundTripTest, ComboBoxStoresItsRowIndexAndComesBackWithThatRow) {
  DialogModel stored = Dialog();
  ASSERT_TRUE(stored.SetNumber("cmbFormat", 2));
  const DialogModel restored = StoredAndRestored(stored, Dialog());
  EXPECT_TRUE(SettingsHaveLine("cmbFormat=2"));
  EXPECT_EQ(restored.Number("cmbFormat"), 2);
  EXPECT_EQ(restored.Text("cmbFormat"), "third");
}

TEST_F(ListRoundTripTest, ComboBoxWithTypedTextStoresMinusOneAndLosesTheText) {
  DialogModel stored = Dialog();
  ASSERT_TRUE(stored.SetText("cmbFormat", "typed by hand"));
  DialogModel opened = Dialog();
  opened.SetNumber("cmbFormat", 1);
  const DialogModel restored = StoredAndRestored(stored, opened);
  EXPECT_TRUE(SettingsHaveLine("cmbFormat=-1"));
  EXPECT_EQ(SettingsText().find("typed"), std::string::npos);
  EXPECT_EQ(restored.Number("cmbFormat"), -1);
  EXPECT_EQ(restored.Text("cmbFormat"), "");
}

TEST_F(ListRoundTripTest, SingleSelectionListStoresItsRowIndex) {
  DialogModel stored = Dialog();
  ASSERT_TRUE(stored.SetNumber("lstSingle", 1));
  EXPECT_EQ(StoredAndRestored(stored, Dialog()).Number("lstSingle"), 1);
  EXPECT_TRUE(SettingsHaveLine("lstSingle=1"));
  EXPECT_TRUE(frontEnd.plainMessages.empty());
}

TEST_F(ListRoundTripTest, MultiSelectionListStoresTheChosenRowsAscendingWithoutBlanks) {
  DialogModel stored = Dialog();
  ASSERT_TRUE(stored.SetRowSelected("lstMulti", 4, true));
  ASSERT_TRUE(stored.SetRowSelected("lstMulti", 1, true));
  ASSERT_TRUE(stored.SetRowSelected("lstMulti", 3, true));
  Store(stored, "frmTest");
  EXPECT_TRUE(SettingsHaveLine("lstMulti=1,3,4"));
}

TEST_F(ListRoundTripTest, MultiSelectionRestoreShowsEachPartThenEachChosenRowInPlainMessages) {
  DialogModel stored = Dialog();
  stored.SetRowSelected("lstMulti", 1, true);
  stored.SetRowSelected("lstMulti", 3, true);
  const DialogModel restored = StoredAndRestored(stored, Dialog());
  EXPECT_EQ(restored.At("lstMulti").rowSelected, (std::vector<bool>{false, true, false, true, false}));
  // The position of each part, counted from 0, then the index of each row chosen.
  EXPECT_EQ(frontEnd.plainMessages, (std::vector<std::string>{"0", "1", "1", "3"}));
}

TEST_F(ListRoundTripTest, MultiSelectionRestoreAddsToRowsChosenAtOpening) {
  WriteSettings("[frmTest]\r\nlstMulti=2\r\n");
  DialogModel restored = Dialog();
  restored.SetRowSelected("lstMulti", 0, true);
  Restore(restored, "frmTest");
  EXPECT_EQ(restored.At("lstMulti").rowSelected, (std::vector<bool>{true, false, true, false, false}));
  EXPECT_EQ(frontEnd.plainMessages, (std::vector<std::string>{"0", "0", "2"}));
}

TEST_F(ListRoundTripTest, MultiSelectionWithNothingChosenHasNoKeyAndShowsNoMessage) {
  StoredAndRestored(Dialog(), Dialog());
  EXPECT_EQ(SettingsText(), "[frmTest]\r\ncmbFormat=-1\r\nlstSingle=-1\r\n");
  EXPECT_TRUE(frontEnd.plainMessages.empty());
}

}  // namespace
}  // namespace nomra::dialog
