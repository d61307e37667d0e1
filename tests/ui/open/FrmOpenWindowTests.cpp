// Nomra's own open dialog, driven on its own: rows, filters, selection keys
// and what cmdOpen stages.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

#include <memory>

#include "base/Paths.h"
#include "lang/MessageCatalog.h"
#include "support/RealFiles.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"
#include "ui/open/FrmOpenWindow.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

using nomra::testing::TempFolder;

class FrmOpenTest : public ::testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(modals.Seen(), expectedModals) << "modal dialogs opened"; }

  std::string SettingsFile() const { return data.Path() + "settings.nrp"; }

  // The dialog over the settings written so far, showing the folder.
  FrmOpenWindow& Show(const std::string& shown, bool allFiles = false, bool subFolders = false,
                      bool showHidden = false) {
    dialog = std::make_unique<FrmOpenWindow>(
        FrmOpenWindow::Services{fileSystem, frontEnd, catalog, formats::IniFile(fileSystem, SettingsFile())});
    dialog->Prepare(allFiles, subFolders, showHidden, shown);
    dialog->show();
    return *dialog;
  }

  template <typename T>
  T& Control(const char* name) const {
    T* control = dialog->findChild<T*>(name);
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
  QListWidget& Rows() const { return Control<QListWidget>("lstFiles"); }
  QListWidget& FilterList() const { return Control<QListWidget>("lstFilters"); }
  QCheckBox& AllFilesBox() const { return Control<QCheckBox>("chkAllFiles"); }
  QCheckBox& SubFoldersBox() const { return Control<QCheckBox>("chkSubFolders"); }
  QAction* FilterButton(const QString& key) const {
    for (QAction* action : Control<QToolBar>("BtnBarFilter").actions()) {
      if (action->property("key").toString() == key) return action;
    }
    return nullptr;
  }

  QStringList RowTexts() const {
    QStringList texts;
    for (int row = 0; row < Rows().count(); ++row) texts << Rows().item(row)->text();
    return texts;
  }
  QStringList SelectedTexts() const {
    QStringList texts;
    for (int row = 0; row < Rows().count(); ++row) {
      if (Rows().item(row)->isSelected()) texts << Rows().item(row)->text();
    }
    return texts;
  }
  QListWidgetItem* Row(const QString& text) const {
    const auto found = Rows().findItems(text, Qt::MatchExactly);
    EXPECT_EQ(found.size(), 1) << text.toStdString();
    return found.isEmpty() ? nullptr : found.first();
  }
  // Answers the filter editor with this text.
  void AnswerFilterWith(const QString& text) {
    expectedModals << "QInputDialog";
    modals.SetHandler([text](QWidget& modal) {
      auto* input = qobject_cast<QInputDialog*>(&modal);
      ASSERT_NE(input, nullptr);
      input->setTextValue(text);
      input->accept();
    });
  }

  TempFolder folder;
  TempFolder data;
  platform::PosixFileSystem fileSystem;
  nomra::testing::ScriptedFrontEnd frontEnd;
  lang::MessageCatalog catalog{nomra::testing::RealFiles(), EnglishFile()};
  ModalWatcher modals;
  QStringList expectedModals;
  std::unique_ptr<FrmOpenWindow> dialog;
};

TEST_F(FrmOpenTest, EveryInputNameResolvesToAWidget) {
  Show(folder.Path());
  for (const char* name : {"DrvSel", "txtPfad", "lstFiles", "txtFiles", "lstFilters", "BtnBarFilter", "BtnBar",
                           "chkAllFiles", "chkSubFolders", "cmdOpen", "cmdCancel"}) {
    EXPECT_NE(dialog->findChild<QWidget*>(name), nullptr) << name;
  }
  for (const char* key : {"Add", "EditMan", "DelList"}) EXPECT_NE(FilterButton(key), nullptr) << key;
}

