// The open commands of the main window: the system's kind of dialog, Nomra's
// own dialog, the playlist dialog and the command line.
#include <QAction>
#include <QCheckBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "support/RealFiles.h"
#include "ui/open/FrmOpenWindow.h"
#include "ui/open/SystemOpenDialog.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

class OpenCommandTest : public WindowTest {
 protected:
  // Answers the system's kind of dialog with this handler.
  void AnswerSystemDialog(const std::function<void(SystemOpenDialog&)>& answer) {
    expectedModals << "OpenFilesDialog";
    modals.SetHandler([answer](QWidget& modal) {
      auto* dialog = qobject_cast<SystemOpenDialog*>(&modal);
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }
  void AnswerFrmOpen(const std::function<void(FrmOpenWindow&)>& answer) {
    expectedModals << "FrmOpen";
    modals.SetHandler([answer](QWidget& modal) {
      auto* dialog = qobject_cast<FrmOpenWindow*>(&modal);
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }
  static void SelectRow(FrmOpenWindow& dialog, const QString& text) {
    const auto found = dialog.findChild<QListWidget*>("lstFiles")->findItems(text, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    found.first()->setSelected(true);
  }
  std::string Stored(const char* section, const char* key) const {
    return Ini(SettingsPath()).ReadString(section, key);
  }
  std::string WritePlaylist() const {
    files.WriteFile("music/a.mp3", "a");
    files.WriteFile("music/sub/b.mp3", "b");
    files.WriteFile("music/c.mp3", "c");
    return files.WriteFile("music/list.m3u", "#EXTM3U\r\n#EXTINF:1,a\r\na.mp3\r\nsub/b.mp3\r\n\r\n");
  }
};

TEST_F(OpenCommandTest, SystemDialogWithAllFilesAndSubFoldersLoadsTheFolderTree) {
  Open();
  files.WriteFile("tree/a.txt");
  files.WriteFile("tree/sub/b.txt");
  files.WriteFile("other.txt");
  const QString tree = QString::fromStdString(files.Path() + "tree");
  AnswerSystemDialog([tree](SystemOpenDialog& dialog) {
    dialog.setDirectory(tree);
    dialog.AllFilesBox()->setChecked(true);
    dialog.SubFoldersBox()->setChecked(true);
    dialog.accept();
  });

  window->RunMainToolKey("OpenFile");

  EXPECT_EQ(ShownRows(), 2);
  EXPECT_NE(PositionOf("a.txt"), 0);
  EXPECT_NE(PositionOf("b.txt"), 0);
  EXPECT_EQ(window->Settings().chkAll, 1);
  EXPECT_EQ(window->Settings().chkSub, 1);
  EXPECT_EQ(Stored("Settings", "lastpath"), files.Path() + "tree/");
  EXPECT_EQ(Stored("Settings", "lastfilter"), "1");
  EXPECT_FALSE(window->ToolAction("btnBarLeft", "CancelAction")->isEnabled());
  EXPECT_EQ(Label("Status"), CountsText(2, 2, 0));
}

TEST_F(OpenCommandTest, SystemDialogAddsTheChosenFile) {
  Open();
  const std::string chosen = files.WriteFile("a.txt");
  files.WriteFile("b.txt");
  AnswerSystemDialog([chosen](SystemOpenDialog& dialog) {
    dialog.selectFile(QString::fromStdString(chosen));
    dialog.accept();
  });

  window->RunMainToolKey("OpenFile");

  EXPECT_EQ(ShownRows(), 1);
  EXPECT_NE(PositionOf("a.txt"), 0);
  EXPECT_EQ(Stored("Settings", "lastpath"), files.Path());
}

TEST_F(OpenCommandTest, SystemDialogOpensWhereTheLastLoadWasAndWithTheStoredBoxes) {
  files.WriteFile("tree/a.txt");
  WriteSettings("[Settings]\r\nlastpath=" + files.Path() + "tree/\r\n[FrmOpen]\r\nchkAll=1\r\nchkSub=0\r\n");
  Open();
  QString shown;
  bool allFiles = false;
  bool subFoldersEnabled = false;
  AnswerSystemDialog([&](SystemOpenDialog& dialog) {
    shown = dialog.directory().absolutePath();
    allFiles = dialog.AllFilesBox()->isChecked();
    subFoldersEnabled = dialog.SubFoldersBox()->isEnabled();
    dialog.reject();
  });

  window->RunMainToolKey("OpenFile");

  EXPECT_EQ(shown.toStdString() + "/", files.Path() + "tree/");
  EXPECT_TRUE(allFiles);
  EXPECT_TRUE(subFoldersEnabled);
}

TEST_F(OpenCommandTest, CancelledSystemDialogAddsNothingButTheBoxesKeepTheirValues) {
  files.WriteFile("a.txt");
  Open();
  AnswerSystemDialog([](SystemOpenDialog& dialog) {
    dialog.AllFilesBox()->setChecked(true);
    dialog.reject();
  });

  window->RunMainToolKey("OpenFile");

  EXPECT_EQ(ShownRows(), 0);
  EXPECT_EQ(window->Settings().chkAll, 1);
  EXPECT_EQ(Stored("Settings", "lastpath"), "");
  // The close writes what the boxes say.
  window->close();
  EXPECT_EQ(Stored("FrmOpen", "chkAll"), "1");
}

TEST_F(OpenCommandTest, SecondVariantShowsNomrasDialogAndLoadsASelectedFolderWithItsTree) {
  Open();
  files.WriteFile("tree/a.txt");
  files.WriteFile("tree/sub/b.txt");
  files.WriteFile("loose.txt");
  const std::string shown = files.Path();
  QString title;
  AnswerFrmOpen([shown, &title](FrmOpenWindow& dialog) {
    title = dialog.windowTitle();
    dialog.setPath(shown);
    SelectRow(dialog, "tree");
    dialog.findChild<QPushButton*>("cmdOpen")->click();
  });

  window->RunDropDownEntry("OpenFile", "OpenFile2");

  EXPECT_EQ(window->ToolVariant("OpenFile"), "OpenFile2");
  // The dialog is named after the menu entry that opens it.
  EXPECT_EQ(title, Menu("mnuOpenFile")->text().remove('&'));
  EXPECT_FALSE(title.isEmpty());
  EXPECT_EQ(ShownRows(), 2);
  EXPECT_NE(PositionOf("a.txt"), 0);
  EXPECT_NE(PositionOf("b.txt"), 0);
  EXPECT_EQ(PositionOf("loose.txt"), 0);
  EXPECT_EQ(Stored("Settings", "lastpath"), files.Path());
  EXPECT_FALSE(window->ToolAction("btnBarLeft", "CancelAction")->isEnabled());
}

TEST_F(OpenCommandTest, NomrasDialogStartsWithTheStoredBoxesAndHandsItsOwnBack) {
  files.WriteFile("a.txt");
  WriteSettings("[Settings]\r\nlastpath=" + files.Path() +
                "\r\n[FrmOpen]\r\nDialogueStyle=2\r\nchkAll=1\r\nchkSub=1\r\n");
  Open();
  bool allFiles = false;
  bool subFolders = false;
  AnswerFrmOpen([&](FrmOpenWindow& dialog) {
    allFiles = dialog.AllFiles();
    subFolders = dialog.SubFolders();
    dialog.findChild<QCheckBox*>("chkAllFiles")->setChecked(false);
    SelectRow(dialog, "a.txt");
    dialog.findChild<QPushButton*>("cmdOpen")->click();
  });

  window->RunMainToolKey("OpenFile");

  EXPECT_TRUE(allFiles);
  EXPECT_TRUE(subFolders);
  EXPECT_EQ(ShownRows(), 1);
  EXPECT_EQ(window->Settings().chkAll, 0);
  EXPECT_EQ(window->Settings().chkSub, 1);
}

TEST_F(OpenCommandTest, SecondVariantEntryAndThePlaylistCommandAreEnabled) {
  Open();
  QAction* second = nullptr;
  for (QAction* entry : MainTool("OpenFile")->menu()->actions()) {
    if (entry->property("key").toString() == "OpenFile2") second = entry;
  }
  ASSERT_NE(second, nullptr);
  EXPECT_TRUE(second->isEnabled());
  EXPECT_TRUE(Menu("mnuOpenFromList")->isEnabled());
}

TEST_F(OpenCommandTest, PlaylistCommandOffersThePlaylistFiltersAndAddsTheEntries) {
  WriteSettings("[Settings]\r\nlastfilter=3\r\n");
  Open();
  const std::string playlist = WritePlaylist();
  QStringList offered;
  bool panel = true;
  AnswerSystemDialog([&](SystemOpenDialog& dialog) {
    offered = dialog.nameFilters();
    panel = dialog.Panel() != nullptr;
    dialog.selectFile(QString::fromStdString(playlist));
    dialog.accept();
  });

  Menu("mnuOpenFromList")->trigger();

  EXPECT_EQ(offered, QStringList({"m3u Playlist (*.m3u)", "pls Playlist (*.pls)"}));
  EXPECT_FALSE(panel);
  EXPECT_EQ(ShownRows(), 2);
  EXPECT_NE(PositionOf("a.mp3"), 0);
  EXPECT_NE(PositionOf("b.mp3"), 0);
  EXPECT_EQ(PositionOf("c.mp3"), 0);
  // The playlist dialog's rows are others than those of the files dialog,
  // whose stored row stays.
  EXPECT_EQ(Stored("Settings", "lastfilter"), "3");
  EXPECT_EQ(Stored("Settings", "lastpath"), files.Path() + "music/");
}

TEST_F(OpenCommandTest, CommandLineOpenFromFileAddsThePlaylistsEntries) {
  Open();
  const std::string playlist = WritePlaylist();
  const std::string loose = files.WriteFile("loose.txt");

  window->RunCommandLine({loose, "/openfromfile=\"" + playlist + "\"", ""});

  EXPECT_EQ(ShownRows(), 3);
  EXPECT_NE(PositionOf("loose.txt"), 0);
  EXPECT_NE(PositionOf("a.mp3"), 0);
  EXPECT_NE(PositionOf("b.mp3"), 0);
  EXPECT_EQ(Label("Status"), CountsText(3, 3, 0));
}

}  // namespace
}  // namespace nomra::ui::testing
