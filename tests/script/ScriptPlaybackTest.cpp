#include <gtest/gtest.h>

#include "base/Fault.h"
#include "dialog/DialogState.h"
#include "rename/ActionFrame.h"
#include "script/ScriptFixture.h"
#include "script/ScriptPlayback.h"
#include "script/ScriptRecording.h"
#include "support/RealFiles.h"

namespace nomra::script {
namespace {

// The example of two steps from the description of the format, as a user's
// editor would save it: UTF-8 with the stand-in for each blank.
constexpr char kExampleScript[] =
    "[Main]\r\nSteps=2\r\nName=Holiday pictures\r\n\r\n"
    "[1]\r\nType=5\r\ntxtPr=Rome\xC2\x90"
    "2009\xC2\x90\r\n\r\n"
    "[2]\r\nType=4\r\nopt2(1)=-1\r\n";

class ScriptPlaybackTest : public testing::ScriptTest {
 protected:
  ScriptPlaybackTest() { AddFiles({"a.jpg", "b.jpg"}); }

  // Chooses the script to play, as frmScript does.
  void Choose(const std::string& fileName, const std::string& content, int runMode = 1) {
    script.runPath = WriteScript(fileName, content);
    script.runMode = static_cast<std::int16_t>(runMode);
  }

  void Play() { PlayScript(script, nomra::testing::RealFiles(), HeadlessOpener()); }

  bool NoScriptPlays() const { return script.runMode == 0 && script.runPath.empty(); }
  bool UserWasToldNothing() const {
    return frontEnd.asked.empty() && frontEnd.plainMessages.empty() && frontEnd.faults.empty();
  }
};

// Notes the step types handed over and the step number each came with.
struct OpenedSteps {
  StepOpener Opener(const dialog::ScriptSession& session) {
    return [this, &session](int type) {
      types.push_back(type);
      steps.push_back(session.runStep);
    };
  }
  std::vector<int> types;
  std::vector<int> steps;
};

// A dialog whose own check refuses whatever it was given, and says so.
class RefusingDialog final : public rename::ActionDialog {
 public:
  RefusingDialog() : rename::ActionDialog("frmInsert") { Model().AddText("txtInsert"); }
  const rename::ActionTraits& Traits() const override {
    static const rename::ActionTraits traits{"frmInsert", "frmInsert", "frmInsert",
                                             7,           false,       rename::RestoreMoment::OnLoad};
    return traits;
  }
  bool CheckInputs(const rename::ActionContext& context) override {
    context.User().Ask({"MsgText05", "MsgCap02", core::MessageStyle::OkWarning, {Model().Text("txtInsert")}});
    return false;
  }
  void Run(const rename::ActionContext&) override { ADD_FAILURE() << "a refused step ran"; }
};

TEST_F(ScriptPlaybackTest, ExampleScriptPlaysHeadlessToTheRightPendingNames) {
  Choose("20261115023303.nrs", kExampleScript);
  std::vector<std::string> caseOptions;
  PlayScript(script, fileSystem, [&](int type) {
    openedTypes.push_back(type);
    if (type != 4) return PlayStepWithoutWindow(Actions(), type);
    // The case dialog's option group, restored from its step.
    dialog::DialogModel caseDialog("frmULCase");
    for (int index = 0; index < 3; ++index) caseDialog.AddOption("opt2", "opt2", index);
    caseDialog.SetOption("opt2(0)", true);
    dialog::RestoreDialogState(caseDialog, std::to_string(script.runStep), dialog::kScriptMode, script,
                               nomra::testing::RealFiles(), frontEnd);
    for (const dialog::DialogInput& input : caseDialog.Inputs()) {
      if (input.selected) caseOptions.push_back(input.Key());
    }
  });
  EXPECT_EQ(openedTypes, (std::vector<int>{5, 4}));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Rome 2009 a.jpg", "Rome 2009 b.jpg"}));
  EXPECT_EQ(caseOptions, (std::vector<std::string>{"opt2(1)"}));
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, StepsArePlayedInOrderEachWithItsOwnNumber) {
  Choose("20261115023303.nrs",
         "[Main]\r\nSteps=3\r\n[1]\r\nType=5\r\ntxtPr=1\r\n[2]\r\nType=5\r\ntxtPr=2\r\n[3]\r\nType=5\r\ntxtSu=3\r\n");
  OpenedSteps opened;
  const StepOpener noting = opened.Opener(script);
  PlayScript(script, fileSystem, [&](int type) {
    noting(type);
    PlayStepWithoutWindow(Actions(), type);
  });
  EXPECT_EQ(opened.steps, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"21a3.jpg", "21b3.jpg"}));
}

