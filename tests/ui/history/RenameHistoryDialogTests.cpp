// FrmHistory over a real protocol and real files: rows and colours, sorting
// by a head, the undo, the deletion and the window's texts.
#include <QAction>
#include <QFrame>
#include <QHeaderView>
#include <QMainWindow>
#include <QPushButton>
#include <QTreeWidget>

#include <set>

#include "core/ExifDateReader.h"
#include "core/ListOptions.h"
#include "lang/MessageCatalog.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ProtocolFiles.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"
#include "ui/common/QtFrontEnd.h"
#include "ui/history/FrmHistoryWindow.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::ReadWholeFile;
using nomra::testing::TempFolder;

constexpr const char* kTime = nomra::testing::kProtocolTime;
const QColor kRed(255, 0, 0);
const QColor kBlack(0, 0, 0);

class RenameHistoryDialog : public ::testing::Test {
 protected:
  RenameHistoryDialog() {
    options.dataFolder = data.Path();
    frontEnd.SetAnswerer([this](const core::Message& message, const QString&, const QString& text) {
      asked.push_back(message.textKey);
      shownTexts << text;
      if (answers.empty()) return core::Answer::No;
      const core::Answer answer = answers.front();
      answers.pop_front();
      return answer;
    });
  }

  std::string Record(const std::string& oldName, const std::string& newName) const {
    return nomra::testing::ProtocolLine(files.Path(), oldName, newName);
  }
  void WriteProtocol(const std::vector<std::string>& lines) const { nomra::testing::WriteProtocolFile(data, lines); }
  std::string Protocol() const { return nomra::testing::ReadProtocolFile(data); }
  void CreateFiles(const std::vector<std::string>& names) const { nomra::testing::CreateNamedFiles(files, names); }
  std::set<std::string> NamesOnDisk() const { return nomra::testing::NamesIn(files.Path()); }

  std::unique_ptr<FrmHistoryWindow> Open(QWidget* mainWindow = nullptr) {
    return std::make_unique<FrmHistoryWindow>(fileSystem, options.dataFolder, frontEnd, catalog, "Nomra", mainWindow);
  }
  static QTreeWidget& Files(FrmHistoryWindow& dialog) { return *dialog.findChild<QTreeWidget*>("lstFiles"); }
  static QPushButton& Button(FrmHistoryWindow& dialog, const char* name) {
    return *dialog.findChild<QPushButton*>(name);
  }
  static QStringList Column(FrmHistoryWindow& dialog, int column) {
    QStringList texts;
    QTreeWidget& files = Files(dialog);
    for (int i = 0; i < files.topLevelItemCount(); ++i) texts << files.topLevelItem(i)->text(column);
    return texts;
  }

  TempFolder data;
  TempFolder files;
  platform::PosixFileSystem fileSystem;
  core::NoExifDates exifDates;
  lang::MessageCatalog catalog{nomra::testing::RealFiles(), EnglishFile()};
  QtFrontEnd frontEnd{catalog, "Nomra"};
  core::ListOptions options;
  std::deque<core::Answer> answers;
  std::vector<std::string> asked;
  QStringList shownTexts;
};

TEST_F(RenameHistoryDialog, EveryControlCarriesItsName) {
  const auto dialog = Open();
  EXPECT_EQ(dialog->objectName(), "frmHistory");
  EXPECT_NE(dialog->findChild<QTreeWidget*>("lstFiles"), nullptr);
  EXPECT_NE(dialog->findChild<QFrame*>("FrameButtom"), nullptr);
  for (const char* name : {"cmdUndoRenaming", "cmdDeleteHistory", "cmdClose"}) {
    const auto* button = dialog->findChild<QPushButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    EXPECT_EQ(button->parentWidget()->objectName(), "FrameButtom") << name;
  }
}

TEST_F(RenameHistoryDialog, RowsShowDateFolderOldAndNewNameWithTheStoredTimeAsTag) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});

  const auto dialog = Open();

  QTreeWidget& list = Files(*dialog);
  ASSERT_EQ(list.topLevelItemCount(), 1);
  EXPECT_EQ(list.columnCount(), 4);
  EXPECT_EQ(Column(*dialog, 0), QStringList{"2004-03-15, 14:23:05"});
  EXPECT_EQ(Column(*dialog, 1), QStringList{QString::fromStdString(files.Path())});
  EXPECT_EQ(Column(*dialog, 2), QStringList{"a"});
  EXPECT_EQ(Column(*dialog, 3), QStringList{"b"});
  EXPECT_EQ(list.topLevelItem(0)->data(0, Qt::UserRole).toString(), kTime);
  EXPECT_FALSE(list.topLevelItem(0)->isSelected());
}