TEST_F(FrmOpenTest, ListsFolderRowsBeforeFileRowsEachInNameOrder) {
  folder.WriteFile("b.txt");
  folder.WriteFile("A.jpg");
  folder.MakeFolder("zeta");
  folder.MakeFolder("Beta");
  Show(folder.Path());

  EXPECT_EQ(RowTexts(), QStringList({"Beta", "zeta", "A.jpg", "b.txt"}));
  EXPECT_TRUE(Row("zeta")->data(FrmOpenWindow::kFolderRole).toBool());
  EXPECT_FALSE(Row("A.jpg")->data(FrmOpenWindow::kFolderRole).toBool());
  EXPECT_EQ(Row("zeta")->data(FrmOpenWindow::kKeyRole).toByteArray().toStdString(), folder.Path() + "zeta");
  EXPECT_EQ(Row("A.jpg")->data(FrmOpenWindow::kKeyRole).toByteArray().toStdString(), "A.jpg");
  EXPECT_EQ(Control<QLineEdit>("txtPfad").text().toStdString() + "/", folder.Path());
}

TEST_F(FrmOpenTest, HiddenNamesShowOnlyWhenHiddenFilesAreShown) {
  folder.WriteFile(".secret");
  folder.MakeFolder(".cache");
  folder.WriteFile("plain.txt");

  Show(folder.Path());
  EXPECT_EQ(RowTexts(), QStringList({"plain.txt"}));

  Show(folder.Path(), false, false, true);
  EXPECT_EQ(RowTexts(), QStringList({".cache", ".secret", "plain.txt"}));
}

TEST_F(FrmOpenTest, CheckedFilterDecidesWhichFilesShow) {
  data.WriteFile("settings.nrp", "[PowerFilter]\r\nf1=1*.*\r\nf2=0*.txt\r\nf3=0*.jpg\r\n");
  folder.WriteFile("a.txt");
  folder.WriteFile("b.jpg");
  folder.WriteFile("c.png");
  folder.MakeFolder("sub");
  Show(folder.Path());
  ASSERT_EQ(RowTexts(), QStringList({"sub", "a.txt", "b.jpg", "c.png"}));

  FilterList().item(1)->setCheckState(Qt::Checked);
  EXPECT_EQ(RowTexts(), QStringList({"sub", "a.txt"}));
  EXPECT_EQ(FilterList().item(0)->checkState(), Qt::Unchecked);

  FilterList().item(2)->setCheckState(Qt::Checked);
  EXPECT_EQ(RowTexts(), QStringList({"sub", "a.txt", "b.jpg"}));

  // Clearing the checks brings "*.*" back.
  FilterList().item(1)->setCheckState(Qt::Unchecked);
  FilterList().item(2)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(FilterList().item(0)->checkState(), Qt::Checked);
  EXPECT_EQ(RowTexts(), QStringList({"sub", "a.txt", "b.jpg", "c.png"}));
}

