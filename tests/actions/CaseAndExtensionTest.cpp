// Upper and lower case, and the file extension: the structures their
// buttons stand for, and the names that come out.
#include <gtest/gtest.h>

#include <vector>

#include "actions/BuiltInActions.h"
#include "actions/FrmFileExtension.h"
#include "actions/FrmULCase.h"
#include "rename/ActionFixture.h"
#include "rename/ActionFrame.h"
#include "script/ScriptPlayback.h"
#include "support/RealFiles.h"

using nomra::testing::Ini;

namespace nomra::actions {
namespace {

class CaseActionTest : public testing::ActionTest {
 protected:
  void Choose(int conversion, int appliesTo) {
    dialog.Model().SetOption("opt1(" + std::to_string(conversion) + ")", true);
    dialog.Model().SetOption("opt2(" + std::to_string(appliesTo) + ")", true);
  }
  FrmULCase dialog;
};

TEST_F(CaseActionTest, FirstConversionOnTheNameIsChosenWhenNothingIsStored) {
  EXPECT_TRUE(dialog.Model().IsSelected("opt1(1)"));
  EXPECT_TRUE(dialog.Model().IsSelected("opt2(1)"));
  EXPECT_EQ(dialog.Structure(), "<1C><NAME></1C><.EXT>");
}

TEST_F(CaseActionTest, EachButtonPairGivesItsStructure) {
  const char* codes[] = {"1C", "WC", "UC", "LC", "SC"};
  for (int conversion = 1; conversion <= 5; ++conversion) {
    const std::string c = codes[conversion - 1];
    Choose(conversion, 1);
    EXPECT_EQ(dialog.Structure(), "<" + c + "><NAME></" + c + "><.EXT>");
    Choose(conversion, 2);
    EXPECT_EQ(dialog.Structure(), "<NAME><" + c + "><.EXT></" + c + ">");
    Choose(conversion, 3);
    EXPECT_EQ(dialog.Structure(), "<" + c + "><NAME></" + c + "><" + c + "><.EXT></" + c + ">");
  }
}

TEST_F(CaseActionTest, FirstCapitalOnBothConvertsNameAndExtensionApart) {
  AddFiles({"a b.TXT"});
  Choose(1, 3);
  dialog.Run(Actions());
  EXPECT_EQ(PendingNames(), std::vector<std::string>{"A b.Txt"});
}

TEST_F(CaseActionTest, NameWithoutStemStaysAsItIs) {
  AddFiles({".profile"});
  Choose(3, 1);
  dialog.Run(Actions());
  EXPECT_EQ(PendingNames(), std::vector<std::string>{".profile"});
}

TEST_F(CaseActionTest, UpperCaseOfTheExtensionOnly) {
  AddFiles({"Photo.jpg", "notes"});
  Choose(3, 2);
  dialog.Run(Actions());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Photo.JPG", "notes"}));
}

TEST_F(CaseActionTest, RemembersItsInputsUnderItsOwnNameAndRecordsTypeFour) {
  script.saveDialogSettings = true;
  script.recording = 1;
  Ini(script.tempPath).Write("Main", "Steps", 0L);
  AddFiles({"a.txt"});
  Choose(4, 3);
  rename::ApplyActionDialog(dialog, Actions());
  EXPECT_EQ(Ini(script.settingsPath).ReadString("frmULCase", "opt1(4)"), "-1");
  EXPECT_EQ(Ini(script.settingsPath).ReadString("frmULCase", "opt2(3)"), "-1");
  EXPECT_EQ(Ini(script.tempPath).ReadString("1", "Type"), "4");
  EXPECT_TRUE(dialog.Traits().disablesButtonsWhileRunning);
}

TEST_F(CaseActionTest, ScriptStepOfTypeFourPlaysWithoutAWindow) {
  AddFiles({"Mixed Case.Txt"});
  const std::string scriptFile =
      data.WriteFile("s.nrs", "[Main]\r\nSteps=1\r\n[1]\r\nType=4\r\nopt1(4)=-1\r\nopt2(3)=-1\r\n");
  script.runPath = scriptFile;
  script.runMode = 1;
  script::PlayScript(script, fileSystem, [this](int type) { script::PlayStepWithoutWindow(Actions(), type); });
  EXPECT_EQ(PendingNames(), std::vector<std::string>{"mixed case.txt"});
}

class ExtensionActionTest : public testing::ActionTest {
 protected:
  void Choose(bool change, bool keepOld, const std::string& extension) {
    dialog.Model().SetOption(change ? "optFE(1)" : "optFE(2)", true);
    dialog.Model().SetNumber("chkAddOldFE", keepOld ? 1 : 0);
    dialog.Model().SetText("txtFE", extension);
  }
  FrmFileExtension dialog;
};

TEST_F(ExtensionActionTest, ChangeIsChosenAndKeepingTheOldOneIsOffWhenNothingIsStored) {
  EXPECT_TRUE(dialog.Model().IsSelected("optFE(1)"));
  EXPECT_EQ(dialog.Model().Number("chkAddOldFE"), 0);
  EXPECT_TRUE(dialog.ChangeInputsEnabled());
}

TEST_F(ExtensionActionTest, LeadingDotsAndBlanksAreCleanedAndWrittenBack) {
  AddFiles({"a.doc"});
  Choose(true, false, " ..txt ");
  dialog.Run(Actions());
  EXPECT_EQ(dialog.Model().Text("txtFE"), "txt");
  EXPECT_EQ(PendingNames(), std::vector<std::string>{"a.txt"});
}

TEST_F(ExtensionActionTest, KeepingTheOldExtensionPutsTheNewOneBehindIt) {
  AddFiles({"a.doc"});
  Choose(true, true, "..txt");
  dialog.Run(Actions());
  EXPECT_EQ(PendingNames(), std::vector<std::string>{"a.doc.txt"});
}

TEST_F(ExtensionActionTest, ChangingToNothingRemovesTheExtensionAsRemovingDoes) {
  AddFiles({"a.doc", "b.tar.gz"});
  Choose(true, false, "");
  dialog.Run(Actions());
  const std::vector<std::string> changed = PendingNames();
  dialog.Model().SetText("txtFE", "");
  EXPECT_EQ(changed, (std::vector<std::string>{"a", "b.tar"}));
  EXPECT_EQ(dialog.Structure(), "<Name>");
}

TEST_F(ExtensionActionTest, RemovingTakesTheLastExtensionOnly) {
  AddFiles({"a.tar.gz"});
  Choose(false, true, "txt");
  EXPECT_FALSE(dialog.ChangeInputsEnabled());
  dialog.Run(Actions());
  EXPECT_EQ(PendingNames(), std::vector<std::string>{"a.tar"});
}

TEST_F(ExtensionActionTest, RemembersItsInputsInFrmFEAndRecordsTypeThree) {
  script.saveDialogSettings = true;
  script.recording = 1;
  Ini(script.tempPath).Write("Main", "Steps", 0L);
  AddFiles({"a.txt"});
  Choose(true, true, "bak");
  rename::ApplyActionDialog(dialog, Actions());
  EXPECT_EQ(Ini(script.settingsPath).ReadString("FrmFE", "txtFE"), "bak");
  EXPECT_EQ(Ini(script.settingsPath).ReadString("FrmFE", "chkAddOldFE"), "1");
  EXPECT_EQ(Ini(script.tempPath).ReadString("1", "Type"), "3");
  EXPECT_EQ(PendingNames(), std::vector<std::string>{"a.txt.bak"});
}

TEST(CleanExtensionInput, BlanksThenDots) {
  EXPECT_EQ(CleanExtensionInput("  ...tar.gz "), "tar.gz");
  EXPECT_EQ(CleanExtensionInput(". txt"), " txt");
  EXPECT_EQ(CleanExtensionInput("..."), "");
}

TEST(BuiltInActions, EachDialogIsRegisteredUnderItsStepType) {
  const std::vector<std::pair<int, std::string>> registered = {
      {1, "frmNumber"},       {2, "frmRenumber"}, {3, "frmFileExtension"}, {4, "frmULCase"},
      {5, "frmPrefixSuffix"}, {6, "frmReplace"},  {8, "frmMove"},          {10, "frmTrim"}};
  std::vector<int> types;
  for (const auto& [type, name] : registered) {
    types.push_back(type);
    const auto dialog = CreateActionDialog(type);
    ASSERT_NE(dialog, nullptr) << type;
    EXPECT_EQ(dialog->Traits().dialogName, name) << type;
    EXPECT_EQ(dialog->Traits().stepType, type) << name;
  }
  EXPECT_EQ(KnownStepTypes(), types);
  EXPECT_EQ(CreateActionDialog(11), nullptr);
}

}  // namespace
}  // namespace nomra::actions
