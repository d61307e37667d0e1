// The open dialog of the system's kind and its panel, driven on their own.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>

#include <memory>

#include "lang/MessageCatalog.h"
#include "open/FilterList.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"
#include "ui/open/SystemOpenDialog.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::TempFolder;

class SystemOpenDialogTest : public ::testing::Test {
 protected:
  SystemOpenDialog& Make(bool allFiles, bool subFolders = false) {
    SystemOpenDialog::Setup setup;
    setup.filters = filters.empty() ? std::vector<open::FilterRow>{{"All files (*.*)", "*.*"}} : filters;
    setup.filterIndex = filterIndex;
    setup.folder = QString::fromStdString(folder.Path());
    setup.allFilesLabel = "(All files)";
    setup.allFiles = allFiles;
    setup.subFolders = subFolders;
    setup.mode = mode;
    dialog = std::make_unique<SystemOpenDialog>(setup, catalog);
    return *dialog;
  }
  QString NameText() const { return dialog->NameField()->text(); }

  // The row of the dialog's list that shows this name, once the folder has been read.
  QModelIndex RowOf(const QString& name) const {
    auto* view = dialog->findChild<QListView*>("listView");
    EXPECT_NE(view, nullptr);
    QModelIndex found;
    WaitFor([&] {
      QAbstractItemModel* model = view->model();
      const QModelIndex root = view->rootIndex();
      for (int row = 0; row < model->rowCount(root); ++row) {
        const QModelIndex index = model->index(row, 0, root);
        if (index.data().toString() == name) found = index;
      }
      return found.isValid();
    });
    return found;
  }

  TempFolder folder;
  lang::MessageCatalog catalog{nomra::testing::RealFiles(), EnglishFile()};
  std::vector<open::FilterRow> filters;
  int filterIndex = 1;
  open::OpenMode mode = open::OpenMode::Files;
  std::unique_ptr<SystemOpenDialog> dialog;
};

TEST_F(SystemOpenDialogTest, IsQtsOwnDialogWithThePanelBelowItsControls) {
  Make(false);
  EXPECT_TRUE(dialog->testOption(QFileDialog::DontUseNativeDialog));
  EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
  ASSERT_NE(dialog->Panel(), nullptr);
  EXPECT_EQ(dialog->Panel()->objectName(), "FrameOpenDialog");
  EXPECT_EQ(dialog->Panel()->parentWidget(), dialog.get());
  EXPECT_EQ(dialog->AllFilesBox()->objectName(), "chkAll");
  EXPECT_EQ(dialog->SubFoldersBox()->objectName(), "chkSub");
  dialog->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  EXPECT_GT(dialog->Panel()->geometry().top(), dialog->NameField()->geometry().bottom());
}

TEST_F(SystemOpenDialogTest, PanelBoxesSayWhatThoseOfNomrasOwnDialogSay) {
  Make(false);
  EXPECT_EQ(dialog->AllFilesBox()->text().toStdString(), catalog.GetText("frmOpen", "chkAllFiles"));
  EXPECT_EQ(dialog->SubFoldersBox()->text().toStdString(), catalog.GetText("frmOpen", "chkSubFolders"));
}

TEST_F(SystemOpenDialogTest, SubFoldersIsEnabledOnlyWhileAllFilesIsChecked) {
  Make(false, true);
  EXPECT_FALSE(dialog->SubFoldersBox()->isEnabled());
  dialog->AllFilesBox()->click();
  EXPECT_TRUE(dialog->SubFoldersBox()->isEnabled());
  dialog->AllFilesBox()->click();
  EXPECT_FALSE(dialog->SubFoldersBox()->isEnabled());
}

TEST_F(SystemOpenDialogTest, AllFilesOnAtTheStartShowsTheLabelInTheNameField) {
  Make(true, true);
  EXPECT_EQ(NameText(), "(All files)");
  EXPECT_TRUE(dialog->SubFoldersBox()->isEnabled());
  EXPECT_TRUE(dialog->SubFoldersBox()->isChecked());
}

