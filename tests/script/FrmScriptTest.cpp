#include <gtest/gtest.h>

#include <filesystem>

#include "script/FrmScript.h"
#include "script/ScriptFixture.h"
#include "support/RealFiles.h"

namespace nomra::script {
namespace {

class FrmScriptTest : public testing::ScriptTest {
 protected:
  FrmScriptTest() { AddFiles({"a.jpg"}); }

  void WriteTwoScripts() {
    WriteScript("20261115023303.nrs", "[Main]\r\nSteps=1\r\nName=Prefix\r\n\r\n[1]\r\nType=5\r\ntxtPr=p_\r\n");
    WriteScript("20261116101010.nrs", "[Main]\r\nSteps=1\r\nName=Suffix\r\n\r\n[1]\r\nType=5\r\ntxtSu=_s\r\n");
  }

  // Chooses the row that shows this display text.
  void ChooseRow(const std::string& text) {
    const std::vector<std::string>& rows = chooser.Model().At("lstScript").rows;
    const auto found = std::find(rows.begin(), rows.end(), text);
    ASSERT_NE(found, rows.end()) << text;
    ASSERT_TRUE(chooser.Model().SetNumber("lstScript", static_cast<int>(found - rows.begin())));
  }

  std::vector<std::string> Rows() { return chooser.Model().At("lstScript").rows; }

  // Lists the scripts and asks to delete the prefix script; the user
  // answers. True when the dialog closes.
  bool DeletePrefixScript(core::Answer answer) {
    chooser.Load();
    ChooseRow("Prefix [2026-11-15, 02:33:03]");
    chooser.Model().SetOption("optDelete", true);
    frontEnd.answers = {answer};
    return chooser.Start();
  }

