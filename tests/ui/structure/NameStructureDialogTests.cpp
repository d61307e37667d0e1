// The structure dialogs in the window: frmNameStructure with its two states,
// its tag lists, the check's messages and the preview, and frmSelNamePart.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include "structure/TagChoices.h"
#include "ui/common/DialogBinder.h"
#include "ui/structure/FrmNameStructureWindow.h"
#include "ui/structure/FrmSelNamePartWindow.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

const std::string kTwoStructures = "Name;Structure;\r\nUpper;<UC><NAME></UC>.<EXT>;\r\nMarked;x_<NAME>.<EXT>;\r\n";

class NameStructureDialogTest : public WindowTest {
 protected:
  // The window with two files and the two stored structures.
  void OpenWithStructures(const std::string& structures = kTwoStructures) {
    data.WriteFile("structures.nrp", structures);
    Open();
    AddFiles({"alpha.txt", "beta.txt"});
  }
  ActionWindowServices Services() {
    return ActionWindowServices{window->Actions(), window->Catalog(), window.get(), QStringLiteral("Nomra"),
                                [this] { window->RefreshPreview(); }};
  }
  std::unique_ptr<FrmNameStructureWindow> Dialog() { return std::make_unique<FrmNameStructureWindow>(Services()); }

  static QLineEdit& Edit(QWidget& dialog, const char* name) { return *dialog.findChild<QLineEdit*>(name); }
  static QTreeWidget& Tree(QWidget& dialog, const char* name) { return *dialog.findChild<QTreeWidget*>(name); }
  static void Click(QWidget& dialog, const char* name) { dialog.findChild<QPushButton*>(name)->click(); }
  static bool Shows(QWidget& dialog, const char* frame) { return !dialog.findChild<QGroupBox*>(frame)->isHidden(); }
  static void Type(QWidget& dialog, const char* field, const QString& text) {
    QLineEdit& edit = Edit(dialog, field);
    edit.selectAll();
    QTest::keyClicks(&edit, text);
  }

  QString NewName(const QString& oldName) const { return Shown(PositionOf(oldName), core::kColNewName).toString(); }
  std::string StoredFile() const { return nomra::testing::ReadWholeFile(data.Path() + "structures.nrp"); }

