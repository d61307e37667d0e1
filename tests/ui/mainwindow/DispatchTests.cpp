// The main window's dispatch: every key of the tool bars and every menu
// entry either runs a command or waits, disabled, for its dialog; names the
// tables don't know do nothing; while a load runs only Cancel can be pressed.
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTimer>
#include <QToolBar>

#include <algorithm>
#include <sstream>

#include "core/FileEntry.h"
#include "support/TempFolder.h"
#include "ui/common/QtLocalisation.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;

struct ToolKey {
  const char* bar;
  const char* key;
};

// Every button of the three bars and every entry of the main bar's drop-downs.
const std::vector<ToolKey>& ToolTable() {
  static const std::vector<ToolKey> keys = {
      {"BtnBarMain", "OpenFile"},
      {"BtnBarMain", "OpenFile1"},
      {"BtnBarMain", "OpenFile2"},
      {"BtnBarMain", "DelList"},
      {"BtnBarMain", "DelList1"},
      {"BtnBarMain", "DelList2"},
      {"BtnBarMain", "DelList3"},
      {"BtnBarMain", "DelList4"},
      {"BtnBarMain", "DelList5"},
      {"BtnBarMain", "TakeChanges"},
      {"BtnBarMain", "TakeChanges1"},
      {"BtnBarMain", "TakeChanges2"},
      {"BtnBarMain", "RejectChanges"},
      {"BtnBarMain", "Undo"},
      {"BtnBarMain", "Rename01"},
      {"BtnBarMain", "Rename02"},
      {"BtnBarMain", "Rename03"},
      {"BtnBarMain", "Rename04"},
      {"BtnBarMain", "Rename05"},
      {"BtnBarMain", "Rename06"},
      {"BtnBarMain", "Rename07"},
      {"BtnBarMain", "Rename08"},
      {"BtnBarMain", "Rename09"},
      {"BtnBarMain", "Rename10"},
      {"BtnBarMain", "Rename99"},
      {"BtnBarMain", "ImgPreview"},
      {"BtnBarMain", "Options"},
      {"btnBarLeft", "EditMan"},
      {"btnBarLeft", "DelList"},
      {"btnBarLeft", "Properties"},
      {"btnBarLeft", "CancelAction"},
      {"btnbarScript", "StartRecordScript"},
      {"btnbarScript", "StopRecordScript"},
      {"btnbarScript", "StartRunScript"},
      {"btnbarScript", "RunSelectedScript"},
  };
  return keys;
}

// Every menu entry a command stands behind. The picture sizes are the five
// of the English language file.
const QStringList& MenuTable() {
  static const QStringList names = [] {
    QStringList list = {
        // The file menu and the entries behind the main bar's keys.
        "mnuOpenFile", "mnuOpenFromList", "mnuTakeChanges1", "mnuTakeChanges2", "mnuRejectChanges", "mnuHistory",
        "mnuEnd", "mnuUndo", "mnuRenameStructure", "mnuImgPreview", "mnuOptions",
        // Edit.
        "mnuDelList1", "mnuDelList2", "mnuDelList3", "mnuDelList4", "mnuDelList5", "mnuEditMan", "mnuCopyFiles",
        "mnuMoveFiles", "mnuDeleteFiles1", "mnuDeleteFiles2", "mnuCopyName1", "mnuCopyName2", "mnuCopyLink",
        // Rename, special, tools and help.
        "mnuNewNamesFromFile", "mnuFileAttributes", "mnuFileList", "mnuMP3List", "mnuEXIFList", "mnuFindDuplications",
        "mnuSyncFolders", "mnuID3Data", "mnuID3Data1", "mnuID3Data2", "mnuUpdate", "mnuInfo", "mnuHelpContent",
        "mnuExperts",
        // The script entries the script bar runs.
        "mnuStartRecordScript", "mnuStopRecordScript", "mnuStartRunScript", "mnuRunSelectedScript",
        // View.
        "mnuGridLines", "mnuShowSplash", "mnuShowBtnBarMain", "mnuShowBtnBarScript", "mnuShowAssistant",
        "mnuViewDetails", "mnuViewDetailsIcons", "mnuViewIcons", "mnuViewSortingUnsorted"};
    for (int i = 1; i <= 10; ++i) list << QString("mnuRename%1").arg(i, 2, 10, QChar('0'));
    for (int i = 1; i <= 5; ++i) list << QString("mnuViewIconSize(%1)").arg(i);
    for (int i = 1; i <= 7; ++i) list << QString("mnuViewPre(%1)").arg(i);
    for (int i = 1; i <= 14; ++i) list << QString("mnuViewSortingSorted(%1)").arg(i);
    return list;
  }();
  return names;
}

class DispatchTest : public WindowTest {
 protected:
  // A button of the bar, or an entry of one of its buttons' drop-downs.
  QAction* Tool(const QString& bar, const QString& key) const {
    if (QAction* button = window->ToolAction(bar, key)) return button;
    for (QAction* button : Bar(bar).actions()) {
      if (button->menu() == nullptr) continue;
      for (QAction* entry : button->menu()->actions()) {
        if (entry->property(kKeyProperty).toString() == key) return entry;
      }
    }
    return nullptr;
  }