TEST_F(SystemOpenDialogTest, ClickOnAllFilesPutsTheLabelInTheNameFieldAndTakesItOut) {
  Make(false);
  dialog->NameField()->setText("typed.txt");
  dialog->AllFilesBox()->click();
  EXPECT_EQ(NameText(), "(All files)");
  dialog->AllFilesBox()->click();
  EXPECT_EQ(NameText(), "");
}

TEST_F(SystemOpenDialogTest, PickingARealFileSwitchesAllFilesOffAndKeepsItsName) {
  folder.WriteFile("a.txt");
  folder.MakeFolder("sub");
  Make(true);
  dialog->show();
  auto* view = dialog->findChild<QListView*>("listView");
  ASSERT_NE(view, nullptr);

  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));

  // A folder is no file: the box stays.
  const QModelIndex sub = RowOf("sub");
  ASSERT_TRUE(sub.isValid());
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(sub).center());
  ASSERT_EQ(view->currentIndex(), sub);
  EXPECT_TRUE(dialog->AllFilesBox()->isChecked());

  const QModelIndex file = RowOf("a.txt");
  ASSERT_TRUE(file.isValid());
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(file).center());
  ASSERT_EQ(view->currentIndex(), file);

  EXPECT_FALSE(dialog->AllFilesBox()->isChecked());
  EXPECT_FALSE(dialog->SubFoldersBox()->isEnabled());
  EXPECT_EQ(NameText(), "a.txt");
  // The tag was spent: the next click puts the label in again.
  dialog->AllFilesBox()->click();
  EXPECT_EQ(NameText(), "(All files)");
}

TEST_F(SystemOpenDialogTest, WithAllFilesTheOpenButtonWorksThoughTheFieldNamesNoFile) {
  folder.WriteFile("a.txt");
  Make(true, true);
  dialog->show();
  auto* open = dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Open);
  ASSERT_NE(open, nullptr);
  EXPECT_TRUE(open->isEnabled());

  open->click();

  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  const open::OpenChoice choice = dialog->Choice();
  EXPECT_TRUE(choice.allFiles);
  EXPECT_TRUE(choice.subFolders);
  ASSERT_EQ(choice.paths.size(), 1u);
  EXPECT_EQ(choice.paths[0] + "/", folder.Path());
}

TEST_F(SystemOpenDialogTest, WithoutAllFilesTheChosenFilesAreDelivered) {
  const std::string a = folder.WriteFile("a.txt");
  const std::string b = folder.WriteFile("b.txt");
  Make(false);
  dialog->show();
  dialog->NameField()->setText("\"a.txt\" \"b.txt\"");

  dialog->accept();

  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  const open::OpenChoice choice = dialog->Choice();
  EXPECT_FALSE(choice.allFiles);
  EXPECT_EQ(choice.paths, std::vector<std::string>({a, b}));
}

TEST_F(SystemOpenDialogTest, FilterRowsAreOfferedWithTheStoredOneChosen) {
  filters = {{"All files (*.*)", "*.*"}, {"Texts (*.txt)", "*.txt"}, {"Music (*.mp3;*.ogg)", "*.mp3;*.ogg"}};
  filterIndex = 2;
  Make(false);

  EXPECT_EQ(dialog->nameFilters(), QStringList({"All files (*.*)", "Texts (*.txt)", "Music (*.mp3 *.ogg)"}));
  EXPECT_EQ(dialog->selectedNameFilter(), "Texts (*.txt)");
  EXPECT_EQ(dialog->Choice().filterIndex, 2);
  dialog->selectNameFilter("Music (*.mp3 *.ogg)");
  EXPECT_EQ(dialog->Choice().filterIndex, 3);
}

TEST_F(SystemOpenDialogTest, PlaylistModeHasNoPanel) {
  mode = open::OpenMode::Playlists;
  filters = {{"m3u Playlist (*.m3u)", "*.m3u"}, {"pls Playlist (*.pls)", "*.pls"}};
  Make(true);
  EXPECT_EQ(dialog->Panel(), nullptr);
  EXPECT_EQ(dialog->findChild<QWidget*>("FrameOpenDialog"), nullptr);
  EXPECT_EQ(NameText(), "");
  EXPECT_FALSE(dialog->Choice().allFiles);
}

}  // namespace
}  // namespace nomra::ui::testing