  // Drops the tag of a list's row on txtStructure at x, as a drag would.
  static void DropTag(QWidget& dialog, const char* list, int row, int x) {
    QTreeWidget& tags = Tree(dialog, list);
    std::unique_ptr<QMimeData> data(tags.model()->mimeData({tags.model()->index(row, 0)}));
    QLineEdit& target = Edit(dialog, "txtStructure");
    const QPointF at(x, target.height() / 2.0);
    QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    QDropEvent drop(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
  }
};

TEST_F(NameStructureDialogTest, EveryInputOfBothDialogsHasItsWidget) {
  OpenWithStructures();
  const auto dialog = Dialog();
  EXPECT_EQ(InputsWithoutWidget(dialog->Editor().Model(), *dialog), QStringList());
  QLineEdit target;
  FrmSelNamePartWindow picker(target, Services());
  EXPECT_EQ(InputsWithoutWidget(picker.Picker().Model(), picker), QStringList());
}

TEST_F(NameStructureDialogTest, OpensOnTheListWithTheFirstStructureChosen) {
  OpenWithStructures();
  const auto dialog = Dialog();
  EXPECT_EQ(dialog->windowTitle(), LanguageText("frmNameStructure", "Caption"));
  EXPECT_TRUE(Shows(*dialog, "frameMain"));
  EXPECT_FALSE(Shows(*dialog, "frameEdit"));
  QTreeWidget& list = Tree(*dialog, "lstStructures");
  ASSERT_EQ(list.topLevelItemCount(), 2);
  EXPECT_EQ(list.topLevelItem(1)->text(0), "Marked");
  EXPECT_EQ(list.topLevelItem(1)->text(1), "x_<NAME>.<EXT>");
  EXPECT_EQ(list.headerItem()->text(1), LanguageText("frmNameStructure", "lstColHead02"));
  EXPECT_EQ(list.currentItem(), list.topLevelItem(0));
  EXPECT_TRUE(dialog->findChild<QPushButton*>("cmdStructureEdit")->isEnabled());
}

TEST_F(NameStructureDialogTest, WithoutStoredStructuresEditAndDeleteAreDisabled) {
  Open();
  const auto dialog = Dialog();
  EXPECT_EQ(Tree(*dialog, "lstStructures").topLevelItemCount(), 0);
  EXPECT_FALSE(dialog->findChild<QPushButton*>("cmdStructureEdit")->isEnabled());
  EXPECT_FALSE(dialog->findChild<QPushButton*>("cmdStructureDel")->isEnabled());
}

TEST_F(NameStructureDialogTest, TagListsAreFilledFromTheLanguageFile) {
  OpenWithStructures();
  const auto dialog = Dialog();
  const std::vector<structure::TagChoice> elements = structure::ElementChoices(window->Catalog());
  QTreeWidget& list = Tree(*dialog, "lstElements");
  ASSERT_EQ(list.topLevelItemCount(), static_cast<int>(elements.size()));
  EXPECT_EQ(list.topLevelItem(0)->text(0).toStdString(), elements.front().label);
  EXPECT_EQ(list.topLevelItem(0)->text(1), "<NAME>");
  EXPECT_EQ(Tree(*dialog, "lstFunctions").topLevelItemCount(),
            static_cast<int>(structure::FunctionChoices(window->Catalog()).size()));
}

TEST_F(NameStructureDialogTest, ChoosingARowShowsItInThePreview) {
  OpenWithStructures();
  const auto dialog = Dialog();
  EXPECT_EQ(Edit(*dialog, "txtFileName").text(), "alpha.txt");
  EXPECT_EQ(Edit(*dialog, "txtResult").text(), "ALPHA.txt");
  QTreeWidget& list = Tree(*dialog, "lstStructures");
  list.setCurrentItem(list.topLevelItem(1));
  EXPECT_EQ(Edit(*dialog, "txtStructure").text(), "x_<NAME>.<EXT>");
  EXPECT_EQ(Edit(*dialog, "txtResult").text(), "x_alpha.txt");
}

TEST_F(NameStructureDialogTest, ScrollBarPicksThePreviewRow) {
  OpenWithStructures();
  const auto dialog = Dialog();
  auto* bar = dialog->findChild<QScrollBar*>("VScroll1");
  EXPECT_EQ(bar->minimum(), 1);
  EXPECT_EQ(bar->maximum(), 2);
  bar->setValue(2);
  EXPECT_EQ(Edit(*dialog, "txtFileName").text(), "beta.txt");
  EXPECT_EQ(Edit(*dialog, "txtResult").text(), "BETA.txt");
}

TEST_F(NameStructureDialogTest, NewShowsTheEditorWithTheNextName) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureAdd");
  EXPECT_FALSE(Shows(*dialog, "frameMain"));
  EXPECT_TRUE(Shows(*dialog, "frameEdit"));
  EXPECT_EQ(Edit(*dialog, "txtName").text(), "Structure 3");
  EXPECT_EQ(Edit(*dialog, "txtName").selectedText(), "Structure 3");
  EXPECT_EQ(Edit(*dialog, "txtStructure").text(), "");
  EXPECT_FALSE(dialog->findChild<QPushButton*>("cmdStructureOK")->isEnabled());
}

TEST_F(NameStructureDialogTest, TypingAStructureRenewsThePreviewAndEnablesOk) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureAdd");
  QTest::keyClicks(&Edit(*dialog, "txtStructure"), "<NAME>-x");
  EXPECT_EQ(Edit(*dialog, "txtResult").text(), "alpha-x");
  EXPECT_TRUE(dialog->findChild<QPushButton*>("cmdStructureOK")->isEnabled());
}

TEST_F(NameStructureDialogTest, DroppedTagIsInsertedWhereItIsDropped) {
  OpenWithStructures();
  const auto dialog = Dialog();
  dialog->show();
  Click(*dialog, "cmdStructureAdd");
  QLineEdit& structure = Edit(*dialog, "txtStructure");
  QTest::keyClicks(&structure, "ab");
  DropTag(*dialog, "lstElements", 0, structure.width() - 4);
  EXPECT_EQ(structure.text(), "ab<NAME>");
  DropTag(*dialog, "lstFunctions", 0, 1);
  const QString function = Tree(*dialog, "lstFunctions").topLevelItem(0)->text(1);
  EXPECT_EQ(structure.text(), function + "ab<NAME>");
  // The drop is an edit like typing: the preview follows it.
  EXPECT_EQ(dialog->Editor().Model().Text("txtStructure"), structure.text().toStdString());
}