  QToolBar& Bar(const QString& bar) const { return *window->findChild<QToolBar*>(bar); }

  // A list with a pending name, where any command that ran would leave a trace.
  void OpenWithPendingName() {
    WriteSettings("[Settings]\nPreviewImageSize=2\n");
    Open();
    paths = AddFiles({"a.txt", "b.txt", "c.txt"});
    SetNewName(PositionOf("b.txt"), "z.txt");
    window->RefreshPreview();
  }

  // What a command could change: the rows, the names on disk, the variants,
  // the sorting, the view and the settings file.
  std::string State() const {
    std::ostringstream out;
    out << "rows " << ShownRows() << ':';
    for (int position = 1; position <= ShownRows(); ++position) {
      out << ' ' << Shown(position, core::kColOldName).toString().toStdString() << '>'
          << Shown(position, core::kColNewName).toString().toStdString();
    }
    out << "\non disk:";
    for (const std::string& path : paths) out << ' ' << Exists(path);
    out << "\nvariants: " << window->ToolVariant("OpenFile").toStdString() << ' '
        << window->ToolVariant("DelList").toStdString() << ' ' << window->ToolVariant("TakeChanges").toStdString();
    out << "\nsort " << window->State().list.sortKey << ' ' << window->State().list.sortOrder;
    out << "\nview " << static_cast<int>(window->CurrentView()) << " size " << window->IconSize();
    out << "\nsettings:\n" << ReadWholeFile(SettingsPath());
    return out.str();
  }

  // The buttons of all bars a person could press now.
  QStringList PressableButtons() const {
    QStringList pressable;
    for (const char* bar : {"BtnBarMain", "btnBarLeft", "btnbarScript"}) {
      for (const QString& key : window->ToolKeys(bar)) {
        QAction* button = window->ToolAction(bar, key);
        if (button == nullptr) continue;  // a drop-down entry
        const QWidget* widget = Bar(bar).widgetForAction(button);
        if (widget != nullptr && widget->isEnabled()) pressable << QString(bar) + '/' + key;
      }
    }
    return pressable;
  }

  std::vector<std::string> paths;
};

TEST_F(DispatchTest, EveryToolKeyOfTheTablesHasAButtonThatRunsOrWaits) {
  Open();
  for (const ToolKey& tool : ToolTable()) {
    const QString name = QString(tool.bar) + '/' + tool.key;
    EXPECT_NE(Tool(tool.bar, tool.key), nullptr) << name.toStdString() << " has no button or entry";
    // Exactly one of the two: a key waiting for its dialog has no command yet.
    EXPECT_NE(window->HasToolCommand(tool.bar, tool.key), window->IsNotYetBuilt(tool.bar, tool.key))
        << name.toStdString() << (window->HasToolCommand(tool.bar, tool.key) ? " runs and waits" : " has no command");
  }
}

TEST_F(DispatchTest, EveryMenuEntryOfTheTablesIsThereAndRunsOrWaits) {
  Open();
  for (const QString& name : MenuTable()) {
    const QAction* action = window->MenuAction(name);
    ASSERT_NE(action, nullptr) << name.toStdString() << " is missing";
    EXPECT_EQ(action->menu(), nullptr) << name.toStdString() << " is a submenu, not a command";
    EXPECT_NE(window->HasMenuCommand(name), window->IsNotYetBuilt(name))
        << name.toStdString() << (window->HasMenuCommand(name) ? " runs and waits" : " has no command");
  }
}

TEST_F(DispatchTest, EveryMenuEntryTheWindowHasIsInTheTablesOrASubmenu) {
  Open();
  QList<const QAction*> entries;
  for (const QString& name : window->MenuEntryNames()) entries << window->MenuAction(name);
  // Entries made outside the window's registry count too.
  for (const QAction* action : window->findChildren<QAction*>()) {
    if (action->objectName().startsWith("mnu")) entries << action;
  }
  ASSERT_TRUE(entries.contains(window->MenuAction("mnuOpenFile")));
  for (const QAction* action : entries) {
    ASSERT_NE(action, nullptr);
    const QString name = action->objectName();
    EXPECT_TRUE(MenuTable().contains(name) || action->menu() != nullptr) << name.toStdString() << " is in no table";
  }
}

TEST_F(DispatchTest, EveryToolKeyTheWindowHasIsInTheTables) {
  Open();
  for (const char* bar : {"BtnBarMain", "btnBarLeft", "btnbarScript"}) {
    const QStringList keys = window->ToolKeys(bar);
    ASSERT_FALSE(keys.isEmpty()) << bar;
    for (const QString& key : keys) {
      const bool known = std::any_of(ToolTable().begin(), ToolTable().end(),
                                     [&](const ToolKey& tool) { return tool.bar == QString(bar) && tool.key == key; });
      EXPECT_TRUE(known) << bar << '/' << key.toStdString() << " is in no table";
    }
  }
}