TEST_F(ScriptPlaybackTest, NothingPlaysWithoutAScriptOrARunMode) {
  OpenedSteps opened;
  script.runMode = 1;
  PlayScript(script, nomra::testing::RealFiles(), opened.Opener(script));
  EXPECT_TRUE(NoScriptPlays());

  Choose("20261115023303.nrs", kExampleScript, 0);
  PlayScript(script, nomra::testing::RealFiles(), opened.Opener(script));
  EXPECT_TRUE(opened.types.empty());
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, MissingStepCounterEndsTheScriptAtOnce) {
  Choose("20261115023303.nrs", "[Main]\r\nName=No count\r\n\r\n[1]\r\nType=5\r\ntxtPr=x\r\n");
  Play();
  EXPECT_TRUE(openedTypes.empty());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.jpg", "b.jpg"}));
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, StepCounterThatIsNoNumberEndsTheCommandAndNoScriptPlaysAfterwards) {
  Choose("20261115023303.nrs", "[Main]\r\nSteps=two\r\n\r\n[1]\r\nType=5\r\ntxtPr=x\r\n");
  EXPECT_THROW(Play(), base::RuntimeFault);
  EXPECT_TRUE(openedTypes.empty());
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, StepWithAMissingTypeOrATypeThatIsNoNumberIsSkipped) {
  Choose("20261115023303.nrs",
         "[Main]\r\nSteps=3\r\n[1]\r\ntxtPr=a\r\n[2]\r\nType=five\r\ntxtPr=b\r\n[3]\r\nType=5\r\ntxtPr=c\r\n");
  Play();
  EXPECT_EQ(openedTypes, (std::vector<int>{5}));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"ca.jpg", "cb.jpg"}));
  EXPECT_TRUE(UserWasToldNothing());
}

TEST_F(ScriptPlaybackTest, StepOfType11IsSkippedWithoutAMessage) {
  Choose("20261115023303.nrs", "[Main]\r\nSteps=2\r\n[1]\r\nType=11\r\ntxtPr=a\r\n[2]\r\nType=5\r\ntxtPr=b\r\n");
  Play();
  EXPECT_EQ(openedTypes, (std::vector<int>{5}));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"ba.jpg", "bb.jpg"}));
  EXPECT_TRUE(UserWasToldNothing());
}

TEST_F(ScriptPlaybackTest, TypesOneToTenEachOpenTheirDialog) {
  std::string text = "[Main]\r\nSteps=12\r\n";
  for (int step = 1; step <= 12; ++step) {
    text += "[" + std::to_string(step) + "]\r\nType=" + std::to_string(step - 1) + "\r\n";
  }
  Choose("20261115023303.nrs", text);
  OpenedSteps opened;
  PlayScript(script, nomra::testing::RealFiles(), opened.Opener(script));
  EXPECT_EQ(opened.types, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(ScriptPlaybackTest, StepRefusedByItsDialogsCheckShowsItsMessageAndTheNextStepRuns) {
  Choose("20261115023303.nrs", "[Main]\r\nSteps=2\r\n[1]\r\nType=7\r\ntxtInsert=bad\r\n[2]\r\nType=5\r\ntxtPr=b\r\n");
  PlayScript(script, fileSystem, [&](int type) {
    if (type != 7) return PlayStepWithoutWindow(Actions(), type);
    RefusingDialog dialog;
    rename::PlayActionWithoutWindow(dialog, Actions());
  });
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].arguments, (std::vector<std::string>{"bad"}));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"ba.jpg", "bb.jpg"}));
}

TEST_F(ScriptPlaybackTest, ScriptThatIsNotUtf8IsReadAsWindows1252) {
  Choose("20261115023303.nrs", "[Main]\r\nSteps=1\r\nName=Caf\xE9\r\n\r\n[1]\r\nType=5\r\ntxtPr=Caf\xE9\x90\r\n");
  Play();
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Café a.jpg", "Café b.jpg"}));
}