TEST_F(NameStructureDialogTest, BadSyntaxIsToldAndItsCharacterSelected) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureAdd");
  QTest::keyClicks(&Edit(*dialog, "txtStructure"), "<NAME>>x");
  Click(*dialog, "cmdStructureOK");
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked.front().message.textKey, "msgErrorStructure1");
  EXPECT_EQ(asked.front().caption, LanguageText("Messages", "msgCapErrorStructure"));
  EXPECT_EQ(asked.front().text, LanguageText("Messages", "msgErrorStructure1",
                                             {"7", LanguageText("Messages", "msgCheckInput").toStdString()}));
  EXPECT_EQ(asked.front().message.style, core::MessageStyle::OkWarning);
  EXPECT_EQ(Edit(*dialog, "txtStructure").selectedText(), ">");
  EXPECT_EQ(Edit(*dialog, "txtStructure").selectionStart(), 6);
  EXPECT_TRUE(Shows(*dialog, "frameEdit"));
  EXPECT_EQ(Tree(*dialog, "lstStructures").topLevelItemCount(), 2);
}

TEST_F(NameStructureDialogTest, SelectionCountsCharactersBeyondTheBasicPlane) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureAdd");
  // Inserting is an edit, as typing is.
  Edit(*dialog, "txtStructure").insert(QString::fromUtf8("\xF0\x9F\x98\x80>"));
  Click(*dialog, "cmdStructureOK");
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked.front().message.arguments.front(), "2");
  EXPECT_EQ(Edit(*dialog, "txtStructure").text().size(), 3);
  EXPECT_EQ(Edit(*dialog, "txtStructure").selectedText(), ">");
}

TEST_F(NameStructureDialogTest, OkInTheEditorStoresTheRowAndShowsTheList) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureAdd");
  QTest::keyClicks(&Edit(*dialog, "txtStructure"), "<NAME>_new");
  Click(*dialog, "cmdStructureOK");
  EXPECT_TRUE(asked.empty());
  EXPECT_TRUE(Shows(*dialog, "frameMain"));
  QTreeWidget& list = Tree(*dialog, "lstStructures");
  ASSERT_EQ(list.topLevelItemCount(), 3);
  EXPECT_EQ(list.currentItem(), list.topLevelItem(2));
  EXPECT_EQ(list.topLevelItem(2)->text(0), "Structure 3");
}

TEST_F(NameStructureDialogTest, CancelInTheEditorStoresNothing) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureEdit");
  Type(*dialog, "txtStructure", "changed");
  Click(*dialog, "cmdStructureCancel");
  EXPECT_TRUE(Shows(*dialog, "frameMain"));
  EXPECT_EQ(Tree(*dialog, "lstStructures").topLevelItem(0)->text(1), "<UC><NAME></UC>.<EXT>");
  EXPECT_EQ(Edit(*dialog, "txtStructure").text(), "<UC><NAME></UC>.<EXT>");
}

TEST_F(NameStructureDialogTest, DeleteRemovesTheRowOnlyOnYes) {
  OpenWithStructures();
  const auto dialog = Dialog();
  Click(*dialog, "cmdStructureDel");
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked.front().message.textKey, "msgRemoveStructure");
  EXPECT_EQ(Tree(*dialog, "lstStructures").topLevelItemCount(), 2);
  answers = {core::Answer::Yes};
  Click(*dialog, "cmdStructureDel");
  ASSERT_EQ(Tree(*dialog, "lstStructures").topLevelItemCount(), 1);
  EXPECT_EQ(Tree(*dialog, "lstStructures").topLevelItem(0)->text(0), "Marked");
}

