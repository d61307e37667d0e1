// What the window takes from the settings as it opens, and the expert mode.
#include <QAction>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QTableView>

#include "shell/WindowPlacement.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class StartTest : public WindowTest {};

TEST_F(StartTest, DamagedSettingsAreShownAndTheirDefaultsStand) {
  WriteSettings("[Main]\nCol2=abc\nCol3=2000\nws=x\n");
  expectedModals << "QMessageBox"
                 << "QMessageBox";

  Open();

  ASSERT_EQ(modals.MessageTexts().size(), 2);
  EXPECT_TRUE(modals.MessageTexts()[0].contains("Col2")) << modals.MessageTexts()[0].toStdString();
  EXPECT_TRUE(modals.MessageTexts()[0].contains("abc"));
  EXPECT_TRUE(modals.MessageTexts()[1].contains("\"ws\"")) << modals.MessageTexts()[1].toStdString();
  const double dpi = window->logicalDpiX();
  // Head 2 (the path) takes its default width, head 3 the stored one.
  EXPECT_EQ(Details().columnWidth(1), shell::TwipsToPixels(shell::DefaultColumnWidth(2), dpi));
  EXPECT_EQ(Details().columnWidth(2), shell::TwipsToPixels(2000, dpi));
  EXPECT_FALSE(window->isMaximized());
  EXPECT_TRUE(window->isVisible());
}

TEST_F(StartTest, WindowStoredFarOffTheScreenComesBackOnIt) {
  WriteSettings("[Main]\nws=0\nx=-200000\ny=-200000\nw=12000\nh=8000\n");
  Open();

  EXPECT_GE(window->x(), 0);
  EXPECT_GE(window->y(), 0);
  EXPECT_EQ(window->width(), shell::TwipsToPixels(12000, QGuiApplication::primaryScreen()->logicalDotsPerInchX()));
}

TEST_F(StartTest, StoredViewAndSortAreShown) {
  WriteSettings("[Settings]\nPreviewStyle=DetailsIcons\nPreviewSortKey=3\nPreviewSortOrder=1\n");
  Open();
  AddFiles({"a.txt", "b.txt"});

  EXPECT_EQ(window->CurrentView(), ListView::DetailsIcons);
  EXPECT_TRUE(Menu("mnuViewDetailsIcons")->isChecked());
  EXPECT_EQ(Details().horizontalHeader()->sortIndicatorSection(), 3);
  EXPECT_EQ(Details().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_EQ(Shown(1, 2).toString(), "b.txt");
}

TEST_F(StartTest, StartWindowShowsAfterTheWindowWithTheVersion) {
  Open();
  QString version;
  bool mainShown = false;
  expectedModals << "frmStart";
  modals.SetHandler([&](QWidget& modal) {
    version = modal.findChild<QLabel*>("lblVers")->text();
    mainShown = window->isVisible();
    Dismiss(modal);
  });

  window->ShowAtStart();

  EXPECT_EQ(version, "Version 9.8.7");
  EXPECT_TRUE(mainShown);
  EXPECT_TRUE(Menu("mnuShowSplash")->isChecked());
}

TEST_F(StartTest, StartWindowSwitchedOffStaysAway) {
  WriteSettings("[Settings]\nsplash=0\n");
  Open();

  window->ShowAtStart();

  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(Menu("mnuShowSplash")->isChecked());
  // No dialog may have opened; the fixture checks that at the end.
}

TEST_F(StartTest, AboutShowsTheVersionUnderTheMenuCaption) {
  Open();
  QString version;
  QString title;
  expectedModals << "frmInfo";
  modals.SetHandler([&](QWidget& modal) {
    version = modal.findChild<QLabel*>("lblVers")->text();
    title = modal.windowTitle();
    Dismiss(modal);
  });

  Menu("mnuInfo")->trigger();

  EXPECT_EQ(version, "Version 9.8.7");
  EXPECT_EQ(title, LanguageText("frmMain", "mnuInfo").remove('&'));
}

TEST_F(StartTest, ExpertModeAnsweredYesIsTurnedOn) {
  Open();
  ASSERT_FALSE(window->Options().expertMode);
  answers = {core::Answer::Yes};

  Menu("mnuExperts")->trigger();

  EXPECT_TRUE(window->Options().expertMode);
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].message.textKey, "MsgText33");
  EXPECT_EQ(asked[0].message.captionKey, "msgCapAttention");
  EXPECT_EQ(asked[0].caption, LanguageText("Messages", "msgCapAttention"));
  EXPECT_EQ(asked[0].text, LanguageText("Messages", "MsgText33") + '\n' + LanguageText("Messages", "MsgText34"));
}

TEST_F(StartTest, ExpertModeAnsweredNoStaysOff) {
  Open();
  answers = {core::Answer::No};

  Menu("mnuExperts")->trigger();

  EXPECT_FALSE(window->Options().expertMode);
  EXPECT_EQ(asked.size(), 1u);
}

TEST_F(StartTest, ExpertModeOnAsksNoMore) {
  WriteSettings("[Settings]\nExpertMode=1\n");
  Open();
  ASSERT_TRUE(window->Options().expertMode);

  Menu("mnuExperts")->trigger();

  EXPECT_TRUE(asked.empty());
}

}  // namespace
}  // namespace nomra::ui::testing
