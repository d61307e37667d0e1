#include <gtest/gtest.h>

#include <vector>

#include "actions/BuiltInActions.h"
#include "actions/FrmPrefixSuffix.h"
#include "rename/ActionFixture.h"
#include "rename/ActionFrame.h"
#include "rename/ActionScope.h"

namespace nomra::rename {
namespace {

// An action dialog with traits of the test's choosing: it appends txtValue
// to each pending name, and its input check can refuse.
class TestActionDialog final : public ActionDialog {
 public:
  explicit TestActionDialog(ActionTraits traits) : ActionDialog(traits.dialogName), traits_(std::move(traits)) {
    Model().AddText("txtValue");
  }
  const ActionTraits& Traits() const override { return traits_; }
  bool CheckInputs(const ActionContext& context) override {
    if (refuse) context.User().Ask({"MsgText99", "MsgCap99", core::MessageStyle::OkWarning, {}});
    return !refuse;
  }
  void Run(const ActionContext& context) override {
    const std::string value = Model().Text("txtValue");
    RewritePendingNames(context, [&](int, const core::FileEntry& entry) { return entry[core::kColNewName] + value; });
  }
  bool refuse = false;

 private:
  ActionTraits traits_;
};

// frmMove's rows of the table: stored under the section of the prefix and
// suffix dialog, looked for under its own name, restored when it first
// comes to the front.
ActionTraits MoveLikeTraits() { return {"frmMove", "FrmPS", "frmMove", 8, false, RestoreMoment::OnFirstActivation}; }

class ActionFrameTest : public testing::ActionTest {
 protected:
  ActionFrameTest() { AddFiles({"a.txt", "b.txt"}); }

  bool Apply(const std::string& prefix, const std::string& suffix = "") {
    prefixSuffix.Model().SetText("txtPr", prefix);
    prefixSuffix.Model().SetText("txtSu", suffix);
    return ApplyActionDialog(prefixSuffix, Actions());
  }

  // A script of one prefix/suffix step, chosen to be played.
  void PlayOneStepScript(int runMode, const std::string& prefix) {
    script.runPath = data.WriteFile("Script/20261115023303.nrs",
                                    "[Main]\r\nSteps=1\r\n\r\n[1]\r\nType=5\r\ntxtPr=" + prefix + "\r\n");
    script.runMode = static_cast<std::int16_t>(runMode);
    script.runStep = 1;
  }

  void WriteRememberedPrefix(const std::string& prefix) {
    data.WriteFile(settings::kSettingsFileName, "[FrmPS]\r\ntxtPr=" + prefix + "\r\n");
  }

  actions::FrmPrefixSuffix prefixSuffix;
};

TEST_F(ActionFrameTest, ApplyRemembersTheInputsUnderFrmPSWhenRememberingIsOn) {
  script.saveDialogSettings = true;
  ASSERT_TRUE(Apply("new ", "_1"));
  EXPECT_EQ(SettingsText(), "[FrmPS]\r\ntxtPr=new\xC2\x90\r\ntxtSu=_1\r\n");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"new a_1.txt", "new b_1.txt"}));
}

TEST_F(ActionFrameTest, ApplyRemembersNothingWhenRememberingIsOff) {
  ASSERT_TRUE(Apply("new"));
  EXPECT_FALSE(testing::Exists(script.settingsPath));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"newa.txt", "newb.txt"}));
}

TEST_F(ActionFrameTest, ApplyWhileAScriptPlaysLeavesTheRememberedInputsAlone) {
  script.saveDialogSettings = true;
  WriteRememberedPrefix("mine");
  const std::string remembered = SettingsText();
  for (int runMode : {1, 2}) {
    script.runMode = static_cast<std::int16_t>(runMode);
    ASSERT_TRUE(Apply("played"));
    EXPECT_EQ(SettingsText(), remembered) << runMode;
  }
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"playedplayeda.txt", "playedplayedb.txt"}));
}

TEST_F(ActionFrameTest, ApplyDuringARecordingAppendsAStepOfTheActionsType) {
  data.WriteFile(settings::kScriptTempFileName, "[Main]\r\nSteps=0\r\n");
  script.recording = 1;
  ASSERT_TRUE(Apply("x"));
  EXPECT_EQ(RecordingText(), "[Main]\r\nSteps=1\r\n\r\n[1]\r\nType=5\r\ntxtPr=x\r\n");
  EXPECT_FALSE(testing::Exists(script.settingsPath));
}

