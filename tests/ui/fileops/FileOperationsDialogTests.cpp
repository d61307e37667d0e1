// The windows of the file operations: frmSelAction in its three uses, the
// progress with its Cancel button, and the properties of a file.
#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <sys/stat.h>

#include "core/AddFile.h"
#include "lang/MessageCatalog.h"
#include "lang/MessageKeys.h"
#include "platform/Platform.h"
#include "support/ListFixture.h"
#include "support/RealFiles.h"
#include "support/ScopedEnvironment.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"
#include "ui/common/DialogBinder.h"
#include "ui/fileops/FileOperationCommands.h"
#include "ui/fileops/FileOperationProgress.h"
#include "ui/fileops/FrmSelActionWindow.h"
#include "ui/fileops/PropertiesDialog.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;
using nomra::testing::ScriptedFrontEnd;
using nomra::testing::TempFolder;

class FileOperationsDialogTest : public nomra::testing::ListTest {
 protected:
  FileOperationsDialogTest() {
    script.settingsPath = data.Path() + "settings.nrp";
    options.dataFolder = data.Path();
    target = files.MakeFolder("target");
  }
  void Add(const std::string& name) {
    std::string path = files.WriteFile(name, name);
    core::AddFile(load, path);
  }
  template <typename T>
  T* Child(QWidget& dialog, const char* name) {
    return dialog.findChild<T*>(name);
  }

  TempFolder files;
  TempFolder data;
  lang::MessageCatalog english{nomra::testing::RealFiles(), EnglishFile()};
  std::unique_ptr<platform::Platform> os = platform::MakeSystemPlatform();
  std::string target;
};

TEST_F(FileOperationsDialogTest, EveryInputOfEachUseHasItsWidget) {
  for (const char* tag : {"frmSelAction", "frmCopyFiles", "frmMoveFiles"}) {
    FrmSelActionWindow dialog(tag, Actions(), rowCommitter, english, *os);
    EXPECT_EQ(dialog.objectName(), tag);
    EXPECT_TRUE(InputsWithoutWidget(dialog.Engine().Model(), dialog).isEmpty()) << tag;
  }
}

TEST_F(FileOperationsDialogTest, TakeChangesUseShowsTheFrameOfNamesInItsLanguage) {
  FrmSelActionWindow dialog("frmSelAction", Actions(), rowCommitter, english, *os);

  EXPECT_FALSE(Child<QGroupBox>(dialog, "frameCopy")->isHidden());
  EXPECT_TRUE(Child<QCheckBox>(dialog, "chkUpdateList")->isHidden());
  EXPECT_EQ(Child<QRadioButton>(dialog, "optRenCopy")->text(), "Only the &copies");
  EXPECT_TRUE(Child<QRadioButton>(dialog, "optRenCopy")->isChecked());
  EXPECT_EQ(dialog.windowTitle(), "Choose an action");
}

TEST_F(FileOperationsDialogTest, CopyUseOffersTheUpdateOfTheList) {
  FrmSelActionWindow dialog("frmCopyFiles", Actions(), rowCommitter, english, *os);

  auto* update = Child<QCheckBox>(dialog, "chkUpdateList");
  EXPECT_TRUE(Child<QGroupBox>(dialog, "frameCopy")->isHidden());
  EXPECT_FALSE(update->isHidden());
  EXPECT_TRUE(update->isEnabled());
  EXPECT_EQ(update->text(), "&Show the copies in the list");
}

TEST_F(FileOperationsDialogTest, MoveUseKeepsTheUpdateCheckedAndDisabled) {
  FrmSelActionWindow dialog("frmMoveFiles", Actions(), rowCommitter, english, *os);

  auto* update = Child<QCheckBox>(dialog, "chkUpdateList");
  EXPECT_TRUE(update->isChecked());
  EXPECT_FALSE(update->isEnabled());
}

TEST_F(FileOperationsDialogTest, OkFollowsWhetherTheTypedPathIsAFolder) {
  FrmSelActionWindow dialog("frmCopyFiles", Actions(), rowCommitter, english, *os);
  auto* ok = Child<QPushButton>(dialog, "cmdOK");
  auto* path = Child<QLineEdit>(dialog, "txtTargetPath");
  ASSERT_FALSE(ok->isEnabled());

  QTest::keyClicks(path, QString::fromStdString(files.Path() + "targe"));
  EXPECT_FALSE(ok->isEnabled());
  QTest::keyClicks(path, "t");
  EXPECT_TRUE(ok->isEnabled());
}

