// The action dialogs in the window: the shared frame, prefix and suffix, and
// the remembered inputs.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "support/RealFiles.h"
#include "ui/common/DialogBinder.h"
#include "ui/rename/ActionWindows.h"
#include "ui/rename/FrmPrefixSuffixWindow.h"
#include "ui/script/FrmScriptWindow.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

const std::string kStandIn = "\xC2\x90";

class ActionDialogTest : public WindowTest {
 protected:
  std::unique_ptr<ActionDialogWindow> PrefixSuffixWindow() {
    return CreateActionWindow(5, ActionWindowServices{window->Actions(), window->Catalog(), window.get(),
                                                      QStringLiteral("Nomra"), [this] { window->RefreshPreview(); }});
  }
  QString NewName(const QString& oldName) const { return Shown(PositionOf(oldName), core::kColNewName).toString(); }
  void Type(QWidget& dialog, const char* field, const QString& text) {
    auto* edit = dialog.findChild<QLineEdit*>(field);
    edit->clear();
    QTest::keyClicks(edit, text);
  }
};

TEST_F(ActionDialogTest, EveryInputOfPrefixAndSuffixHasItsWidget) {
  Open();
  const auto dialog = PrefixSuffixWindow();
  EXPECT_EQ(InputsWithoutWidget(dialog->Action().Model(), *dialog), QStringList());
}

TEST_F(ActionDialogTest, EveryInputOfTheScriptDialogHasItsWidget) {
  Open();
  FrmScriptWindow dialog(window->Script(), system->Files(), window->FrontEnd(), window->Catalog(), window.get(),
                         "Nomra");
  script::FrmScript chooser(window->Script(), system->Files(), window->FrontEnd());
  EXPECT_EQ(InputsWithoutWidget(chooser.Model(), dialog), QStringList());
}

TEST_F(ActionDialogTest, ApplyKeepsTheDialogOpenAndCancelKeepsWhatWasApplied) {
  Open();
  AddFiles({"a.txt", "b"});
  expectedModals << "frmPrefixSuffix";
  bool stillOpenAfterApply = false;
  modals.SetHandler([&](QWidget& modal) {
    Type(modal, "txtPr", "x_");
    Type(modal, "txtSu", "_y");
    modal.findChild<QPushButton*>("cmdApply")->click();
    stillOpenAfterApply = modal.isVisible();
    modal.findChild<QPushButton*>("cmdCancel")->click();
  });

  window->RunMainToolKey("Rename05");

  EXPECT_TRUE(stillOpenAfterApply);
  EXPECT_EQ(NewName("a.txt"), "x_a_y.txt");
  EXPECT_EQ(NewName("b"), "x_b_y");
}

TEST_F(ActionDialogTest, ApplyingTwiceAppliesTwice) {
  Open();
  AddFiles({"a.txt"});
  expectedModals << "frmPrefixSuffix";
  modals.SetHandler([&](QWidget& modal) {
    Type(modal, "txtPr", "x");
    modal.findChild<QPushButton*>("cmdApply")->click();
    modal.findChild<QPushButton*>("cmdOK")->click();
  });

  window->RunMenuCommand("mnuRename05");

  EXPECT_EQ(NewName("a.txt"), "xxa.txt");
}

TEST_F(ActionDialogTest, NameFieldsSwallowTheForbiddenCharacters) {
  Open();
  const auto dialog = PrefixSuffixWindow();
  auto* prefix = dialog->findChild<QLineEdit*>("txtPr");
  QTest::keyClicks(prefix, "a\\b/c:d?e*f<g>h|i\"j.k");
  EXPECT_EQ(prefix->text(), "abcdefghij.k");
}

TEST_F(ActionDialogTest, LabelsAreCutFromTheCaption) {
  Open();
  const auto dialog = PrefixSuffixWindow();
  EXPECT_EQ(dialog->windowTitle(), "Prefix/Suffix (All files)");
  EXPECT_EQ(dialog->findChild<QLabel*>("lblPrefix")->text(), "Prefix:");
  EXPECT_EQ(dialog->findChild<QLabel*>("lblSuffix")->text(), "Suffix:");
}

TEST_F(ActionDialogTest, RemembersItsInputsWhenDialogsKeepThem) {
  WriteSettings("[Settings]\r\nsavset=1\r\n[FrmPS]\r\ntxtPr=a" + kStandIn + "b\r\ntxtSu=" + kStandIn + kStandIn +
                "\r\n");
  Open();
  const auto dialog = PrefixSuffixWindow();
  EXPECT_EQ(dialog->findChild<QLineEdit*>("txtPr")->text(), "a b");
  EXPECT_EQ(dialog->findChild<QLineEdit*>("txtSu")->text(), "  ");
}

TEST_F(ActionDialogTest, ForgetsItsInputsWhenDialogsDontKeepThem) {
  WriteSettings("[Settings]\r\nsavset=0\r\n[FrmPS]\r\ntxtPr=remembered\r\n");
  Open();
  const auto dialog = PrefixSuffixWindow();
  EXPECT_EQ(dialog->findChild<QLineEdit*>("txtPr")->text(), "");
}