TEST_F(RenameHistoryDialog, RowIsBlackWhileItsNewNameExistsAndBrightRedWhenNot) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b"), Record("c", "gone")});

  const auto dialog = Open();

  QTreeWidget& list = Files(*dialog);
  for (int column = 0; column < 4; ++column) {
    EXPECT_EQ(list.topLevelItem(0)->foreground(column).color(), kBlack) << column;
    EXPECT_EQ(list.topLevelItem(1)->foreground(column).color(), kRed) << column;
  }
}

TEST_F(RenameHistoryDialog, EmptyProtocolShowsAnEmptyListWithBothActionButtonsDisabled) {
  WriteProtocol({});

  const auto dialog = Open();

  EXPECT_EQ(Files(*dialog).topLevelItemCount(), 0);
  EXPECT_FALSE(Button(*dialog, "cmdUndoRenaming").isEnabled());
  EXPECT_FALSE(Button(*dialog, "cmdDeleteHistory").isEnabled());
  EXPECT_TRUE(Button(*dialog, "cmdClose").isEnabled());
}

TEST_F(RenameHistoryDialog, UndoIsEnabledExactlyWhileARowIsSelected) {
  WriteProtocol({Record("a", "gone")});
  const auto dialog = Open();
  EXPECT_FALSE(Button(*dialog, "cmdUndoRenaming").isEnabled());
  EXPECT_TRUE(Button(*dialog, "cmdDeleteHistory").isEnabled());

  Files(*dialog).topLevelItem(0)->setSelected(true);
  EXPECT_TRUE(Button(*dialog, "cmdUndoRenaming").isEnabled());

  Files(*dialog).clearSelection();
  EXPECT_FALSE(Button(*dialog, "cmdUndoRenaming").isEnabled());
}