TEST_F(FileOperationsDialogTest, OkCopiesTheSelectedFilesAndCloses) {
  Add("a.txt");
  state.list.Item(1).selected = true;
  FrmSelActionWindow dialog("frmCopyFiles", Actions(), rowCommitter, english, *os);
  QTest::keyClicks(Child<QLineEdit>(dialog, "txtTargetPath"), QString::fromStdString(target));
  Child<QCheckBox>(dialog, "chkUpdateList")->setChecked(true);

  Child<QPushButton>(dialog, "cmdOK")->click();

  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(ReadWholeFile(target + "a.txt"), "a.txt");
  EXPECT_EQ(state.list.Item(1).key, target + "a.txt");
}

TEST_F(FileOperationsDialogTest, FolderBrowserPutsItsChoiceIntoTheTargetPath) {
  FrmSelActionWindow dialog("frmMoveFiles", Actions(), rowCommitter, english, *os);
  ModalWatcher modals;
  QString title;
  modals.SetHandler([&](QWidget& modal) {
    auto* browser = qobject_cast<QFileDialog*>(&modal);
    ASSERT_NE(browser, nullptr);
    title = browser->windowTitle();
    browser->setDirectory(QString::fromStdString(target));
    static_cast<QDialog&>(*browser).accept();
  });

  dialog.cmdSelPath();

  EXPECT_EQ(modals.Seen(), QStringList{"dlgSelPath"});
  EXPECT_EQ(title, "Choose a folder");
  EXPECT_TRUE(Child<QLineEdit>(dialog, "txtTargetPath")->text().startsWith(QString::fromStdString(target).chopped(1)));
  EXPECT_TRUE(Child<QPushButton>(dialog, "cmdOK")->isEnabled());
}

TEST_F(FileOperationsDialogTest, ProgressTellsTheFileAndCancelStopsBeforeTheNext) {
  FileOperationProgress progress(english);
  progress.Begin(core::ProgressStep{lang::kCopying, 0, 3, "", 0, 300});
  core::ProgressStep step{lang::kCopying, 2, 3, "/x/b.txt", 150, 300};

  EXPECT_TRUE(progress.Tick(step));
  EXPECT_EQ(progress.StepText(), "Copying file 2 of 3");
  EXPECT_EQ(progress.FileText(), "/x/b.txt");
  EXPECT_EQ(progress.Value(), 500);

  progress.findChild<QPushButton*>("cmdCancel")->click();
  EXPECT_FALSE(progress.Tick(step));
}

TEST_F(FileOperationsDialogTest, PropertiesShowSizeTypeAndPermissions) {
  const std::string file = files.WriteFile("twelve.txt", "twelve bytes");
  chmod(file.c_str(), 0640);

  PropertiesDialog dialog(fileSystem.Properties(file), english);

  EXPECT_EQ(dialog.objectName(), "frmProperties");
  EXPECT_EQ(dialog.windowTitle(), "Properties");
  EXPECT_EQ(dialog.Value("lblPath"), QString::fromStdString(file));
  EXPECT_EQ(dialog.Value("lblType"), "File");
  EXPECT_EQ(dialog.Value("lblSize"), "12 bytes");
  EXPECT_EQ(dialog.Value("lblPermissions"), "rw-r-----");
  EXPECT_EQ(dialog.findChild<QLabel*>("lblAccessed")->text(), "Last read:");
}

TEST_F(FileOperationsDialogTest, PropertiesOfAVanishedFileAreToldInstead) {
  ShowProperties(nullptr, fileSystem, frontEnd, english, files.Path() + "gone.txt");

  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, lang::kSourceMissing);
}

TEST_F(FileOperationsDialogTest, DeleteToTheTrashAfterTheYesTakesTheRowsAway) {
  nomra::testing::ScopedEnvironment dataHome("XDG_DATA_HOME", data.Path() + "share");
  options.expertMode = true;
  Add("a.txt");
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_TRUE(DeleteListFiles(nullptr, *os, List(), options.expertMode, english, true));

  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_TRUE(Exists(data.Path() + "share/Trash/files/a.txt"));
}

}  // namespace
}  // namespace nomra::ui::testing
