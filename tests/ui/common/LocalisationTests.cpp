// Texts from the language file on Qt widgets: the adapter that lets the
// localisation walk a dialog's widgets, and the main window's own texts.
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

#include "lang/MessageCatalog.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"
#include "ui/common/QtLocalisation.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::TempFolder;

// A small dialog with one control of each kind the rules tell apart.
struct SampleDialog {
  SampleDialog() {
    dialog.setObjectName("frmSample");
    go = new QPushButton("Go", &dialog);
    go->setObjectName("cmdGo");
    picture = new QPushButton(&dialog);
    picture->setObjectName("cmdPicture");
    QPixmap pixels(16, 16);
    pixels.fill(Qt::blue);
    picture->setIcon(QIcon(pixels));
    filled = new QComboBox(&dialog);
    filled->setObjectName("cmbFilled");
    filled->addItems({"design 1", "design 2", "design 3"});
    filled->setCurrentIndex(2);
    kept = new QComboBox(&dialog);
    kept->setObjectName("cmbKept");
    kept->addItems({"one", "two"});
    kept->setCurrentIndex(1);
    entry = new QAction("Design entry", &dialog);
    entry->setObjectName("mnuEntry");
    missing = new QLabel("Design caption", &dialog);
    missing->setObjectName("lblMissing");
  }

  QDialog dialog;
  QPushButton* go;
  QPushButton* picture;
  QComboBox* filled;
  QComboBox* kept;
  QAction* entry;
  QLabel* missing;
};

class AdapterTest : public ::testing::Test {
 protected:
  void Localise() {
    const std::string file = folder.WriteFile("Sample.lng",
                                              "[Buttons]\n"
                                              "cmdGo=&Los\n"
                                              "cmdPicture=&Bild zeigen\n"
                                              "[frmSample]\n"
                                              "cmbFilled-1=Erste\n"
                                              "cmbFilled-2=Zweite\n"
                                              "[Menus]\n"
                                              "mnuEntry=&Eintrag\n");
    LocaliseWidget(sample.dialog, QString(), lang::MessageCatalog(nomra::testing::RealFiles(), file),
                   lang::CaptionSources{});
  }

  TempFolder folder;
  SampleDialog sample;
};

TEST_F(AdapterTest, CommandButtonTakesItsCaptionFromSectionButtons) {
  Localise();
  EXPECT_EQ(sample.go->text(), "&Los");
}

TEST_F(AdapterTest, GraphicalButtonWithoutCaptionGetsItsTextAsToolTipWithoutAmpersand) {
  Localise();
  EXPECT_EQ(sample.picture->toolTip(), "Bild zeigen");
  EXPECT_EQ(sample.picture->text(), "");
}

TEST_F(AdapterTest, ComboBoxWithNumberedKeysIsRefilledWithTheFirstRowSelected) {
  Localise();
  ASSERT_EQ(sample.filled->count(), 2);
  EXPECT_EQ(sample.filled->itemText(0), "Erste");
  EXPECT_EQ(sample.filled->itemText(1), "Zweite");
  EXPECT_EQ(sample.filled->currentIndex(), 0);
}

TEST_F(AdapterTest, ComboBoxWithoutNumberedKeysKeepsItsRows) {
  Localise();
  ASSERT_EQ(sample.kept->count(), 2);
  EXPECT_EQ(sample.kept->itemText(0), "one");
  EXPECT_EQ(sample.kept->currentIndex(), 1);
}

TEST_F(AdapterTest, MenuEntryFallsBackToSectionMenus) {
  Localise();
  EXPECT_EQ(sample.entry->text(), "&Eintrag");
}

TEST_F(AdapterTest, MissingKeyKeepsTheDesignCaption) {
  Localise();
  EXPECT_EQ(sample.missing->text(), "Design caption");
}

TEST(ControlNameTest, MemberOfAControlArrayIsNamedWithoutItsIndex) {
  QLabel label;
  label.setObjectName("lbl2(3)");
  EXPECT_EQ(ControlName(label), "lbl2");
  label.setObjectName("lblPlain");
  EXPECT_EQ(ControlName(label), "lblPlain");
}

class WindowTextsTest : public WindowTest {};

TEST_F(WindowTextsTest, MenusCarryTheGermanTexts) {
  Open(GermanFile());
  const QString german = LanguageText("frmMain", "mnuFile");
  ASSERT_FALSE(german.isEmpty());
  EXPECT_EQ(Menu("mnuFile")->text(), german);
  EXPECT_NE(german, "&File");
  EXPECT_EQ(Menu("mnuEdit")->text(), LanguageText("frmMain", "mnuEdit"));
  EXPECT_EQ(Menu("mnuUndo")->text(), LanguageText("frmMain", "mnuUndo"));
}

TEST_F(WindowTextsTest, MainBarToolTipComesFromTheLanguageFile) {
  Open(EnglishFile());
  const QString tip = LanguageText("frmMain", "BtnBarMainUndo").remove('&');
  ASSERT_FALSE(tip.isEmpty());
  EXPECT_EQ(MainTool("Undo")->toolTip(), tip);
}

TEST_F(WindowTextsTest, WithoutALanguageFileTheDesignTextsStay) {
  Open("");
  EXPECT_EQ(Menu("mnuFile")->text(), "&File");
  EXPECT_EQ(Shown().headerData(3, Qt::Horizontal).toString(), "New name");
}

TEST_F(WindowTextsTest, ColumnHeadsComeFromTheLanguageFile) {
  const std::string file = app.WriteFile("Heads.lng",
                                         "[Main]\nlngname=Heads\n"
                                         "[frmMain]\n"
                                         "lstColHead01=Folder here\n"
                                         "lstColHead03=Name to be\n"
                                         "mnuViewSortingAsc=(up)\n");
  Open(file);

  EXPECT_EQ(Shown().headerData(1, Qt::Horizontal).toString(), "Folder here");
  EXPECT_EQ(Shown().headerData(3, Qt::Horizontal).toString(), "Name to be");
  // A head without a text keeps its design text.
  EXPECT_EQ(Shown().headerData(2, Qt::Horizontal).toString(), "Old name");
  // The sort entries and the detail captions are named after the heads.
  EXPECT_EQ(Menu("mnuViewSortingSorted(5)")->text(), "Name to be (up)");
  EXPECT_EQ(Label("lblDetail3"), "Name to be:");
}

TEST_F(WindowTextsTest, ScopeListShowsTheRemovalEntriesWithoutAmpersands) {
  Open(EnglishFile());
  auto* scope = window->findChild<QComboBox*>("lstApplyTo");
  ASSERT_EQ(scope->count(), 3);
  EXPECT_EQ(scope->itemText(0), LanguageText("frmMain", "mnuDelList1").remove('&'));
  EXPECT_EQ(scope->itemText(2), LanguageText("frmMain", "mnuDelList3").remove('&'));
  EXPECT_FALSE(scope->itemText(0).contains('&'));
}

}  // namespace
}  // namespace nomra::ui::testing
