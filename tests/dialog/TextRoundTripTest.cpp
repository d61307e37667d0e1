#include <gtest/gtest.h>

#include "dialog/DialogStateFixture.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::dialog {
namespace {

using dialog::DialogModel;

class TextRoundTripTest : public testing::DialogStateTest {
 protected:
  static DialogModel Dialog(const std::string& opening = "") {
    DialogModel model("frmTest");
    model.AddText("txtFirst").text = opening;
    model.AddText("txtSecond");
    return model;
  }

  // Stores `text` as txtFirst, then gives what a dialog opened with
  // "opening" holds after restoring.
  std::string TextAfterRoundTrip(const std::string& text) {
    return StoredAndRestored(Dialog(text), Dialog("opening")).Text("txtFirst");
  }
};

TEST_F(TextRoundTripTest, BlanksAreStoredAsTheStandInAndComeBackAsBlanks) {
  EXPECT_EQ(TextAfterRoundTrip("a b"), "a b");
  EXPECT_EQ(SettingsText(), std::string("[frmTest]\r\ntxtFirst=a") + testing::kStandIn + "b\r\n");
}

TEST_F(TextRoundTripTest, TextOfBlanksOnlyComesBackAsBlanksWhereAPlainValueWouldBeEmpty) {
  Ini(session.settingsPath).Write("Plain", "txtFirst", "   ");
  EXPECT_EQ(Ini(session.settingsPath).ReadString("Plain", "txtFirst"), "");
  EXPECT_EQ(TextAfterRoundTrip("   "), "   ");
}

TEST_F(TextRoundTripTest, OuterBlanksOfATextSurviveTheRoundTrip) {
  EXPECT_EQ(TextAfterRoundTrip(" Rome 2009 "), " Rome 2009 ");
}

TEST_F(TextRoundTripTest, StandInTypedByTheUserComesBackAsABlank) {
  EXPECT_EQ(TextAfterRoundTrip(std::string("a") + testing::kStandIn + "b"), "a b");
  EXPECT_EQ(SettingsText(), std::string("[frmTest]\r\ntxtFirst=a") + testing::kStandIn + "b\r\n");
}

TEST_F(TextRoundTripTest, EmptyTextHasNoKeyAndRestoringLeavesTheOpeningValue) {
  EXPECT_EQ(TextAfterRoundTrip(""), "opening");
  EXPECT_EQ(SettingsText(), "[frmTest]\r\n");
}

TEST_F(TextRoundTripTest, TextEmptiedBetweenTwoStoresLosesItsKey) {
  DialogModel dialog = Dialog();
  dialog.SetText("txtFirst", "kept");
  dialog.SetText("txtSecond", "gone");
  Store(dialog, "frmTest");
  EXPECT_EQ(SettingsText(), "[frmTest]\r\ntxtFirst=kept\r\ntxtSecond=gone\r\n");

  dialog.SetText("txtSecond", "");
  Store(dialog, "frmTest");
  EXPECT_EQ(SettingsText(), "[frmTest]\r\ntxtFirst=kept\r\n");

  DialogModel restored = Dialog();
  restored.SetText("txtSecond", "opening");
  Restore(restored, "frmTest");
  EXPECT_EQ(restored.Text("txtFirst"), "kept");
  EXPECT_EQ(restored.Text("txtSecond"), "opening");
}

TEST_F(TextRoundTripTest, MultibyteTextComesBackWhole) {
  EXPECT_EQ(TextAfterRoundTrip("Ärger über Straße €"), "Ärger über Straße €");
}

}  // namespace
}  // namespace nomra::dialog