TEST_F(DispatchTest, ToolKeysWaitingForTheirDialogAreDisabledAndChangeNothing) {
  OpenWithPendingName();
  const std::string before = State();
  int waiting = 0;
  for (const ToolKey& tool : ToolTable()) {
    if (!window->IsNotYetBuilt(tool.bar, tool.key)) continue;
    ++waiting;
    QAction* action = Tool(tool.bar, tool.key);
    ASSERT_NE(action, nullptr) << tool.bar << '/' << tool.key;
    EXPECT_FALSE(action->isEnabled()) << tool.bar << '/' << tool.key;
    action->trigger();
    window->RunToolCommand(tool.bar, tool.key);
    EXPECT_EQ(State(), before) << tool.bar << '/' << tool.key;
  }
  EXPECT_GT(waiting, 0);
}

TEST_F(DispatchTest, MenuEntriesWaitingForTheirDialogAreDisabledAndChangeNothing) {
  OpenWithPendingName();
  const std::string before = State();
  int waiting = 0;
  for (const QString& name : MenuTable()) {
    if (!window->IsNotYetBuilt(name)) continue;
    ++waiting;
    QAction* action = window->MenuAction(name);
    ASSERT_NE(action, nullptr) << name.toStdString();
    EXPECT_FALSE(action->isEnabled()) << name.toStdString();
    action->trigger();
    window->RunMenuCommand(name);
    EXPECT_EQ(State(), before) << name.toStdString();
  }
  EXPECT_GT(waiting, 0);
}

TEST_F(DispatchTest, KeysAndEntriesNoTableKnowsDoNothing) {
  OpenWithPendingName();
  const std::string before = State();

  window->RunMainToolKey("NoSuchKey");
  window->RunToolCommand("btnBarLeft", "NoSuchKey");
  window->RunToolCommand("NoSuchBar", "TakeChanges");
  window->RunMenuCommand("mnuNoSuchEntry");
  // Numbers beyond a family's entries are no entries of it.
  window->RunMenuCommand("mnuViewIconSize(9)");
  window->RunMenuCommand("mnuViewSortingSorted(15)");

  EXPECT_EQ(State(), before);
  EXPECT_FALSE(window->HasToolCommand("BtnBarMain", "NoSuchKey"));
  EXPECT_FALSE(window->HasToolCommand("NoSuchBar", "TakeChanges"));
  EXPECT_FALSE(window->HasMenuCommand("mnuNoSuchEntry"));
  EXPECT_FALSE(window->HasMenuCommand("mnuViewIconSize(9)"));
  EXPECT_FALSE(window->HasMenuCommand("mnuViewSortingSorted(15)"));
}

TEST_F(DispatchTest, NumberedEntriesRunTheirFamilysCommandWithTheirNumber) {
  OpenWithPendingName();
  ASSERT_TRUE(window->HasMenuCommand("mnuViewIconSize(4)"));

  window->RunMenuCommand("mnuViewIconSize(4)");
  window->RunMenuCommand("mnuViewSortingSorted(4)");

  EXPECT_EQ(window->IconSize(), 96);
  EXPECT_TRUE(window->MenuAction("mnuViewSortingSorted(4)")->isChecked());
  EXPECT_NE(ReadWholeFile(SettingsPath()).find("PreviewImageSize=4"), std::string::npos);
}

TEST_F(DispatchTest, WhileALoadRunsOnlyCancelCanBePressed) {
  Open();
  AddFiles({"a.txt"});
  const QStringList idle = PressableButtons();
  ASSERT_TRUE(idle.contains("BtnBarMain/OpenFile"));
  ASSERT_FALSE(idle.contains("btnBarLeft/CancelAction"));
  // The loader lets events through once per hundred files.
  for (int i = 0; i < 150; ++i) files.WriteFile("many/" + std::to_string(i) + ".txt", "x");
  bool sawLoad = false;
  QStringList pressable;
  bool menusEnabled = true;
  bool listsEnabled = true;
  QTimer::singleShot(0, window.get(), [&] {
    sawLoad = true;
    pressable = PressableButtons();
    menusEnabled = window->menuBar()->isEnabled();
    listsEnabled = Details().isEnabled() || window->findChild<QComboBox*>("lstApplyTo")->isEnabled();
  });

  window->AddPaths({QString::fromStdString(files.Path() + "many")});

  ASSERT_TRUE(sawLoad);
  EXPECT_EQ(pressable, QStringList{"btnBarLeft/CancelAction"});
  EXPECT_FALSE(menusEnabled);
  EXPECT_FALSE(listsEnabled);
  const QStringList after = PressableButtons();
  EXPECT_TRUE(after.contains("BtnBarMain/OpenFile"));
  EXPECT_FALSE(after.contains("btnBarLeft/CancelAction"));
}

}  // namespace
}  // namespace nomra::ui::testing
