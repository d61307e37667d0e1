// The language page of the options, on its own and from the main window.
#include <QComboBox>
#include <QPushButton>

#include "lang/MessageCatalog.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"
#include "ui/common/LanguageDialog.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

using nomra::testing::TempFolder;

class LanguageDialogTest : public ::testing::Test {
 protected:
  LanguageDialogTest() {
    alpha = folder.WriteFile("Alpha.lng", "[Main]\nlngname=Alpha\n[frmMain]\nmnuFile=&Alpha file\n");
    beta = folder.WriteFile("Beta.lng", "[Main]\nlngname=Beta\n[frmMain]\nmnuFile=&Beta file\n");
  }
  std::string SettingsFile() const { return data.Path() + "settings.nrp"; }

  TempFolder folder;
  TempFolder data;
  std::string alpha;
  std::string beta;
};

TEST_F(LanguageDialogTest, ListsTheLanguageNamesOfTheFolder) {
  LanguageDialog dialog(folder.Path(), Ini(SettingsFile()), lang::MessageCatalog(), QString());

  QStringList names;
  for (int i = 0; i < dialog.Choices().count(); ++i) names << dialog.Choices().itemText(i);
  names.sort();
  EXPECT_EQ(names, QStringList({"Alpha", "Beta"}));
}

TEST_F(LanguageDialogTest, LanguageInUseIsTheOneShownFirst) {
  LanguageDialog dialog(folder.Path(), Ini(SettingsFile()), lang::MessageCatalog(nomra::testing::RealFiles(), beta),
                        QString());
  EXPECT_EQ(dialog.Choices().currentText(), "Beta");
}

TEST_F(LanguageDialogTest, OkStoresTheChosenLanguage) {
  LanguageDialog dialog(folder.Path(), Ini(SettingsFile()), lang::MessageCatalog(nomra::testing::RealFiles(), alpha),
                        QString());
  dialog.Choices().setCurrentIndex(dialog.Choices().findText("Beta"));

  dialog.findChild<QPushButton*>("cmdOK")->click();

  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(Ini(SettingsFile()).ReadString("Settings", "lng"), "Beta");
  EXPECT_EQ(dialog.ChosenFile(), beta);
}

TEST_F(LanguageDialogTest, CancelStoresNothing) {
  LanguageDialog dialog(folder.Path(), Ini(SettingsFile()), lang::MessageCatalog(nomra::testing::RealFiles(), alpha),
                        QString());
  dialog.Choices().setCurrentIndex(dialog.Choices().findText("Beta"));

  dialog.findChild<QPushButton*>("cmdCancel")->click();

  EXPECT_EQ(Ini(SettingsFile()).ReadString("Settings", "lng"), "");
  EXPECT_EQ(dialog.ChosenFile(), "");
}

class OptionsTest : public WindowTest {};

TEST_F(OptionsTest, LanguageChosenInOptionsPutsItsTextsOnTheWindow) {
  const std::string alpha = app.WriteFile("Alpha.lng", "[Main]\nlngname=Alpha\n[frmMain]\nmnuFile=&Alpha file\n");
  app.WriteFile("Beta.lng", "[Main]\nlngname=Beta\n[frmMain]\nmnuFile=&Beta file\n");
  Open(alpha);
  ASSERT_EQ(Menu("mnuFile")->text(), "&Alpha file");
  expectedModals << "frmOptions";
  modals.SetHandler([](QWidget& modal) {
    auto* choices = modal.findChild<QComboBox*>("cmbLngSel");
    choices->setCurrentIndex(choices->findText("Beta"));
    modal.findChild<QPushButton*>("cmdOK")->click();
  });

  window->RunMainToolKey("Options");

  EXPECT_EQ(Menu("mnuFile")->text(), "&Beta file");
  EXPECT_EQ(Ini(SettingsPath()).ReadString("Settings", "lng"), "Beta");
}

TEST_F(OptionsTest, NewLanguageKeepsOneVariantInTheDropDownToolTips) {
  const std::string alpha =
      app.WriteFile("Alpha.lng", "[Main]\nlngname=Alpha\n[frmMain]\nBtnBarMainDelList=Alpha tip\n");
  app.WriteFile("Beta.lng", "[Main]\nlngname=Beta\n");
  Open(alpha);
  window->RunDropDownEntry("DelList", "DelList5");
  const QString tip = MainTool("DelList")->toolTip();
  ASSERT_TRUE(tip.startsWith("Alpha tip [")) << tip.toStdString();
  expectedModals << "frmOptions";
  modals.SetHandler([](QWidget& modal) {
    auto* choices = modal.findChild<QComboBox*>("cmbLngSel");
    choices->setCurrentIndex(choices->findText("Beta"));
    modal.findChild<QPushButton*>("cmdOK")->click();
  });

  window->RunMainToolKey("Options");

  // The language without a text of its own leaves the tip as it was.
  EXPECT_EQ(MainTool("DelList")->toolTip(), tip);
}

}  // namespace
}  // namespace nomra::ui::testing