TEST_F(ActionDialogTest, ApplyStoresTheInputsInTheirSection) {
  WriteSettings("[Settings]\r\nsavset=1\r\n[FrmPS]\r\ntxtSu=old\r\n");
  Open();
  AddFiles({"a.txt"});
  const auto dialog = PrefixSuffixWindow();
  Type(*dialog, "txtPr", "new one");
  Type(*dialog, "txtSu", "");

  dialog->cmdApply();

  EXPECT_EQ(Ini(SettingsPath()).ReadString("FrmPS", "txtPr"), "new" + kStandIn + "one");
  EXPECT_EQ(Ini(SettingsPath()).ReadString("FrmPS", "txtSu"), "");
}

TEST_F(ActionDialogTest, TextBoxSelectsAllItsTextOnFocus) {
  Open();
  const auto dialog = PrefixSuffixWindow();
  dialog->show();
  auto* suffix = dialog->findChild<QLineEdit*>("txtSu");
  suffix->setText("keep");
  dialog->findChild<QLineEdit*>("txtPr")->setFocus();
  QApplication::processEvents();
  suffix->setFocus();
  EXPECT_TRUE(WaitFor([&] { return suffix->selectedText() == "keep"; }));
}

TEST_F(ActionDialogTest, EveryInputOfCaseAndExtensionHasItsWidget) {
  Open();
  for (int stepType : {3, 4}) {
    const auto dialog = CreateActionWindow(
        stepType, ActionWindowServices{window->Actions(), window->Catalog(), window.get(), "Nomra", [] {}});
    ASSERT_NE(dialog, nullptr) << stepType;
    EXPECT_EQ(InputsWithoutWidget(dialog->Action().Model(), *dialog), QStringList()) << stepType;
  }
}

TEST_F(ActionDialogTest, CaseConversionsTakeTheirTextsFromTheNumberedKeys) {
  Open();
  const auto dialog =
      CreateActionWindow(4, ActionWindowServices{window->Actions(), window->Catalog(), window.get(), "Nomra", [] {}});
  EXPECT_EQ(dialog->findChild<QRadioButton*>("opt1(3)")->text(), LanguageText("frmULCASE", "optOpt3"));
  EXPECT_EQ(dialog->findChild<QGroupBox*>("frameapply")->title(), LanguageText("frmULCASE", "Frameapply"));
  EXPECT_TRUE(dialog->findChild<QRadioButton*>("opt1(1)")->isChecked());
  EXPECT_TRUE(dialog->findChild<QRadioButton*>("opt2(1)")->isChecked());
}

TEST_F(ActionDialogTest, UpperCaseFromTheMenuChangesTheNames) {
  Open();
  AddFiles({"mixed Case.txt"});
  expectedModals << "frmULCase";
  modals.SetHandler([](QWidget& modal) {
    modal.findChild<QRadioButton*>("opt1(3)")->setChecked(true);
    modal.findChild<QRadioButton*>("opt2(3)")->setChecked(true);
    modal.findChild<QPushButton*>("cmdOK")->click();
  });
  window->RunMenuCommand("mnuRename04");
  EXPECT_EQ(NewName("mixed Case.txt"), "MIXED CASE.TXT");
}

TEST_F(ActionDialogTest, RemovingTheExtensionDisablesItsInputs) {
  Open();
  const auto dialog =
      CreateActionWindow(3, ActionWindowServices{window->Actions(), window->Catalog(), window.get(), "Nomra", [] {}});
  auto* keepOld = dialog->findChild<QCheckBox*>("chkAddOldFE");
  auto* extension = dialog->findChild<QLineEdit*>("txtFE");
  EXPECT_TRUE(keepOld->isEnabled());
  dialog->findChild<QRadioButton*>("optFE(2)")->setChecked(true);
  EXPECT_FALSE(keepOld->isEnabled());
  EXPECT_FALSE(extension->isEnabled());
  dialog->findChild<QRadioButton*>("optFE(1)")->setChecked(true);
  EXPECT_TRUE(extension->isEnabled());
}

TEST_F(ActionDialogTest, ExtensionFieldRefusesDotsAndShowsTheCleanedText) {
  Open();
  AddFiles({"a.doc"});
  const auto dialog = CreateActionWindow(3, ActionWindowServices{window->Actions(), window->Catalog(), window.get(),
                                                                 "Nomra", [this] { window->RefreshPreview(); }});
  auto* extension = dialog->findChild<QLineEdit*>("txtFE");
  QTest::keyClicks(extension, ".t/x.t");
  EXPECT_EQ(extension->text(), "txt");
  extension->setText(" ..bak");
  dialog->cmdApply();
  EXPECT_EQ(extension->text(), "bak");
  EXPECT_EQ(NewName("a.doc"), "a.bak");
}

TEST_F(ActionDialogTest, ActionsWithoutTheirDialogYetStayDisabled) {
  Open();
  AddFiles({"a.txt"});
  for (const char* key :
       {"Rename01", "Rename02", "Rename03", "Rename04", "Rename05", "Rename06", "Rename08", "Rename10"}) {
    EXPECT_TRUE(MainTool(key)->isEnabled()) << key;
    EXPECT_TRUE(Menu(QString("mnu") + key)->isEnabled()) << key;
  }
  for (const char* key : {"Rename07", "Rename09"}) {
    EXPECT_FALSE(MainTool(key)->isEnabled()) << key;
    EXPECT_TRUE(window->IsNotYetBuilt("BtnBarMain", key)) << key;
  }
}

}  // namespace
}  // namespace nomra::ui::testing