TEST_F(RenameHistoryDialog, DateHeadCarriesTheAscendingArrowFromTheStart) {
  const auto dialog = Open();
  const QHeaderView& head = *Files(*dialog).header();
  EXPECT_TRUE(head.isSortIndicatorShown());
  EXPECT_EQ(head.sortIndicatorSection(), 0);
  EXPECT_EQ(head.sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(RenameHistoryDialog, ClickOnAHeadSortsByItAndASecondClickTurnsTheOrder) {
  WriteProtocol({Record("b", "x"), Record("c", "y"), Record("a", "z")});
  const auto dialog = Open();
  QHeaderView& head = *Files(*dialog).header();

  emit head.sectionClicked(2);
  EXPECT_EQ(Column(*dialog, 2), (QStringList{"a", "b", "c"}));
  EXPECT_EQ(head.sortIndicatorSection(), 2);
  EXPECT_EQ(head.sortIndicatorOrder(), Qt::AscendingOrder);

  emit head.sectionClicked(2);
  EXPECT_EQ(Column(*dialog, 2), (QStringList{"c", "b", "a"}));
  EXPECT_EQ(head.sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(RenameHistoryDialog, UndoAfterYesRenamesBackAndTakesTheRowOut) {
  CreateFiles({"b", "d"});
  WriteProtocol({Record("a", "b"), Record("c", "d")});
  const auto dialog = Open();
  Files(*dialog).topLevelItem(0)->setSelected(true);
  answers.push_back(core::Answer::Yes);

  Button(*dialog, "cmdUndoRenaming").click();

  EXPECT_EQ(asked, std::vector<std::string>{"MsgText18"});
  EXPECT_EQ(NamesOnDisk(), (std::set<std::string>{"a", "d"}));
  EXPECT_EQ(Column(*dialog, 2), QStringList{"c"});
  EXPECT_EQ(Protocol(), Record("c", "d") + "\r\n");
  EXPECT_FALSE(Button(*dialog, "cmdUndoRenaming").isEnabled());
}

TEST_F(RenameHistoryDialog, UndoQuestionFillsTheParagraphBreak) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  const auto dialog = Open();
  Files(*dialog).topLevelItem(0)->setSelected(true);

  Button(*dialog, "cmdUndoRenaming").click();

  ASSERT_EQ(shownTexts.size(), 1);
  const std::string expected = catalog.GetText("Messages", "MsgText18", {"\n\n"});
  ASSERT_FALSE(expected.empty());
  EXPECT_EQ(shownTexts[0], QString::fromStdString(expected));
  EXPECT_EQ(NamesOnDisk(), std::set<std::string>{"b"});
}

TEST_F(RenameHistoryDialog, FailedUndoShowsItsMessageWithBothPathsAndKeepsTheRowSelected) {
  CreateFiles({"a", "b"});
  WriteProtocol({Record("a", "b")});
  const auto dialog = Open();
  Files(*dialog).topLevelItem(0)->setSelected(true);
  answers.push_back(core::Answer::Yes);

  Button(*dialog, "cmdUndoRenaming").click();

  ASSERT_EQ(asked, (std::vector<std::string>{"MsgText18", "MsgText05"}));
  const QString from = QString::fromStdString("\"" + files.Path() + "b\"");
  const QString to = QString::fromStdString("\"" + files.Path() + "a\"");
  EXPECT_TRUE(shownTexts[1].contains(from)) << shownTexts[1].toStdString();
  EXPECT_TRUE(shownTexts[1].contains(to)) << shownTexts[1].toStdString();
  EXPECT_EQ(Files(*dialog).topLevelItemCount(), 1);
  EXPECT_TRUE(Files(*dialog).topLevelItem(0)->isSelected());
  EXPECT_EQ(ReadWholeFile(files.Path() + "a"), "a");
}

TEST_F(RenameHistoryDialog, SortedThenUndoneWritesTheRestInTheOrderShown) {
  CreateFiles({"x", "y", "z"});
  WriteProtocol({Record("c", "z"), Record("b", "y"), Record("a", "x")});
  const auto dialog = Open();
  emit Files(*dialog).header()->sectionClicked(2);
  Files(*dialog).topLevelItem(1)->setSelected(true);
  answers.push_back(core::Answer::Yes);

  Button(*dialog, "cmdUndoRenaming").click();

  EXPECT_EQ(Protocol(), Record("a", "x") + "\r\n" + Record("c", "z") + "\r\n");
}

TEST_F(RenameHistoryDialog, DeleteHistoryAfterYesEmptiesListAndProtocolAndDisablesItself) {
  WriteProtocol({Record("a", "b")});
  const auto dialog = Open();
  answers.push_back(core::Answer::Yes);

  Button(*dialog, "cmdDeleteHistory").click();

  EXPECT_EQ(asked, std::vector<std::string>{"MsgText19"});
  EXPECT_EQ(Files(*dialog).topLevelItemCount(), 0);
  EXPECT_EQ(Protocol(), "");
  EXPECT_FALSE(Button(*dialog, "cmdDeleteHistory").isEnabled());
}

TEST_F(RenameHistoryDialog, DeleteHistoryAnsweredNoKeepsEverything) {
  WriteProtocol({Record("a", "b")});
  const auto dialog = Open();

  Button(*dialog, "cmdDeleteHistory").click();

  EXPECT_EQ(Files(*dialog).topLevelItemCount(), 1);
  EXPECT_EQ(Protocol(), Record("a", "b") + "\r\n");
}

TEST_F(RenameHistoryDialog, UnreadableProtocolIsShownAsAFaultAndAnEmptyList) {
  data.MakeFolder("renamed.nrp");
  const auto dialog = Open();
  ASSERT_EQ(shownTexts.size(), 1);
  EXPECT_TRUE(shownTexts[0].contains("could not be read")) << shownTexts[0].toStdString();
  EXPECT_EQ(Files(*dialog).topLevelItemCount(), 0);
}

TEST_F(RenameHistoryDialog, TitleJoinsItsCaptionTheMenuEntryAndTheProgram) {
  QMainWindow mainWindow;
  auto* entry = new QAction("Rename &history", &mainWindow);
  entry->setObjectName("mnuHistory");

  const auto dialog = Open(&mainWindow);

  const QString caption = QString::fromStdString(catalog.GetText("frmHistory", "Caption"));
  ASSERT_FALSE(caption.isEmpty());
  EXPECT_EQ(dialog->windowTitle(), caption + " - Rename history -> Nomra");
}

TEST_F(RenameHistoryDialog, HeadsAndButtonsSpeakTheLanguageOfTheFile) {
  const lang::MessageCatalog german(nomra::testing::RealFiles(), GermanFile());
  FrmHistoryWindow dialog(fileSystem, options.dataFolder, frontEnd, german, "Nomra");

  QTreeWidgetItem& heads = *Files(dialog).headerItem();
  for (int column = 0; column < 4; ++column) {
    const std::string key = "lstColHead0" + std::to_string(column + 1);
    const std::string text = german.GetText("frmHistory", key);
    ASSERT_FALSE(text.empty()) << key;
    EXPECT_EQ(heads.text(column), QString::fromStdString(text)) << key;
  }
  EXPECT_EQ(Button(dialog, "cmdUndoRenaming").text(),
            QString::fromStdString(german.GetText("Buttons", "cmdUndoRenaming")));
  EXPECT_NE(Button(dialog, "cmdUndoRenaming").text(), "&Undo renaming");
}

TEST_F(RenameHistoryDialog, ShownModallyItEndsWithClose) {
  WriteProtocol({Record("a", "b")});
  ModalWatcher watcher;
  watcher.SetHandler([](QWidget& modal) { modal.findChild<QPushButton*>("cmdClose")->click(); });

  ShowRenameHistory(nullptr, fileSystem, options.dataFolder, frontEnd, catalog, "Nomra");

  EXPECT_EQ(watcher.Seen(), QStringList{"frmHistory"});
}

}  // namespace
}  // namespace nomra::ui::testing
