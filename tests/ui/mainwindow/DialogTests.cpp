// The start window and the report of the renames that didn't happen, each
// driven on its own.
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "commit/CommitResult.h"
#include "lang/MessageCatalog.h"
#include "lang/MessageKeys.h"
#include "support/RealFiles.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"
#include "ui/mainwindow/FrmNotRenamedWindow.h"
#include "ui/mainwindow/FrmStartWindow.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

using nomra::testing::TempFolder;

TEST(StartWindowTest, ClosesItselfByItsTimer) {
  FrmStartWindow start(lang::MessageCatalog(), "Nomra", "1.2.3");
  start.Zeit1().setInterval(10);
  start.Zeit1().start();
  start.show();

  EXPECT_TRUE(WaitFor([&] { return !start.isVisible(); }));
  EXPECT_EQ(start.result(), QDialog::Accepted);
}

TEST(StartWindowTest, ShowsTheProgramsVersion) {
  FrmStartWindow start(lang::MessageCatalog(nomra::testing::RealFiles(), EnglishFile()), "Nomra", "1.2.3");
  start.Zeit1().stop();
  EXPECT_EQ(start.findChild<QLabel*>("lblVers")->text(), "Version 1.2.3");
}

class NotRenamedDialogTest : public ::testing::Test {
 protected:
  NotRenamedDialogTest() {
    commit::ReportRow exists;
    exists.number = 1;
    exists.rowKey = "/d/a.txt";
    exists.textKey = lang::kTargetExistsText;
    exists.arguments = {"\"/d/a.txt\"", "\"/d/b.txt\""};
    commit::ReportRow other;
    other.number = 2;
    other.rowKey = "/d/c.txt";
    other.textKey = lang::kOtherFailureText;
    other.arguments = {"\"/d/c.txt\"", "\"/d/e.txt\""};
    result.notRenamed = {exists, other};
    result.renamed = {"/d/f.txt"};
  }

  commit::CommitResult result;
  lang::MessageCatalog catalog{nomra::testing::RealFiles(), EnglishFile()};
};

TEST_F(NotRenamedDialogTest, ChoiceOfTheLastOkIsShownNextTime) {
  TempFolder data;
  dialog::ScriptSession session;
  session.dataFolder = data.Path();
  session.settingsPath = data.Path() + "settings.nrp";
  nomra::testing::ScriptedFrontEnd frontEnd;
  {
    FrmNotRenamedWindow first(result, catalog);
    first.RememberChoiceIn(session, nomra::testing::RealFiles(), frontEnd);
    ASSERT_TRUE(first.findChild<QRadioButton*>("optNoAction")->isChecked());
    first.findChild<QRadioButton*>("optRemoveRenamed")->setChecked(true);
    first.findChild<QPushButton*>("cmdOK")->click();
  }
  EXPECT_EQ(Ini(session.settingsPath).ReadString("frmNotRenamed", "optRemoveRenamed"), "-1");
  EXPECT_EQ(Ini(session.settingsPath).ReadString("frmNotRenamed", "optNoAction"), "");

  FrmNotRenamedWindow second(result, catalog);
  second.RememberChoiceIn(session, nomra::testing::RealFiles(), frontEnd);
  EXPECT_TRUE(second.findChild<QRadioButton*>("optRemoveRenamed")->isChecked());
  EXPECT_FALSE(second.findChild<QRadioButton*>("optNoAction")->isChecked());
}

TEST_F(NotRenamedDialogTest, CancelStoresNoChoice) {
  TempFolder data;
  dialog::ScriptSession session;
  session.dataFolder = data.Path();
  session.settingsPath = data.Path() + "settings.nrp";
  nomra::testing::ScriptedFrontEnd frontEnd;
  FrmNotRenamedWindow dialog(result, catalog);
  dialog.RememberChoiceIn(session, nomra::testing::RealFiles(), frontEnd);
  dialog.findChild<QRadioButton*>("optRemoveRenamed")->setChecked(true);
  dialog.findChild<QPushButton*>("cmdCancel")->click();
  EXPECT_EQ(Ini(session.settingsPath).ReadString("frmNotRenamed", "optRemoveRenamed"), "");
}

TEST_F(NotRenamedDialogTest, ListsEachRowWithNumberAndMessage) {
  FrmNotRenamedWindow dialog(result, catalog);
  auto* rows = dialog.findChild<QTreeWidget*>("lstNotRenamed");
  ASSERT_EQ(rows->topLevelItemCount(), 2);

  const std::string expected = catalog.GetText("Messages", "MsgText05", {"\"/d/a.txt\"", "\"/d/b.txt\""});
  ASSERT_FALSE(expected.empty());
  EXPECT_EQ(rows->topLevelItem(0)->text(0), "1");
  EXPECT_EQ(rows->topLevelItem(0)->text(1), QString::fromStdString(expected));
  EXPECT_TRUE(rows->topLevelItem(0)->text(1).contains("/d/b.txt"));
  EXPECT_EQ(rows->topLevelItem(1)->text(0), "2");
}

TEST_F(NotRenamedDialogTest, LeavingTheRowsIsChosenAtOpen) {
  FrmNotRenamedWindow dialog(result, catalog);
  EXPECT_TRUE(dialog.findChild<QRadioButton*>("optNoAction")->isChecked());
  EXPECT_FALSE(dialog.findChild<QRadioButton*>("optRemoveRenamed")->isChecked());
  EXPECT_EQ(dialog.Choice(), commit::NotRenamedChoice::NoAction);
}

TEST_F(NotRenamedDialogTest, OkWithRemoveChosenRemovesTheRenamed) {
  FrmNotRenamedWindow dialog(result, catalog);
  dialog.findChild<QRadioButton*>("optRemoveRenamed")->setChecked(true);

  dialog.findChild<QPushButton*>("cmdOK")->click();

  EXPECT_EQ(dialog.Choice(), commit::NotRenamedChoice::RemoveRenamed);
}

TEST_F(NotRenamedDialogTest, CancelLeavesTheRowsWhateverWasChosen) {
  FrmNotRenamedWindow dialog(result, catalog);
  dialog.findChild<QRadioButton*>("optRemoveRenamed")->setChecked(true);

  dialog.findChild<QPushButton*>("cmdCancel")->click();

  EXPECT_EQ(dialog.Choice(), commit::NotRenamedChoice::NoAction);
}

}  // namespace
}  // namespace nomra::ui::testing