TEST_F(ScriptPlaybackTest, SingleStepsWithEveryDialogCancelledLeaveTheListAndEndNormally) {
  Choose("20261115023303.nrs", kExampleScript, 2);
  Play();
  EXPECT_EQ(openedTypes, (std::vector<int>{5, 4}));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.jpg", "b.jpg"}));
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, ScriptPlayedDuringARecordingIsRecordedStepByStep) {
  ResetScriptTemp(script, nomra::testing::RealFiles());
  BeginScriptRecording(script, nomra::testing::RealFiles());
  Choose(
      "20261115023303.nrs",
      "[Main]\r\nSteps=2\r\nName=Two\r\n\r\n[1]\r\nType=5\r\ntxtPr=Rome\xC2\x90\r\n\r\n[2]\r\nType=5\r\ntxtSu=_x\r\n");
  Play();
  EXPECT_EQ(RecordingText(),
            "[Main]\r\nSteps=2\r\n\r\n[1]\r\nType=5\r\ntxtPr=Rome\xC2\x90\r\n\r\n[2]\r\nType=5\r\ntxtSu=_x\r\n");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Rome a_x.jpg", "Rome b_x.jpg"}));
}

TEST_F(ScriptPlaybackTest, PlayedStepIsNotMixedWithNorStoredToTheRememberedInputs) {
  script.saveDialogSettings = true;
  const std::string remembered = "[FrmPS]\r\ntxtPr=mine\r\n";
  data.WriteFile(settings::kSettingsFileName, remembered);
  Choose("20261115023303.nrs", "[Main]\r\nSteps=1\r\n\r\n[1]\r\nType=5\r\ntxtSu=_x\r\n");
  Play();
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a_x.jpg", "b_x.jpg"}));
  EXPECT_EQ(SettingsText(), remembered);
}

TEST_F(ScriptPlaybackTest, SelectedScriptThatExistsIsPlayedWithAllSteps) {
  WriteScript("20261115023303.nrs", kExampleScript);
  EXPECT_TRUE(shell::PlaySelectedScript(window, texts, script, fileSystem, "20261115023303.nrs", HeadlessOpener()));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Rome 2009 a.jpg", "Rome 2009 b.jpg"}));
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, SelectedScriptDeletedMeanwhileShowsStatusTextFiveAndNoMessage) {
  window.selectedScriptLabel = "Holiday pictures [2026-11-15, 02:33:03]";
  EXPECT_FALSE(shell::PlaySelectedScript(window, texts, script, fileSystem, "20261115023303.nrs", HeadlessOpener()));
  EXPECT_EQ(window.selectedScriptLabel, "No script");
  EXPECT_TRUE(openedTypes.empty());
  EXPECT_TRUE(NoScriptPlays());
  EXPECT_TRUE(UserWasToldNothing());
}

TEST_F(ScriptPlaybackTest, ButtonWithoutAChosenScriptShowsStatusTextFive) {
  data.MakeFolder("Script");
  EXPECT_FALSE(shell::PlaySelectedScript(window, texts, script, fileSystem, "", HeadlessOpener()));
  EXPECT_EQ(window.selectedScriptLabel, "No script");
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, ArgumentWithAPathPlaysThatFile) {
  const std::string path = data.WriteFile("elsewhere/tidy.nrs", kExampleScript);
  EXPECT_TRUE(RunScriptArgument(script, fileSystem, path, HeadlessOpener()));
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Rome 2009 a.jpg", "Rome 2009 b.jpg"}));
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, ArgumentWithABareNameIsLookedForInTheScriptsFolderWithoutItsQuotes) {
  WriteScript("20261115023303.nrs", kExampleScript);
  EXPECT_TRUE(RunScriptArgument(script, fileSystem, "\"20261115023303.nrs\"", HeadlessOpener()));
  EXPECT_EQ(openedTypes, (std::vector<int>{5, 4}));
  EXPECT_TRUE(NoScriptPlays());
}

TEST_F(ScriptPlaybackTest, ArgumentThatCannotBeFoundIsPassedOverSilentlyAndKeptAsThePath) {
  EXPECT_FALSE(RunScriptArgument(script, fileSystem, "missing.nrs", HeadlessOpener()));
  EXPECT_EQ(script.runPath, ScriptFolderPath() + "missing.nrs");
  EXPECT_EQ(script.runMode, 0);
  EXPECT_TRUE(openedTypes.empty());
  EXPECT_TRUE(UserWasToldNothing());
}

}  // namespace
}  // namespace nomra::script