TEST_F(ActionFrameTest, ApplyingTwiceRecordsTwoSteps) {
  data.WriteFile(settings::kScriptTempFileName, "[Main]\r\nSteps=0\r\n");
  script.recording = 1;
  ASSERT_TRUE(Apply("x"));
  ASSERT_TRUE(Apply("", "y"));
  EXPECT_EQ(RecordingText(), "[Main]\r\nSteps=2\r\n\r\n[1]\r\nType=5\r\ntxtPr=x\r\n\r\n[2]\r\nType=5\r\ntxtSu=y\r\n");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"xay.txt", "xby.txt"}));
}

TEST_F(ActionFrameTest, ApplyWithoutARecordingWritesNoStep) {
  ASSERT_TRUE(Apply("x"));
  EXPECT_FALSE(testing::Exists(script.tempPath));
}

TEST_F(ActionFrameTest, ApplyBothRemembersAndRecordsWhenBothAreOn) {
  data.WriteFile(settings::kScriptTempFileName, "[Main]\r\nSteps=0\r\n");
  script.recording = 1;
  script.saveDialogSettings = true;
  ASSERT_TRUE(Apply("x"));
  EXPECT_EQ(SettingsText(), "[FrmPS]\r\ntxtPr=x\r\n");
  EXPECT_EQ(RecordingText(), "[Main]\r\nSteps=1\r\n\r\n[1]\r\nType=5\r\ntxtPr=x\r\n");
}

