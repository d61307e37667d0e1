// The windows of Replace, Trim, Move, Numbering and Renumber: every input
// of the model has its widget, OK changes the list as the step without a
// window does, and the choices enable the inputs that belong to them.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "ui/common/DialogBinder.h"
#include "ui/rename/ActionWindows.h"
#include "ui/rename/FrmPosWindow.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class NewActionWindowTest : public WindowTest {
 protected:
  std::unique_ptr<ActionDialogWindow> ActionWindow(int stepType) {
    return CreateActionWindow(
        stepType, ActionWindowServices{window->Actions(), window->Catalog(), window.get(), QStringLiteral("Nomra"),
                                       [this] { window->RefreshPreview(); }});
  }
  QString NewName(const QString& oldName) const { return Shown(PositionOf(oldName), core::kColNewName).toString(); }
  void Type(QWidget& dialog, const char* field, const QString& text) {
    auto* edit = dialog.findChild<QLineEdit*>(field);
    edit->clear();
    QTest::keyClicks(edit, text);
  }
  // Opens the dialog of the menu entry, lets `fill` work on it and presses OK.
  void RunWithOk(const char* entry, const char* dialogName, const std::function<void(QWidget&)>& fill) {
    expectedModals << dialogName;
    modals.SetHandler([&](QWidget& modal) {
      fill(modal);
      modal.findChild<QPushButton*>("cmdOK")->click();
    });
    window->RunMenuCommand(entry);
  }
};

TEST_F(NewActionWindowTest, EveryInputOfTheNewDialogsHasItsWidget) {
  Open();
  AddFiles({"1 a.txt", "2 b.txt"});
  for (const int type : {1, 2, 6, 8, 10}) {
    const auto dialog = ActionWindow(type);
    ASSERT_NE(dialog, nullptr) << type;
    EXPECT_EQ(InputsWithoutWidget(dialog->Action().Model(), *dialog), QStringList()) << type;
  }
}

TEST_F(NewActionWindowTest, ReplaceOkChangesTheListAsTheStepDoes) {
  Open();
  AddFiles({"abab.txt", "ABAB.txt"});
  RunWithOk("mnuRename06", "frmReplace", [&](QWidget& modal) {
    Type(modal, "txtToRep", "ab");
    Type(modal, "txtRepBy", "X");
  });
  EXPECT_EQ(NewName("abab.txt"), "XX.txt");
  EXPECT_EQ(NewName("ABAB.txt"), "ABAB.txt");
}

TEST_F(NewActionWindowTest, ReplaceWindowFollowsItsOptionButtons) {
  Open();
  const auto dialog = ActionWindow(6);
  EXPECT_TRUE(dialog->findChild<QLineEdit*>("txtToRep")->isEnabled());
  EXPECT_FALSE(dialog->findChild<QLineEdit*>("txtPos(0)")->isEnabled());
  dialog->findChild<QRadioButton*>("optChr2Repl")->setChecked(true);
  EXPECT_FALSE(dialog->findChild<QLineEdit*>("txtToRep")->isEnabled());
  EXPECT_TRUE(dialog->findChild<QLineEdit*>("txtPos(0)")->isEnabled());
  dialog->findChild<QRadioButton*>("optRemove")->setChecked(true);
  EXPECT_FALSE(dialog->findChild<QLineEdit*>("txtRepBy")->isEnabled());
}

TEST_F(NewActionWindowTest, FindFieldTakesPatternCharactersOnlyAsARegularExpression) {
  Open();
  const auto dialog = ActionWindow(6);
  auto* find = dialog->findChild<QLineEdit*>("txtToRep");
  QTest::keyClicks(find, "a*b");
  EXPECT_EQ(find->text(), "ab");
  dialog->findChild<QCheckBox*>("chkRegExp")->setChecked(true);
  find->clear();
  QTest::keyClicks(find, "a*b");
  EXPECT_EQ(find->text(), "a*b");
}

TEST_F(NewActionWindowTest, SpinBarWritesItsNumberIntoTheBox) {
  Open();
  const auto dialog = ActionWindow(6);
  dialog->findChild<QScrollBar*>("VScroll1(0)")->setValue(197);
  EXPECT_EQ(dialog->findChild<QLineEdit*>("txtPos(0)")->text(), "4");
}