TEST_F(NameStructureDialogTest, OkSavesAppliesAndCloses) {
  OpenWithStructures();
  expectedModals << "frmNameStructure";
  bool closed = false;
  modals.SetHandler([&](QWidget& modal) {
    Click(modal, "cmdStructureAdd");
    QTest::keyClicks(&Edit(modal, "txtStructure"), "<NAME>_2.<EXT>");
    Click(modal, "cmdStructureOK");
    Click(modal, "cmdOK");
    closed = modal.isHidden();
  });
  OpenNameStructure(Services());
  EXPECT_TRUE(closed);
  EXPECT_EQ(NewName("alpha.txt"), "alpha_2.txt");
  EXPECT_EQ(NewName("beta.txt"), "beta_2.txt");
  EXPECT_EQ(StoredFile(), kTwoStructures + "Structure 3;<NAME>_2.<EXT>;\r\n");
}

TEST_F(NameStructureDialogTest, CancelClosesWithoutSaving) {
  OpenWithStructures();
  expectedModals << "frmNameStructure";
  modals.SetHandler([&](QWidget& modal) {
    answers = {core::Answer::Yes};
    Click(modal, "cmdStructureDel");
    Click(modal, "cmdCancel");
  });
  OpenNameStructure(Services());
  EXPECT_EQ(StoredFile(), kTwoStructures);
  EXPECT_EQ(NewName("alpha.txt"), "alpha.txt");
}

TEST_F(NameStructureDialogTest, FailedCheckOnOkKeepsTheDialogOpenInTheEditor) {
  OpenWithStructures("Name;Structure;\r\nBroken;<NAME_L(x)>;\r\n");
  const auto dialog = Dialog();
  dialog->show();
  dialog->cmdOK();
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_TRUE(Shows(*dialog, "frameEdit"));
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked.front().message.textKey, "msgErrorStructure3");
  EXPECT_EQ(NewName("alpha.txt"), "alpha.txt");
  EXPECT_EQ(StoredFile(), "Name;Structure;\r\nBroken;<NAME_L(x)>;\r\n");
}

class SelNamePartDialogTest : public NameStructureDialogTest {};

TEST_F(SelNamePartDialogTest, ReadsTheTargetsTagAndShowsThePart) {
  Open();
  AddFiles({"a - b - c.mp3"});
  QLineEdit target;
  target.setText("<NamePart(\"-\",2,0)>");
  FrmSelNamePartWindow dialog(target, Services());
  EXPECT_EQ(dialog.windowTitle(), LanguageText("frmSelNamePart", "Caption"));
  EXPECT_EQ(Edit(dialog, "txtSeparator").text(), "-");
  EXPECT_EQ(dialog.findChild<QComboBox*>("cmbPartCount")->currentIndex(), 1);
  EXPECT_FALSE(dialog.findChild<QCheckBox*>("chkRemoveBlanks")->isChecked());
  EXPECT_EQ(Edit(dialog, "txtResult").text(), " b ");
  dialog.findChild<QCheckBox*>("chkRemoveBlanks")->setChecked(true);
  EXPECT_EQ(Edit(dialog, "txtResult").text(), "b");
}

TEST_F(SelNamePartDialogTest, OkWritesTheTagIntoTheTarget) {
  Open();
  AddFiles({"x_y_z.jpg"});
  QLineEdit target;
  FrmSelNamePartWindow dialog(target, Services());
  QTest::keyClicks(&Edit(dialog, "txtSeparator"), "_");
  dialog.findChild<QComboBox*>("cmbPartCount")->setCurrentIndex(2);
  EXPECT_EQ(Edit(dialog, "txtResult").text(), "z");
  Click(dialog, "cmdOK");
  EXPECT_EQ(target.text(), "<NamePart(\"_\",3,1)>");
}

TEST_F(SelNamePartDialogTest, WithoutASeparatorOkIsDisabled) {
  Open();
  AddFiles({"x_y.jpg"});
  QLineEdit target;
  target.setText("keep");
  FrmSelNamePartWindow dialog(target, Services());
  EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
  QTest::keyClicks(&Edit(dialog, "txtSeparator"), "_");
  EXPECT_TRUE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
}

TEST_F(SelNamePartDialogTest, SeparatorRefusesTheCharactersNoNameHolds) {
  Open();
  QLineEdit target;
  FrmSelNamePartWindow dialog(target, Services());
  QTest::keyClicks(&Edit(dialog, "txtSeparator"), "a\\/:?*<>|\"b");
  EXPECT_EQ(Edit(dialog, "txtSeparator").text(), "ab");
}

}  // namespace
}  // namespace nomra::ui::testing
