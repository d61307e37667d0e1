#include <gtest/gtest.h>

#include "actions/FrmPrefixSuffix.h"
#include "rename/ActionFrame.h"
#include "script/ScriptFixture.h"
#include "script/ScriptRecording.h"
#include "support/RealFiles.h"

namespace nomra::script {
namespace {

class ScriptRecordingTest : public testing::ScriptTest {
 protected:
  ScriptRecordingTest() {
    AddFiles({"a.txt"});
    ResetScriptTemp(script, nomra::testing::RealFiles());
  }

  // The user fills the prefix and suffix dialog and presses Apply.
  void ApplyPrefixSuffix(const std::string& prefix, const std::string& suffix = "") {
    actions::FrmPrefixSuffix dialog;
    dialog.Model().SetText("txtPr", prefix);
    dialog.Model().SetText("txtSu", suffix);
    rename::ApplyActionDialog(dialog, Actions());
  }

  // A whole recording of one prefix, stored under `name`.
  bool RecordOneStep(const std::string& prefix, const std::string& name) {
    BeginScriptRecording(script, nomra::testing::RealFiles());
    ApplyPrefixSuffix(prefix);
    frontEnd.inputs.push_back(name);
    return EndScriptRecording(script, fileSystem, frontEnd, clock);
  }

  std::vector<std::string> AskedKeys() const {
    std::vector<std::string> keys;
    for (const core::Message& message : frontEnd.asked) keys.push_back(message.textKey);
    return keys;
  }
};

TEST_F(ScriptRecordingTest, ResetRemovesTheWorkFileAnEarlierRunLeft) {
  data.WriteFile("script.tmp", "[Main]\r\nSteps=3\r\n");
  script.tempPath.clear();
  script.recording = 1;
  ResetScriptTemp(script, nomra::testing::RealFiles());
  EXPECT_EQ(script.tempPath, data.Path() + "script.tmp");
  EXPECT_FALSE(testing::Exists(data.Path() + "script.tmp"));
  EXPECT_EQ(script.recording, 0);
}

TEST_F(ScriptRecordingTest, BeginningWritesOnlyTheStepCounter) {
  BeginScriptRecording(script, nomra::testing::RealFiles());
  EXPECT_EQ(script.recording, 1);
  EXPECT_EQ(RecordingText(), "[Main]\r\nSteps=0\r\n");
}

TEST_F(ScriptRecordingTest, RecordedStepIsStoredExactlyInTheScriptFormat) {
  ASSERT_TRUE(RecordOneStep("Rome 2009 ", "Holiday pictures"));
  EXPECT_EQ(ScriptFilesOnDisk(), (std::vector<std::string>{"20261115023303.nrs"}));
  EXPECT_EQ(testing::ReadWholeFile(ScriptFolderPath() + "20261115023303.nrs"),
            "[Main]\r\nSteps=1\r\nName=Holiday pictures\r\n\r\n[1]\r\nType=5\r\ntxtPr=Rome\xC2\x90"
            "2009\xC2\x90\r\n");
  EXPECT_FALSE(testing::Exists(script.tempPath));
  EXPECT_EQ(script.recording, 0);
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Rome 2009 a.txt"}));
}

TEST_F(ScriptRecordingTest, NamePromptOffersThePresentDateAndTime) {
  ASSERT_TRUE(RecordOneStep("x", "Named"));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText31");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap12");
  EXPECT_EQ(frontEnd.inputPresets, (std::vector<std::string>{"2026-11-15 02:33:03"}));
}

TEST_F(ScriptRecordingTest, RecordingWithNoStepStoresNothingAndAsksNothing) {
  BeginScriptRecording(script, nomra::testing::RealFiles());
  EXPECT_FALSE(EndScriptRecording(script, fileSystem, frontEnd, clock));
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(script.recording, 0);
  // The scripts folder is made all the same, and stays empty.
  EXPECT_TRUE(testing::Exists(ScriptFolderPath()));
  EXPECT_TRUE(ScriptFilesOnDisk().empty());
}

TEST_F(ScriptRecordingTest, CancelledNameThenNoAsksAgainWithAFreshDate) {
  clock = [this] {
    std::tm moment = now;
    ++now.tm_sec;
    return moment;
  };
  BeginScriptRecording(script, nomra::testing::RealFiles());
  ApplyPrefixSuffix("x");
  frontEnd.inputs = {"", "Second try"};
  frontEnd.answers = {core::Answer::No};
  ASSERT_TRUE(EndScriptRecording(script, fileSystem, frontEnd, clock));
  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{"MsgText31", "MsgText32", "MsgText31"}));
  EXPECT_EQ(frontEnd.asked[1].captionKey, "MsgCap12");
  EXPECT_EQ(frontEnd.asked[1].style, core::MessageStyle::YesNoDefaultNo);
  EXPECT_EQ(frontEnd.inputPresets, (std::vector<std::string>{"2026-11-15 02:33:03", "2026-11-15 02:33:04"}));
  const std::vector<std::string> stored = ScriptFilesOnDisk();
  ASSERT_EQ(stored.size(), 1u);
  EXPECT_EQ(ScriptDisplayText(nomra::testing::Ini(ScriptFolderPath() + stored[0]), stored[0]).substr(0, 11),
            "Second try ");
}

