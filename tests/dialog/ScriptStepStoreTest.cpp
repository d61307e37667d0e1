#include <gtest/gtest.h>

#include "base/Fault.h"
#include "dialog/DialogStateFixture.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::dialog {
namespace {

using dialog::DialogModel;

// Mode 2: each store appends a step to the recording's work file, and
// restoring reads a step of the script being played.
class ScriptStepStoreTest : public testing::DialogStateTest {
 protected:
  static DialogModel Dialog(const std::string& prefix) {
    DialogModel model("frmPrefixSuffix");
    model.AddText("txtPr").text = prefix;
    model.AddText("txtSu");
    model.AddNoValue("cmdOK");
    return model;
  }

  std::string RecordingValue(const std::string& section, const std::string& key) const {
    return Ini(session.tempPath).ReadString(section, key);
  }
};

TEST_F(ScriptStepStoreTest, EachStoreAppendsANumberedStepWithItsType) {
  WriteRecording("[Main]\r\nSteps=0\r\n");
  RecordStep(Dialog("a b"), "5");
  EXPECT_EQ(RecordingText(),
            std::string("[Main]\r\nSteps=1\r\n\r\n[1]\r\nType=5\r\ntxtPr=a") + testing::kStandIn + "b\r\n");
  RecordStep(Dialog("c"), "5");
  EXPECT_EQ(RecordingText(), std::string("[Main]\r\nSteps=2\r\n\r\n[1]\r\nType=5\r\ntxtPr=a") + testing::kStandIn +
                                 "b\r\n\r\n[2]\r\nType=5\r\ntxtPr=c\r\n");
}

TEST_F(ScriptStepStoreTest, StepIsCountedAndTypedBeforeItsValues) {
  WriteRecording("[Main]\r\nSteps=4\r\n");
  RecordStep(Dialog("x"), "8");
  EXPECT_EQ(RecordingText(), "[Main]\r\nSteps=5\r\n\r\n[5]\r\nType=8\r\ntxtPr=x\r\n");
}

TEST_F(ScriptStepStoreTest, MissingStepCounterOpensStepZero) {
  RecordStep(Dialog("x"), "5");
  EXPECT_EQ(RecordingValue("Main", "Steps"), "0");
  EXPECT_EQ(RecordingValue("0", "Type"), "5");
  EXPECT_EQ(RecordingValue("0", "txtPr"), "x");
  EXPECT_EQ(RecordingValue("1", "Type"), "");
}

TEST_F(ScriptStepStoreTest, StepCounterAt32767IsAnOverflowAndWritesNothing) {
  const std::string full = "[Main]\r\nSteps=32767\r\n";
  WriteRecording(full);
  EXPECT_THROW(RecordStep(Dialog("x"), "5"), base::RuntimeFault);
  EXPECT_EQ(RecordingText(), full);
}

TEST_F(ScriptStepStoreTest, StepCounterReaches32767) {
  WriteRecording("[Main]\r\nSteps=32766\r\n");
  RecordStep(Dialog("x"), "5");
  EXPECT_EQ(RecordingValue("Main", "Steps"), "32767");
  EXPECT_EQ(RecordingValue("32767", "txtPr"), "x");
}

TEST_F(ScriptStepStoreTest, StepCounterThatIsNoNumberIsARuntimeFault) {
  const std::string broken = "[Main]\r\nSteps=many\r\n";
  WriteRecording(broken);
  EXPECT_THROW(RecordStep(Dialog("x"), "5"), base::RuntimeFault);
  EXPECT_EQ(RecordingText(), broken);
}

TEST_F(ScriptStepStoreTest, RecordingLeavesTheSettingsFileAlone) {
  WriteRecording("[Main]\r\nSteps=0\r\n");
  RecordStep(Dialog("x"), "5");
  EXPECT_FALSE(testing::Exists(session.settingsPath));
}

TEST_F(ScriptStepStoreTest, RestoringReadsTheStepOfThePlayedScriptByItsNumber) {
  session.runPath = data.WriteFile("Script/20261115023303.nrs",
                                   std::string("[Main]\r\nSteps=2\r\n\r\n[1]\r\nType=5\r\ntxtPr=one\r\n\r\n"
                                               "[2]\r\nType=5\r\ntxtPr=two") +
                                       testing::kStandIn + "\r\n");
  WriteSettings("[2]\r\ntxtPr=from the settings\r\n");
  DialogModel dialog = Dialog("opening");
  dialog::RestoreDialogState(dialog, "2", dialog::kScriptMode, session, nomra::testing::RealFiles(), frontEnd);
  EXPECT_EQ(dialog.Text("txtPr"), "two ");
}

}  // namespace
}  // namespace nomra::dialog
