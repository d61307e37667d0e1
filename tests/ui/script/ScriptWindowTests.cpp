// Recording and playing scripts in the window: the script bar and menu,
// frmScript, the selected script's drop-down and the caption during
// playback.
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <filesystem>

#include "support/RealFiles.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

const std::string kStandIn = "\xC2\x90";

std::string PrefixScript(const std::string& name, const std::string& prefix) {
  return "[Main]\r\nSteps=1\r\nName=" + name + "\r\n\r\n[1]\r\nType=5\r\ntxtPr=" + prefix + "\r\n";
}

class ScriptWindowTest : public WindowTest {
 protected:
  QString NewName(const QString& oldName) const { return Shown(PositionOf(oldName), core::kColNewName).toString(); }
  QAction* ScriptTool(const char* key) const { return window->ToolAction("btnbarScript", key); }
  QMenu& ScriptMenu() const { return *ScriptTool("RunSelectedScript")->menu(); }
  std::string ScriptFolder() const { return data.Path() + "Script/"; }
  std::vector<std::string> StoredScripts() const {
    std::vector<std::string> names;
    if (!std::filesystem::exists(ScriptFolder())) return names;
    for (const auto& entry : std::filesystem::directory_iterator(ScriptFolder())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }
  // Chooses the script of that display text in frmScript and starts it.
  void ChooseInScriptDialog(QWidget& modal, const QString& text, const char* option) {
    auto* list = modal.findChild<QListWidget*>("lstScript");
    const QList<QListWidgetItem*> found = list->findItems(text, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << text.toStdString();
    list->setCurrentItem(found.front());
    modal.findChild<QRadioButton*>(option)->setChecked(true);
    modal.findChild<QPushButton*>("cmdStart")->click();
  }
};

TEST_F(ScriptWindowTest, StoredScriptsFillTheDropDownWithTheirDisplayTexts) {
  data.WriteFile("Script/20261115023303.nrs", PrefixScript("Holiday pictures", "Rome_"));
  Open();
  AddFiles({"a.jpg"});

  ASSERT_EQ(ScriptMenu().actions().size(), 1);
  EXPECT_EQ(ScriptMenu().actions().front()->text(), "Holiday pictures [2026-11-15, 02:33:03]");
  EXPECT_TRUE(ScriptTool("RunSelectedScript")->isEnabled());
}

TEST_F(ScriptWindowTest, NoScriptsFolderLeavesTheDropDownEmptyAndItsButtonDisabled) {
  Open();
  AddFiles({"a.jpg"});
  EXPECT_TRUE(ScriptMenu().isEmpty());
  EXPECT_FALSE(ScriptTool("RunSelectedScript")->isEnabled());
}

TEST_F(ScriptWindowTest, ChoosingADropDownEntryPlaysItAtOnceAndShowsItsName) {
  data.WriteFile("Script/20261115023303.nrs", PrefixScript("Holiday pictures", "Rome" + kStandIn));
  Open();
  AddFiles({"a.jpg"});
  // The dialog passes through on its own; whether the watcher sees it is a matter of timing.
  modals.SetHandler([](QWidget&) {});

  ScriptMenu().actions().front()->trigger();

  EXPECT_EQ(NewName("a.jpg"), "Rome a.jpg");
  EXPECT_EQ(Label("lblSelectedScript"), "Holiday pictures [2026-11-15, 02:33:03]");
  EXPECT_EQ(window->SelectedScriptFile(), "20261115023303.nrs");
  EXPECT_EQ(window->Script().runMode, 0);
  for (const QString& seen : modals.Seen()) EXPECT_EQ(seen, "frmPrefixSuffix");
  expectedModals = modals.Seen();
}

TEST_F(ScriptWindowTest, SelectedScriptDeletedMeanwhileShowsNoScript) {
  data.WriteFile("Script/20261115023303.nrs", PrefixScript("Holiday", "x_"));
  Open();
  AddFiles({"a.jpg"});
  std::filesystem::remove(ScriptFolder() + "20261115023303.nrs");

  ScriptMenu().actions().front()->trigger();

  EXPECT_EQ(Label("lblSelectedScript"), LanguageText("Messages", "MsgStat05"));
  EXPECT_EQ(NewName("a.jpg"), "a.jpg");
  EXPECT_TRUE(window->Script().runPath.empty());
}

TEST_F(ScriptWindowTest, SingleStepsShowTheRunCaptionAndWaitForTheUser) {
  data.WriteFile("Script/20261115023303.nrs", PrefixScript("Holiday", "x_"));
  Open();
  AddFiles({"a.jpg"});
  expectedModals << "frmScript"
                 << "frmPrefixSuffix";
  QString caption;
  QString focused;
  QString shownPrefix;
  modals.SetHandler([&](QWidget& modal) {
    if (modal.objectName() == "frmScript") {
      ChooseInScriptDialog(modal, "Holiday [2026-11-15, 02:33:03]", "optRunSingleSteps");
      return;
    }
    caption = modal.windowTitle();
    shownPrefix = modal.findChild<QLineEdit*>("txtPr")->text();
    if (QWidget* focus = modal.focusWidget()) focused = focus->objectName();
    modal.findChild<QLineEdit*>("txtPr")->setText("changed_");
    modal.findChild<QPushButton*>("cmdOK")->click();
  });

  window->RunMenuCommand("mnuStartRunScript");

  EXPECT_EQ(caption, LanguageText("frmScript", "FrmRunCaption") + ": Prefix/Suffix (All files)");
  EXPECT_EQ(shownPrefix, "x_");
  EXPECT_EQ(focused, "cmdOK");
  EXPECT_EQ(NewName("a.jpg"), "changed_a.jpg");
  EXPECT_EQ(window->Script().runMode, 0);
}

TEST_F(ScriptWindowTest, CancellingEverySingleStepLeavesTheListUnchanged) {
  data.WriteFile("Script/20261115023303.nrs",
                 "[Main]\r\nSteps=2\r\nName=Two\r\n[1]\r\nType=5\r\ntxtPr=a_\r\n[2]\r\nType=5\r\ntxtSu=_b\r\n");
  Open();
  AddFiles({"a.jpg"});
  expectedModals << "frmScript"
                 << "frmPrefixSuffix"
                 << "frmPrefixSuffix";
  modals.SetHandler([&](QWidget& modal) {
    if (modal.objectName() == "frmScript") {
      ChooseInScriptDialog(modal, "Two [2026-11-15, 02:33:03]", "optRunSingleSteps");
      return;
    }
    modal.findChild<QPushButton*>("cmdCancel")->click();
  });

  window->RunMenuCommand("mnuStartRunScript");

  EXPECT_EQ(NewName("a.jpg"), "a.jpg");
  EXPECT_EQ(window->Script().runMode, 0);
}

TEST_F(ScriptWindowTest, CancellingTheScriptDialogPlaysNothing) {
  data.WriteFile("Script/20261115023303.nrs", PrefixScript("Holiday", "x_"));
  Open();
  AddFiles({"a.jpg"});
  expectedModals << "frmScript";
  modals.SetHandler([](QWidget& modal) { modal.findChild<QPushButton*>("cmdCancel")->click(); });

  window->RunToolCommand("btnbarScript", "StartRunScript");

  EXPECT_EQ(NewName("a.jpg"), "a.jpg");
  EXPECT_EQ(window->Script().runMode, 0);
  EXPECT_TRUE(window->Script().runPath.empty());
}

TEST_F(ScriptWindowTest, EmptyScriptsFolderGivesAnEmptyListAndNoStart) {
  std::filesystem::create_directories(ScriptFolder());
  Open();
  AddFiles({"a.jpg"});
  expectedModals << "frmScript";
  int rows = -1;
  bool startEnabled = true;
  modals.SetHandler([&](QWidget& modal) {
    rows = modal.findChild<QListWidget*>("lstScript")->count();
    startEnabled = modal.findChild<QPushButton*>("cmdStart")->isEnabled();
    modal.findChild<QPushButton*>("cmdCancel")->click();
  });

  window->RunMenuCommand("mnuStartRunScript");

  EXPECT_EQ(rows, 0);
  EXPECT_FALSE(startEnabled);
}

TEST_F(ScriptWindowTest, DeletingAScriptAskedNoKeepsItAndYesRemovesIt) {
  data.WriteFile("Script/20261115023303.nrs", PrefixScript("Holiday", "x_"));
  Open();
  AddFiles({"a.jpg"});
  answers = {core::Answer::No, core::Answer::Yes};
  expectedModals << "frmScript";
  int rowsAfterNo = -1;
  int rowsAfterYes = -1;
  bool fileAfterNo = false;
  modals.SetHandler([&](QWidget& modal) {
    auto* list = modal.findChild<QListWidget*>("lstScript");
    ChooseInScriptDialog(modal, "Holiday [2026-11-15, 02:33:03]", "optDelete");
    rowsAfterNo = list->count();
    fileAfterNo = std::filesystem::exists(ScriptFolder() + "20261115023303.nrs");
    ChooseInScriptDialog(modal, "Holiday [2026-11-15, 02:33:03]", "optDelete");
    rowsAfterYes = list->count();
    modal.findChild<QPushButton*>("cmdCancel")->click();
  });

  window->RunMenuCommand("mnuStartRunScript");

  ASSERT_EQ(asked.size(), 2u);
  EXPECT_EQ(asked[0].message.textKey, "msgDeleteScript");
  EXPECT_EQ(asked[0].text, LanguageText("Messages", "msgDeleteScript", {"Holiday [2026-11-15, 02:33:03]"}));
  EXPECT_EQ(rowsAfterNo, 1);
  EXPECT_TRUE(fileAfterNo);
  EXPECT_EQ(rowsAfterYes, 0);
  EXPECT_FALSE(std::filesystem::exists(ScriptFolder() + "20261115023303.nrs"));
}

TEST_F(ScriptWindowTest, RecordingSwitchesTheRecordButtonsAndStoresANamedScript) {
  Open();
  AddFiles({"a.txt"});
  window->FrontEnd().SetInputAnswerer(
      [](const core::Message&, const std::string&) { return std::string("My script"); });

  window->RunMenuCommand("mnuStartRecordScript");
  EXPECT_FALSE(ScriptTool("StartRecordScript")->isEnabled());
  EXPECT_TRUE(ScriptTool("StopRecordScript")->isEnabled());
  EXPECT_FALSE(Menu("mnuStartRecordScript")->isEnabled());
  EXPECT_TRUE(Menu("mnuStopRecordScript")->isEnabled());

  expectedModals << "frmPrefixSuffix";
  modals.SetHandler([](QWidget& modal) {
    modal.findChild<QLineEdit*>("txtPr")->setText("p ");
    modal.findChild<QPushButton*>("cmdOK")->click();
  });
  window->RunMainToolKey("Rename05");
  window->RunToolCommand("btnbarScript", "StopRecordScript");

  EXPECT_TRUE(ScriptTool("StartRecordScript")->isEnabled());
  EXPECT_FALSE(ScriptTool("StopRecordScript")->isEnabled());
  const std::vector<std::string> stored = StoredScripts();
  ASSERT_EQ(stored.size(), 1u);
  const std::string script = ScriptFolder() + stored.front();
  EXPECT_EQ(Ini(script).ReadString("Main", "Name"), "My script");
  EXPECT_EQ(Ini(script).ReadString("1", "Type"), "5");
  EXPECT_EQ(Ini(script).ReadString("1", "txtPr"), "p" + kStandIn);
  ASSERT_EQ(ScriptMenu().actions().size(), 1);
  EXPECT_TRUE(ScriptMenu().actions().front()->text().startsWith("My script ["));
}

TEST_F(ScriptWindowTest, ClosingDuringARecordingAnsweredYesStoresTheScript) {
  Open();
  AddFiles({"a.txt"});
  window->FrontEnd().SetInputAnswerer([](const core::Message&, const std::string&) { return std::string("At close"); });
  window->RunMenuCommand("mnuStartRecordScript");
  expectedModals << "frmPrefixSuffix";
  modals.SetHandler([](QWidget& modal) {
    modal.findChild<QLineEdit*>("txtPr")->setText("c_");
    modal.findChild<QPushButton*>("cmdOK")->click();
  });
  window->RunMainToolKey("Rename05");
  // Yes to storing the recording, No to taking the pending names.
  answers = {core::Answer::Yes, core::Answer::No};

  EXPECT_TRUE(window->close());

  ASSERT_GE(asked.size(), 1u);
  EXPECT_EQ(asked[0].message.textKey, "MsgText30");
  const std::vector<std::string> stored = StoredScripts();
  ASSERT_EQ(stored.size(), 1u);
  EXPECT_EQ(Ini(ScriptFolder() + stored.front()).ReadString("Main", "Name"), "At close");
}

TEST_F(ScriptWindowTest, ClosingDuringARecordingAnsweredNoLosesIt) {
  Open();
  AddFiles({"a.txt"});
  window->RunMenuCommand("mnuStartRecordScript");
  answers = {core::Answer::No};

  EXPECT_TRUE(window->close());

  EXPECT_TRUE(StoredScripts().empty());
}

TEST_F(ScriptWindowTest, ScriptRecordedHereGivesTheSameNamesInTheCommandLine) {
  Open();
  const std::vector<std::string> paths = AddFiles({"a.txt", "b", "c.tar.gz"});
  window->FrontEnd().SetInputAnswerer([](const core::Message&, const std::string&) { return std::string("Both"); });
  window->RunMenuCommand("mnuStartRecordScript");
  expectedModals << "frmPrefixSuffix"
                 << "frmPrefixSuffix";
  int opened = 0;
  modals.SetHandler([&](QWidget& modal) {
    ++opened;
    modal.findChild<QLineEdit*>(opened == 1 ? "txtPr" : "txtSu")->setText(opened == 1 ? " pre " : "_suf");
    modal.findChild<QPushButton*>("cmdOK")->click();
  });
  window->RunMainToolKey("Rename05");
  window->RunMainToolKey("Rename05");
  window->RunMenuCommand("mnuStopRecordScript");
  const std::vector<std::string> stored = StoredScripts();
  ASSERT_EQ(stored.size(), 1u);

  QProcess cli;
  QStringList arguments{"--data-dir", QString::fromStdString(data.Path()), "--script",
                        QString::fromStdString(stored.front())};
  for (const std::string& path : paths) arguments << QString::fromStdString(path);
  cli.start(NOMRA_CLI_PATH, arguments);
  ASSERT_TRUE(cli.waitForFinished(20000));
  const QString table = QString::fromUtf8(cli.readAllStandardOutput());

  for (const QString name : {"a.txt", "b", "c.tar.gz"}) {
    const QString line = "  " + name + " -> " + NewName(name);
    EXPECT_TRUE(table.contains(line)) << line.toStdString() << "\n" << table.toStdString();
  }
  EXPECT_EQ(NewName("c.tar.gz"), " pre c.tar_suf.gz");
}

}  // namespace
}  // namespace nomra::ui::testing