  FrmScript chooser{script, fileSystem, frontEnd};
};

TEST_F(FrmScriptTest, MissingScriptsFolderGivesAnEmptyListAndNoStart) {
  chooser.Load();
  EXPECT_TRUE(Rows().empty());
  EXPECT_FALSE(chooser.StartEnabled());
  EXPECT_FALSE(chooser.Start());
}

TEST_F(FrmScriptTest, EmptyScriptsFolderGivesAnEmptyListAndNoStart) {
  data.MakeFolder("Script");
  chooser.Load();
  EXPECT_TRUE(Rows().empty());
  EXPECT_FALSE(chooser.StartEnabled());
}

TEST_F(FrmScriptTest, ListsEachScriptByNameAndDateWithRunAllChosen) {
  WriteTwoScripts();
  chooser.Load();
  std::vector<std::string> rows = Rows();
  std::sort(rows.begin(), rows.end());
  EXPECT_EQ(rows, (std::vector<std::string>{"Prefix [2026-11-15, 02:33:03]", "Suffix [2026-11-16, 10:10:10]"}));
  ASSERT_EQ(chooser.FileNames().size(), 2u);
  // Each row's item data names the file the row shows.
  for (std::size_t row = 0; row < 2; ++row) {
    EXPECT_TRUE(Rows()[row].ends_with("[" + FormatScriptDate(chooser.FileNames()[row]) + "]")) << row;
  }
  EXPECT_TRUE(chooser.Model().IsSelected("optRunAll"));
  EXPECT_FALSE(chooser.StartEnabled());
}

TEST_F(FrmScriptTest, StartIsEnabledExactlyWhileARowIsChosen) {
  WriteTwoScripts();
  chooser.Load();
  ChooseRow("Suffix [2026-11-16, 10:10:10]");
  EXPECT_TRUE(chooser.StartEnabled());
  chooser.Model().SetNumber("lstScript", -1);
  EXPECT_FALSE(chooser.StartEnabled());
}

TEST_F(FrmScriptTest, StartWithRunAllChoosesTheScriptAndStoresTheInputs) {
  WriteTwoScripts();
  chooser.Load();
  ChooseRow("Suffix [2026-11-16, 10:10:10]");
  const int row = chooser.Model().Number("lstScript");
  ASSERT_TRUE(chooser.Start());
  EXPECT_EQ(script.runMode, 1);
  EXPECT_EQ(script.runPath, ScriptFolderPath() + "20261116101010.nrs");
  EXPECT_EQ(SettingsText(), "[frmScript]\r\nlstScript=" + std::to_string(row) + "\r\noptRunAll=-1\r\n");

  PlayScript(script, nomra::testing::RealFiles(), HeadlessOpener());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a_s.jpg"}));
}

TEST_F(FrmScriptTest, StartWithSingleStepsChoosesModeTwo) {
  WriteTwoScripts();
  chooser.Load();
  ChooseRow("Prefix [2026-11-15, 02:33:03]");
  chooser.Model().SetOption("optRunSingleSteps", true);
  ASSERT_TRUE(chooser.Start());
  EXPECT_EQ(script.runMode, 2);
  EXPECT_NE(SettingsText().find("optRunSingleSteps=-1\r\n"), std::string::npos);
}

TEST_F(FrmScriptTest, StoredInputsAreNeverReadBack) {
  data.WriteFile(settings::kSettingsFileName, "[frmScript]\r\nlstScript=0\r\noptRunSingleSteps=-1\r\n");
  script.saveDialogSettings = true;
  WriteTwoScripts();
  chooser.Load();
  EXPECT_TRUE(chooser.Model().IsSelected("optRunAll"));
  EXPECT_FALSE(chooser.Model().IsSelected("optRunSingleSteps"));
  EXPECT_FALSE(chooser.StartEnabled());
}

TEST_F(FrmScriptTest, CancellingPlaysNothingThoughPlaybackIsStillCalled) {
  WriteTwoScripts();
  chooser.Load();
  ChooseRow("Prefix [2026-11-15, 02:33:03]");
  script.runMode = 1;
  chooser.Cancel();
  EXPECT_EQ(script.runMode, 0);
  PlayScript(script, nomra::testing::RealFiles(), HeadlessOpener());
  EXPECT_TRUE(openedTypes.empty());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.jpg"}));
  EXPECT_FALSE(testing::Exists(script.settingsPath));
}

TEST_F(FrmScriptTest, DeletingAnsweredNoKeepsTheRowTheFileAndTheDialogOpen) {
  WriteTwoScripts();
  EXPECT_FALSE(DeletePrefixScript(core::Answer::No));
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "msgDeleteScript");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "msgCapAttention");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoDefaultNo);
  EXPECT_EQ(frontEnd.asked[0].arguments, (std::vector<std::string>{"Prefix [2026-11-15, 02:33:03]"}));
  EXPECT_EQ(Rows().size(), 2u);
  EXPECT_TRUE(chooser.StartEnabled());
  EXPECT_TRUE(testing::Exists(ScriptFolderPath() + "20261115023303.nrs"));
  EXPECT_EQ(script.runMode, 0);
}

TEST_F(FrmScriptTest, DeletingAnsweredYesRemovesTheScriptEvenWhenReadOnly) {
  WriteTwoScripts();
  std::filesystem::permissions(ScriptFolderPath() + "20261115023303.nrs", std::filesystem::perms::owner_read);
  EXPECT_FALSE(DeletePrefixScript(core::Answer::Yes));
  EXPECT_FALSE(testing::Exists(ScriptFolderPath() + "20261115023303.nrs"));
  EXPECT_EQ(Rows(), (std::vector<std::string>{"Suffix [2026-11-16, 10:10:10]"}));
  EXPECT_EQ(chooser.FileNames(), (std::vector<std::string>{"20261116101010.nrs"}));
  EXPECT_FALSE(chooser.StartEnabled());
  EXPECT_FALSE(testing::Exists(script.settingsPath));
}

TEST_F(FrmScriptTest, DeletedScriptStillChosenOnTheButtonShowsStatusTextFive) {
  WriteTwoScripts();
  DeletePrefixScript(core::Answer::Yes);
  EXPECT_FALSE(shell::PlaySelectedScript(window, texts, script, fileSystem, "20261115023303.nrs", HeadlessOpener()));
  EXPECT_EQ(window.selectedScriptLabel, "No script");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.jpg"}));
}

}  // namespace
}  // namespace nomra::script