TEST_F(NewActionWindowTest, TrimOkChangesTheListAsTheStepDoes) {
  Open();
  AddFiles({"abcdef.txt"});
  RunWithOk("mnuRename10", "frmTrim", [&](QWidget& modal) {
    modal.findChild<QRadioButton*>("opt1(1)")->setChecked(true);
    Type(modal, "txtPos(0)", "3");
  });
  EXPECT_EQ(NewName("abcdef.txt"), "abc.txt");
}

TEST_F(NewActionWindowTest, MoveOkMovesTheSelectedCharacters) {
  Open();
  AddFiles({"abcde.txt"});
  RunWithOk("mnuRename08", "frmMove", [&](QWidget& modal) {
    modal.findChild<QLineEdit*>("txtFileName")->setSelection(0, 2);
    modal.findChild<QScrollBar*>("HScroll1")->setValue(3);
    EXPECT_EQ(modal.findChild<QLineEdit*>("txtPreview")->text(), "cdabe");
  });
  EXPECT_EQ(NewName("abcde.txt"), "cdabe.txt");
}

TEST_F(NewActionWindowTest, NumberingOkNumbersTheList) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  RunWithOk("mnuRename01", "frmNumber", [&](QWidget& modal) {
    modal.findChild<QRadioButton*>("optSuffix")->setChecked(true);
    modal.findChild<QCheckBox*>("chkIntChr")->setChecked(true);
    modal.findChild<QComboBox*>("cmbIChr")->setCurrentIndex(4);
  });
  EXPECT_EQ(NewName("a.txt"), "a_1.txt");
  EXPECT_EQ(NewName("b.txt"), "b_2.txt");
}

TEST_F(NewActionWindowTest, NumberingMinusFlipsTheSignAndLettersShowTheStart) {
  Open();
  const auto dialog = ActionWindow(1);
  auto* start = dialog->findChild<QLineEdit*>("txtInit");
  start->setFocus();
  start->clear();
  QTest::keyClicks(start, "28-");
  EXPECT_EQ(start->text(), "-28");
  auto* system = dialog->findChild<QComboBox*>("cmbNumberWith");
  system->setCurrentIndex(2);
  emit system->activated(2);
  EXPECT_EQ(dialog->findChild<QLineEdit*>("txtInitFormat")->text(), "-AB");
  EXPECT_FALSE(dialog->findChild<QLineEdit*>("txtPos")->isEnabled());
  dialog->findChild<QRadioButton*>("optInsertAt")->setChecked(true);
  EXPECT_TRUE(dialog->findChild<QLineEdit*>("txtPos")->isEnabled());
  EXPECT_FALSE(dialog->findChild<QCheckBox*>("chkReplace")->isEnabled());
}

TEST_F(NewActionWindowTest, RenumberOkRenumbersInTheUsersOrder) {
  Open();
  AddFiles({"1 a.txt", "2 b.txt", "3 c.txt"});
  RunWithOk("mnuRename02", "frmRenumber", [&](QWidget& modal) {
    EXPECT_FALSE(modal.findChild<QPushButton*>("cmdApply")->isVisible());
    auto* sorted = modal.findChild<QListWidget*>("lstFilesSorted");
    ASSERT_EQ(sorted->count(), 3);
    sorted->setCurrentRow(2);
    modal.findChild<QPushButton*>("cmdUp")->click();
    EXPECT_EQ(sorted->item(1)->text(), "3 c");
    modal.findChild<QComboBox*>("cmbAnzahl")->setCurrentIndex(0);
  });
  EXPECT_EQ(NewName("1 a.txt"), "1 a.txt");
  EXPECT_EQ(NewName("3 c.txt"), "2 c.txt");
  EXPECT_EQ(NewName("2 b.txt"), "3 b.txt");
}

TEST_F(NewActionWindowTest, PositionPickerGivesTheCaretAndTheSelection) {
  Open();
  FrmPosWindow picker(actions::PickMode::FromTo, {"abcdef", "xyz"}, false, window->Catalog());
  auto* name = picker.findChild<QLineEdit*>("txtFileName");
  EXPECT_EQ(name->text(), "abcdef");
  name->setSelection(1, 3);
  EXPECT_EQ(picker.Current().picked.from, 2);
  EXPECT_EQ(picker.Current().picked.to, 4);
  picker.findChild<QScrollBar*>("VScrollFile")->setValue(2);
  EXPECT_EQ(name->text(), "xyz");
  name->setCursorPosition(1);
  EXPECT_EQ(picker.Current().picked.first, 1);
  EXPECT_EQ(picker.Current().picked.last, 2);
}

}  // namespace
}  // namespace nomra::ui::testing