TEST_F(ActionFrameTest, RefusedInputsAreNeitherRememberedNorRecordedNorApplied) {
  data.WriteFile(settings::kScriptTempFileName, "[Main]\r\nSteps=0\r\n");
  script.recording = 1;
  script.saveDialogSettings = true;
  TestActionDialog dialog({"frmTest", "frmTest", "frmTest", 7, false, RestoreMoment::OnLoad});
  dialog.Model().SetText("txtValue", "!");
  dialog.refuse = true;
  EXPECT_FALSE(ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_FALSE(testing::Exists(script.settingsPath));
  EXPECT_EQ(RecordingText(), "[Main]\r\nSteps=0\r\n");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST_F(ActionFrameTest, LoadRestoresTheRememberedInputsFromFrmPS) {
  script.saveDialogSettings = true;
  WriteRememberedPrefix("mine\xC2\x90");
  LoadActionDialog(prefixSuffix, Actions());
  EXPECT_EQ(prefixSuffix.Model().Text("txtPr"), "mine ");
}

TEST_F(ActionFrameTest, InputsRememberedOnApplyComeBackAtTheNextOpening) {
  script.saveDialogSettings = true;
  ASSERT_TRUE(Apply(" two  blanks ", "."));
  actions::FrmPrefixSuffix reopened;
  LoadActionDialog(reopened, Actions());
  EXPECT_EQ(reopened.Model().Text("txtPr"), " two  blanks ");
  EXPECT_EQ(reopened.Model().Text("txtSu"), ".");
}

TEST_F(ActionFrameTest, LoadRestoresNothingWhenRememberingIsOff) {
  WriteRememberedPrefix("mine");
  LoadActionDialog(prefixSuffix, Actions());
  EXPECT_EQ(prefixSuffix.Model().Text("txtPr"), "");
}

TEST_F(ActionFrameTest, LoadDuringPlaybackTakesThePlayedStepAndNotTheSettings) {
  script.saveDialogSettings = true;
  WriteRememberedPrefix("mine");
  for (int runMode : {1, 2}) {
    actions::FrmPrefixSuffix dialog;
    PlayOneStepScript(runMode, "played");
    LoadActionDialog(dialog, Actions());
    EXPECT_EQ(dialog.Model().Text("txtPr"), "played") << runMode;
  }
}

TEST_F(ActionFrameTest, LoadDuringPlaybackTakesTheStepAlsoWhenRememberingIsOff) {
  PlayOneStepScript(2, "played");
  LoadActionDialog(prefixSuffix, Actions());
  EXPECT_EQ(prefixSuffix.Model().Text("txtPr"), "played");
}

TEST_F(ActionFrameTest, OnlyRunningAllStepsPressesOkAtTheFirstActivation) {
  script.runMode = 1;
  EXPECT_TRUE(ActivateActionDialog(prefixSuffix, Actions(), true));
  EXPECT_FALSE(ActivateActionDialog(prefixSuffix, Actions(), false));
  script.runMode = 2;
  EXPECT_FALSE(ActivateActionDialog(prefixSuffix, Actions(), true));
  script.runMode = 0;
  EXPECT_FALSE(ActivateActionDialog(prefixSuffix, Actions(), true));
}

TEST_F(ActionFrameTest, DialogThatRestoresOnActivationDoesSoTheFirstTimeOnly) {
  script.saveDialogSettings = true;
  data.WriteFile(settings::kSettingsFileName, "[frmNumber]\r\ntxtValue=remembered\r\n");
  TestActionDialog dialog({"frmNumber", "frmNumber", "frmNumber", 1, true, RestoreMoment::OnFirstActivation});
  LoadActionDialog(dialog, Actions());
  EXPECT_EQ(dialog.Model().Text("txtValue"), "");
  ActivateActionDialog(dialog, Actions(), true);
  EXPECT_EQ(dialog.Model().Text("txtValue"), "remembered");
  dialog.Model().SetText("txtValue", "typed");
  ActivateActionDialog(dialog, Actions(), false);
  EXPECT_EQ(dialog.Model().Text("txtValue"), "typed");
}

TEST_F(ActionFrameTest, MoveDialogStoresUnderFrmPSAndNeverGetsItsInputsBack) {
  script.saveDialogSettings = true;
  TestActionDialog applied(MoveLikeTraits());
  applied.Model().SetText("txtValue", "moved");
  ASSERT_TRUE(ApplyActionDialog(applied, Actions()));
  EXPECT_EQ(SettingsText(), "[FrmPS]\r\ntxtValue=moved\r\n");

  TestActionDialog reopened(MoveLikeTraits());
  LoadActionDialog(reopened, Actions());
  ActivateActionDialog(reopened, Actions(), true);
  EXPECT_EQ(reopened.Model().Text("txtValue"), "");
}

TEST_F(ActionFrameTest, DialogThatRemembersNothingStoresNoSection) {
  script.saveDialogSettings = true;
  TestActionDialog dialog({"frmRenumber", "", "", 2, true, RestoreMoment::OnLoad});
  dialog.Model().SetText("txtValue", "x");
  ASSERT_TRUE(ApplyActionDialog(dialog, Actions()));
  EXPECT_FALSE(testing::Exists(script.settingsPath));
}

TEST_F(ActionFrameTest, PlayingWithoutWindowAppliesTheStepWhenAllStepsRun) {
  PlayOneStepScript(1, "played_");
  PlayActionWithoutWindow(prefixSuffix, Actions());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"played_a.txt", "played_b.txt"}));
}

TEST_F(ActionFrameTest, PlayingWithoutWindowInSingleStepsLeavesTheNames) {
  PlayOneStepScript(2, "played_");
  PlayActionWithoutWindow(prefixSuffix, Actions());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST(BuiltInActionsTest, StepTypeFiveOpensThePrefixAndSuffixDialog) {
  const std::unique_ptr<ActionDialog> dialog = actions::CreateActionDialog(5);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->Model().Name(), "frmPrefixSuffix");
  EXPECT_EQ(dialog->Traits().stepType, 5);
}

TEST(BuiltInActionsTest, TypesWithoutADialogGiveNone) {
  for (int type : {-1, 0, 11, 32767}) EXPECT_EQ(actions::CreateActionDialog(type), nullptr) << type;
}

TEST(BuiltInActionsTest, EveryKnownTypeOpensADialogOfThatType) {
  const std::vector<int> types = actions::KnownStepTypes();
  EXPECT_FALSE(types.empty());
  for (int type : types) {
    EXPECT_GE(type, 1);
    EXPECT_LE(type, 10);
    const std::unique_ptr<ActionDialog> dialog = actions::CreateActionDialog(type);
    ASSERT_NE(dialog, nullptr) << type;
    EXPECT_EQ(dialog->Traits().stepType, type);
  }
}

}  // namespace
}  // namespace nomra::rename