TEST_F(FrmOpenTest, CtrlASelectsEveryRowAndCtrlTInvertsTheSelection) {
  folder.WriteFile("a.txt");
  folder.WriteFile("b.txt");
  folder.MakeFolder("sub");
  Show(folder.Path());
  Row("a.txt")->setSelected(true);
  ASSERT_EQ(Control<QLineEdit>("txtFiles").text(), "\"a.txt\"");

  QTest::keyClick(&Rows(), Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(SelectedTexts(), QStringList({"sub", "b.txt"}));
  EXPECT_EQ(Control<QLineEdit>("txtFiles").text(), "\"sub\" \"b.txt\"");

  QTest::keyClick(&AllFilesBox(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(SelectedTexts(), QStringList({"sub", "a.txt", "b.txt"}));
}

TEST_F(FrmOpenTest, CheckingAllFilesClearsTheSelectionAndTheNamesAndEnablesSubFolders) {
  folder.WriteFile("a.txt");
  Show(folder.Path());
  EXPECT_FALSE(SubFoldersBox().isEnabled());
  Row("a.txt")->setSelected(true);
  ASSERT_FALSE(Control<QLineEdit>("txtFiles").text().isEmpty());

  AllFilesBox().click();

  EXPECT_TRUE(SelectedTexts().isEmpty());
  EXPECT_TRUE(Control<QLineEdit>("txtFiles").text().isEmpty());
  EXPECT_TRUE(SubFoldersBox().isEnabled());
  AllFilesBox().click();
  EXPECT_FALSE(SubFoldersBox().isEnabled());
}

TEST_F(FrmOpenTest, BoxesTakeTheStoredValues) {
  Show(folder.Path(), true, true);
  EXPECT_TRUE(AllFilesBox().isChecked());
  EXPECT_TRUE(SubFoldersBox().isChecked());
  EXPECT_TRUE(SubFoldersBox().isEnabled());
}

TEST_F(FrmOpenTest, DoubleClickOnAFolderRowOpensIt) {
  folder.WriteFile("sub/inner.txt");
  Show(folder.Path());
  QListWidgetItem* sub = Row("sub");
  ASSERT_NE(sub, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  const QPoint at = Rows().visualItemRect(sub).center();
  QTest::mouseClick(Rows().viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(Rows().viewport(), Qt::LeftButton, {}, at);

  EXPECT_EQ(dialog->CurrentFolder(), folder.Path() + "sub");
  EXPECT_EQ(RowTexts(), QStringList({"inner.txt"}));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(FrmOpenTest, EnterInThePathFieldGoesThere) {
  folder.WriteFile("sub/inner.txt");
  Show(folder.Path());
  QLineEdit& path = Control<QLineEdit>("txtPfad");
  path.setText(QString::fromStdString(folder.Path() + "sub"));
  QTest::keyClick(&path, Qt::Key_Return);

  EXPECT_EQ(RowTexts(), QStringList({"inner.txt"}));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(FrmOpenTest, FolderThatIsGoneGivesWayToTheNearestOneAbove) {
  folder.WriteFile("kept.txt");
  Show(folder.Path() + "gone/deeper");
  EXPECT_EQ(base::AddBackslash(dialog->CurrentFolder()), folder.Path());
  EXPECT_EQ(RowTexts(), QStringList({"kept.txt"}));
}

TEST_F(FrmOpenTest, FolderUpGoesToTheParentAndAboveTheRootToTheLocations) {
  folder.WriteFile("sub/inner.txt");
  Show(folder.Path() + "sub");
  QAction* up = Control<QToolBar>("BtnBar").actions().value(0);
  ASSERT_NE(up, nullptr);

  up->trigger();
  EXPECT_EQ(base::AddBackslash(dialog->CurrentFolder()), folder.Path());
  EXPECT_TRUE(RowTexts().contains("sub"));

  dialog->setPath("/");
  up->trigger();
  EXPECT_TRUE(dialog->AtLocations());
  EXPECT_TRUE(RowTexts().contains(QDir::homePath()));
  EXPECT_TRUE(RowTexts().contains("/"));
}

TEST_F(FrmOpenTest, LocationsListFirstTheComputerThenThePlacesThenEachLevelOfTheFolder) {
  Show(folder.Path());
  QComboBox& locations = Control<QComboBox>("DrvSel");
  EXPECT_EQ(locations.itemText(0).toStdString(), catalog.GetText("frmOpen", "DrvSelRoot"));
  EXPECT_EQ(locations.itemText(0), "Computer");
  EXPECT_EQ(locations.currentIndex(), locations.count() - 1);
  EXPECT_EQ(locations.currentData().toByteArray().toStdString() + "/", folder.Path());
  EXPECT_GE(locations.findData(QByteArray("/")), 1);

  emit locations.activated(0);
  EXPECT_TRUE(dialog->AtLocations());
  EXPECT_TRUE(Control<QLineEdit>("txtPfad").text().isEmpty());
  for (int row = 0; row < Rows().count(); ++row)
    EXPECT_TRUE(Rows().item(row)->data(FrmOpenWindow::kFolderRole).toBool());
}

TEST_F(FrmOpenTest, AddedFilterLosesTheForbiddenCharactersAndIsChecked) {
  folder.WriteFile("a.txt");
  folder.WriteFile("b.jpg");
  Show(folder.Path());
  AnswerFilterWith("*.t\"x/t|:<>\\");

  FilterButton("Add")->trigger();

  ASSERT_EQ(dialog->Filters().size(), 2u);
  EXPECT_EQ(dialog->Filters()[1].pattern, "*.txt");
  EXPECT_TRUE(dialog->Filters()[1].checked);
  EXPECT_FALSE(dialog->Filters()[0].checked);
  EXPECT_EQ(FilterList().item(1)->text(), "*.txt");
  EXPECT_EQ(RowTexts(), QStringList({"a.txt"}));
}

TEST_F(FrmOpenTest, EditedFilterLosesTheForbiddenCharacters) {
  data.WriteFile("settings.nrp", "[PowerFilter]\r\nf1=0*.*\r\nf2=1*.txt\r\n");
  folder.WriteFile("a.txt");
  folder.WriteFile("b.jpg");
  Show(folder.Path());
  FilterList().setCurrentRow(1);
  AnswerFilterWith("*.j|p/g");

  FilterButton("EditMan")->trigger();

  EXPECT_EQ(dialog->Filters()[1].pattern, "*.jpg");
  EXPECT_TRUE(dialog->Filters()[1].checked);
  EXPECT_EQ(RowTexts(), QStringList({"b.jpg"}));
}

TEST_F(FrmOpenTest, FilterAnswerWithNothingLeftChangesNothing) {
  Show(folder.Path());
  AnswerFilterWith("|/\\");

  FilterButton("Add")->trigger();

  ASSERT_EQ(dialog->Filters().size(), 1u);
  EXPECT_EQ(FilterList().count(), 1);
}

TEST_F(FrmOpenTest, DeletingAFilterAsksAndOnlyYesRemovesIt) {
  data.WriteFile("settings.nrp", "[PowerFilter]\r\nf1=0*.*\r\nf2=1*.txt\r\n");
  Show(folder.Path());
  FilterList().setCurrentRow(1);
  ASSERT_TRUE(FilterButton("DelList")->isEnabled());

  frontEnd.answers = {core::Answer::No};
  FilterButton("DelList")->trigger();
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText16");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "MsgCap07");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoWarningDefaultNo);
  EXPECT_EQ(dialog->Filters().size(), 2u);

  frontEnd.answers = {core::Answer::Yes};
  FilterButton("DelList")->trigger();
  ASSERT_EQ(dialog->Filters().size(), 1u);
  // The deleted filter was the one checked: "*.*" takes over.
  EXPECT_TRUE(dialog->Filters()[0].checked);
}

TEST_F(FrmOpenTest, TheAllFilesEntryCanBeNeitherEditedNorDeleted) {
  Show(folder.Path());
  FilterList().setCurrentRow(0);
  EXPECT_FALSE(FilterButton("EditMan")->isEnabled());
  EXPECT_FALSE(FilterButton("DelList")->isEnabled());
  EXPECT_TRUE(FilterButton("Add")->isEnabled());
}

TEST_F(FrmOpenTest, OpenStagesTheSelectedFilesAndStoresFiltersAndFolder) {
  data.WriteFile("settings.nrp", "[PowerFilter]\r\nf1=1*.*\r\nf2=0*.txt\r\n");
  folder.WriteFile("a.txt");
  folder.WriteFile("b.txt");
  Show(folder.Path());
  FilterList().item(1)->setCheckState(Qt::Checked);
  Row("b.txt")->setSelected(true);

  Control<QPushButton>("cmdOpen").click();

  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->TakeStaged(), std::vector<std::string>({folder.Path() + "b.txt"}));
  EXPECT_EQ(Ini(SettingsFile()).ReadString("PowerFilter", "f1"), "0*.*");
  EXPECT_EQ(Ini(SettingsFile()).ReadString("PowerFilter", "f2"), "1*.txt");
  EXPECT_EQ(Ini(SettingsFile()).ReadString("Settings", "lastpath"), folder.Path());
}

TEST_F(FrmOpenTest, OpenWithNothingStagedKeepsTheStoredFolder) {
  data.WriteFile("settings.nrp", "[Settings]\r\nlastpath=/somewhere/else/\r\n");
  folder.WriteFile("a.txt");
  Show(folder.Path());

  Control<QPushButton>("cmdOpen").click();

  EXPECT_TRUE(dialog->TakeStaged().empty());
  EXPECT_EQ(Ini(SettingsFile()).ReadString("Settings", "lastpath"), "/somewhere/else/");
}

TEST_F(FrmOpenTest, OpenWithASelectedFolderStagesItsWholeTreeBreadthFirst) {
  folder.WriteFile("top.txt");
  folder.WriteFile("tree/one.txt");
  folder.WriteFile("tree/deep/deeper/three.txt");
  folder.WriteFile("tree/deep/two.txt");
  Show(folder.Path());
  Row("tree")->setSelected(true);

  Control<QPushButton>("cmdOpen").click();

  EXPECT_EQ(dialog->TakeStaged(),
            std::vector<std::string>({folder.Path() + "tree/one.txt", folder.Path() + "tree/deep/two.txt",
                                      folder.Path() + "tree/deep/deeper/three.txt"}));
}

TEST_F(FrmOpenTest, OpenWithAllFilesTakesEveryListedFileWhateverIsSelected) {
  folder.WriteFile("a.txt");
  folder.WriteFile("b.txt");
  folder.WriteFile("sub/c.txt");
  Show(folder.Path(), true, false);

  Control<QPushButton>("cmdOpen").click();

  EXPECT_EQ(dialog->TakeStaged(), std::vector<std::string>({folder.Path() + "a.txt", folder.Path() + "b.txt"}));
}

TEST_F(FrmOpenTest, OpenWithAllFilesAndSubFoldersTakesTheWholeTree) {
  folder.WriteFile("a.txt");
  folder.WriteFile("sub/c.txt");
  Show(folder.Path(), true, true);

  Control<QPushButton>("cmdOpen").click();

  EXPECT_EQ(dialog->TakeStaged(), std::vector<std::string>({folder.Path() + "a.txt", folder.Path() + "sub/c.txt"}));
}

TEST_F(FrmOpenTest, DoubleClickOnAFileRowOpensIt) {
  folder.WriteFile("a.txt");
  folder.WriteFile("b.txt");
  Show(folder.Path());
  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  const QPoint at = Rows().visualItemRect(Row("b.txt")).center();
  QTest::mouseClick(Rows().viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(Rows().viewport(), Qt::LeftButton, {}, at);

  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->TakeStaged(), std::vector<std::string>({folder.Path() + "b.txt"}));
}

TEST_F(FrmOpenTest, CancelStagesAndStoresNothing) {
  folder.WriteFile("a.txt");
  Show(folder.Path());
  Row("a.txt")->setSelected(true);

  Control<QPushButton>("cmdCancel").click();

  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_TRUE(dialog->TakeStaged().empty());
  EXPECT_EQ(Ini(SettingsFile()).ReadString("PowerFilter", "f1"), "");
  EXPECT_EQ(Ini(SettingsFile()).ReadString("Settings", "lastpath"), "");
}

TEST_F(FrmOpenTest, GermanTextsComeFromTheLanguageFile) {
  catalog = lang::MessageCatalog(nomra::testing::RealFiles(), GermanFile());
  Show(folder.Path());
  EXPECT_EQ(AllFilesBox().text().toStdString(), catalog.GetText("frmOpen", "chkAllFiles"));
  EXPECT_EQ(Control<QComboBox>("DrvSel").itemText(0), "Arbeitsplatz");
  EXPECT_EQ(FilterButton("Add")->toolTip().toStdString(), catalog.GetText("frmOpen", "BtnBarFilterAdd"));
}

}  // namespace
}  // namespace nomra::ui::testing