TEST_F(ScriptRecordingTest, CancelledNameThenYesStoresNothingAndKeepsTheWorkFile) {
  BeginScriptRecording(script, nomra::testing::RealFiles());
  ApplyPrefixSuffix("x");
  const std::string recorded = RecordingText();
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_FALSE(EndScriptRecording(script, fileSystem, frontEnd, clock));
  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{"MsgText31", "MsgText32"}));
  EXPECT_EQ(RecordingText(), recorded);
  EXPECT_TRUE(ScriptFilesOnDisk().empty());
  EXPECT_EQ(script.recording, 0);
}

TEST_F(ScriptRecordingTest, NameOfBlanksOnlyCountsAsCancelled) {
  BeginScriptRecording(script, nomra::testing::RealFiles());
  ApplyPrefixSuffix("x");
  frontEnd.inputs = {"   "};
  frontEnd.answers = {core::Answer::Yes};
  EXPECT_FALSE(EndScriptRecording(script, fileSystem, frontEnd, clock));
  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{"MsgText31", "MsgText32"}));
  EXPECT_TRUE(ScriptFilesOnDisk().empty());
}

TEST_F(ScriptRecordingTest, NameIsStoredAsTypedWithItsBlanks) {
  ASSERT_TRUE(RecordOneStep("x", "  Trip  "));
  const std::string text = testing::ReadWholeFile(ScriptFolderPath() + "20261115023303.nrs");
  EXPECT_NE(text.find("\r\nName=  Trip  \r\n"), std::string::npos) << text;
}

TEST_F(ScriptRecordingTest, TwoRecordingsStoredInTheSameSecondAreBothKept) {
  ASSERT_TRUE(RecordOneStep("x", "first"));
  ASSERT_TRUE(RecordOneStep("y", "second"));
  ASSERT_EQ(ScriptFilesOnDisk(), (std::vector<std::string>{"20261115023303.nrs", "20261115023304.nrs"}));
  EXPECT_EQ(ScriptDisplayText(nomra::testing::Ini(ScriptFolderPath() + "20261115023303.nrs"), "20261115023303.nrs"),
            "first [2026-11-15, 02:33:03]");
  EXPECT_EQ(ScriptDisplayText(nomra::testing::Ini(ScriptFolderPath() + "20261115023304.nrs"), "20261115023304.nrs"),
            "second [2026-11-15, 02:33:04]");
}

TEST_F(ScriptRecordingTest, ScriptsOfTheSameNameAreBothKeptUnderTheirOwnFileNames) {
  ASSERT_TRUE(RecordOneStep("x", "Same"));
  now.tm_min = 40;
  ASSERT_TRUE(RecordOneStep("y", "Same"));
  EXPECT_EQ(ScriptFilesOnDisk(), (std::vector<std::string>{"20261115023303.nrs", "20261115024003.nrs"}));
}

TEST_F(ScriptRecordingTest, AbandonedRecordingIsOverwrittenKeyByKeyAndItsStaleStepsArePassedOver) {
  BeginScriptRecording(script, nomra::testing::RealFiles());
  ApplyPrefixSuffix("x", "old");
  ApplyPrefixSuffix("y");
  frontEnd.answers = {core::Answer::Yes};
  ASSERT_FALSE(EndScriptRecording(script, fileSystem, frontEnd, clock));

  BeginScriptRecording(script, nomra::testing::RealFiles());
  ApplyPrefixSuffix("", "z");
  frontEnd.inputs = {"again"};
  ASSERT_TRUE(EndScriptRecording(script, fileSystem, frontEnd, clock));
  const std::string stored = ScriptFolderPath() + "20261115023303.nrs";
  EXPECT_EQ(testing::ReadWholeFile(stored),
            "[Main]\r\nSteps=1\r\nName=again\r\n\r\n[1]\r\nType=5\r\ntxtSu=z\r\n\r\n[2]\r\nType=5\r\ntxtPr=y\r\n");

  ASSERT_EQ(PendingNames(), (std::vector<std::string>{"yxaoldz.txt"}));
  script.runPath = stored;
  script.runMode = 1;
  PlayScript(script, nomra::testing::RealFiles(), HeadlessOpener());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"yxaoldzz.txt"}));
  EXPECT_EQ(openedTypes, (std::vector<int>{5}));
}

TEST_F(ScriptRecordingTest, ScriptThatCannotBeStoredStaysInTheWorkFileAndTheUserIsTold) {
  data.WriteFile("Script", "a file where the folder should be");
  BeginScriptRecording(script, nomra::testing::RealFiles());
  ApplyPrefixSuffix("x");
  const std::string recorded = RecordingText();
  frontEnd.inputs = {"Lost?"};
  EXPECT_FALSE(EndScriptRecording(script, fileSystem, frontEnd, clock));
  EXPECT_EQ(frontEnd.faults.size(), 1u);
  EXPECT_NE(RecordingText().find("Name=Lost?"), std::string::npos);
  EXPECT_EQ(RecordingText().substr(RecordingText().find("[1]")), recorded.substr(recorded.find("[1]")));
}

}  // namespace
}  // namespace nomra::script
