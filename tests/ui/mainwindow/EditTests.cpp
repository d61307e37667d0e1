// Typing a new name by hand: the edit dialog and the in-place edit of the
// picture view.
#include <QAction>
#include <QColor>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "core/FileEntry.h"
#include "lang/MessageCatalog.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/FrmEditManWindow.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class EditTest : public WindowTest {
 protected:
  // Opens the edit dialog on the row by its menu entry; the dialog gets the
  // typed text and OK as a person would give them.
  void EditByHand(int position, const QString& typed) {
    Details().selectionModel()->select(Shown().index(position - 1, 0),
                                       QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    expectedModals << "frmEditMan";
    modals.SetHandler([this, typed](QWidget& modal) {
      editTitle = modal.windowTitle();
      auto* name = modal.findChild<QLineEdit*>("txtFileName");
      name->selectAll();
      QTest::keyClicks(name, typed);
      modal.findChild<QPushButton*>("cmdOK")->click();
    });
    Menu("mnuEditMan")->trigger();
  }

  QString editTitle;
};

TEST(EditManDialogTest, DiscardsTheNineForbiddenCharactersWhenTyped) {
  FrmEditManWindow dialog(QString(), lang::MessageCatalog(), nullptr);
  dialog.show();
  auto* name = dialog.findChild<QLineEdit*>("txtFileName");
  ASSERT_NE(name, nullptr);

  QTest::keyClicks(name, "a\\b/c:d?e*f<g>h|i\"j.txt");

  EXPECT_EQ(dialog.Text(), "abcdefghij.txt");
}

TEST(EditManDialogTest, ShowsThePendingNameWithTheStemSelected) {
  FrmEditManWindow dialog("holiday.jpg", lang::MessageCatalog(), nullptr);
  auto* name = dialog.findChild<QLineEdit*>("txtFileName");

  EXPECT_EQ(name->text(), "holiday.jpg");
  EXPECT_EQ(name->selectedText(), "holiday");
}

TEST_F(EditTest, NameTypedByHandBecomesThePendingName) {
  Open();
  AddFiles({"a.txt"});

  EditByHand(1, "typed.txt");

  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "typed.txt");
  EXPECT_EQ(Shown(1, core::kColOldName, Qt::ForegroundRole).value<QColor>(), QColor(128, 0, 0));
  EXPECT_EQ(Label("lbl2(3)"), "typed.txt");
  EXPECT_EQ(editTitle, LanguageText("frmMain", "btnBarLeftEditMan").remove('&'));
}

TEST_F(EditTest, NameOfOnlyBlanksIsIgnored) {
  Open();
  AddFiles({"a.txt"});

  EditByHand(1, "   ");

  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "a.txt");
  EXPECT_FALSE(Shown(1, core::kColOldName, Qt::ForegroundRole).isValid());
  EXPECT_FALSE(MainTool("TakeChanges")->isEnabled());
}

TEST_F(EditTest, InPlaceEditRemovesForbiddenCharacters) {
  Open();
  AddFiles({"a.txt"});
  Menu("mnuViewIcons")->trigger();
  const QModelIndex label = window->ListModel().index(0, core::kColDisplay);
  ASSERT_TRUE(window->ListModel().flags(label) & Qt::ItemIsEditable);

  EXPECT_TRUE(window->ListModel().setData(label, QString("ne:w?*name.txt"), Qt::EditRole));

  EXPECT_EQ(Shown(1, core::kColNewName).toString(), "newname.txt");
  EXPECT_EQ(Shown(1, core::kColDisplay).toString(), "newname.txt");
  EXPECT_EQ(Shown(1, core::kColOldName, Qt::ForegroundRole).value<QColor>(), QColor(128, 0, 0));
}

TEST_F(EditTest, NamesAreNotEditedInPlaceInTheDetailsView) {
  Open();
  AddFiles({"a.txt"});

  EXPECT_FALSE(window->ListModel().flags(window->ListModel().index(0, core::kColDisplay)) & Qt::ItemIsEditable);
  EXPECT_FALSE(window->ListModel().flags(window->ListModel().index(0, core::kColNewName)) & Qt::ItemIsEditable);
}

}  // namespace
}  // namespace nomra::ui::testing
