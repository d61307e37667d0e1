// The main window's dispatch: which command each menu entry, tool button and
// drop-down entry runs. The tables are written in one place, so that a name
// without a command can be found by asking, rather than by clicking.
#include <QAction>
#include <QMenu>
#include <QToolBar>

#include <utility>

#include "core/NameHistory.h"
#include "core/RemoveRows.h"
#include "core/SortFileList.h"
#include "open/OpenCommand.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/fileops/FileOperationCommands.h"
#include "ui/history/FrmHistoryWindow.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/rename/ActionWindows.h"
#include "ui/structure/FrmNameStructureWindow.h"

namespace nomra::ui {

namespace {

// "mnuViewPre(3)" is entry 3 of the family "mnuViewPre"; other names have number 0.
std::pair<QString, int> SplitControlArrayMember(const QString& name) {
  const qsizetype open = name.lastIndexOf(QLatin1Char('('));
  if (open <= 0 || !name.endsWith(QLatin1Char(')'))) return {name, 0};
  bool ok = false;
  const int number = QStringView(name).mid(open + 1, name.size() - open - 2).toInt(&ok);
  if (!ok || number <= 0) return {name, 0};
  return {name.left(open), number};
}

}  // namespace

void MainWindow::BuildCommandTables() {
  auto menu = [this](const QString& name, Command run) { menuCommands_.insert(name, std::move(run)); };
  auto tool = [this](const QString& bar, const QString& key, Command run) {
    toolCommands_.insert(ToolName(bar, key), std::move(run));
  };
  // A fault in a main bar command is shown and the list refreshed, whichever
  // control ran it: the button, its drop-down or the menu entry behind it.
  auto mainTool = [this, &tool](const QString& key, Command run) {
    tool(kMainBar, key, [this, run = std::move(run)] {
      if (!RunShowingFault(frontEnd_, run)) RefreshPreview();
    });
  };
  auto dropDownEntry = [this, &tool](const QString& button, const QString& entry) {
    tool(kMainBar, entry, [this, button, entry] { RunDropDownEntry(button, entry); });
  };

  mainTool(kOpenFileKey, [this] { mnuOpenFile(); });
  mainTool(kDelListKey, [this] {
    window_.delListTag = ToEngineText(variants_.value(kDelListKey));
    UpdateToolTips();
    core::deleteFromList(List(), &committer_, window_.delListTag);
    if (state_.list.Empty()) picture_->clear();
    RefreshPreview();
  });
  mainTool(kTakeChangesKey, [this] { takeChanges(); });
  mainTool(kRejectChangesKey, [this] {
    core::mnuRejectChanges(List(), options_.securityQuestions[2]);
    RefreshPreview();
  });
  mainTool(kUndoKey, [this] {
    core::mnuUndo(List(), options_.securityQuestions[0]);
    RefreshPreview();
  });
  mainTool(kOptionsKey, [this] { mnuOptions(); });
  for (int entry = 1; entry <= kOpenFileEntries; ++entry) dropDownEntry(kOpenFileKey, EntryKey(kOpenFileKey, entry));
  // The submenus mnuDelList and mnuTakeChanges hold the entries of their buttons.
  for (const auto& [key, entries] :
       {std::pair{kDelListKey, kDelListEntries}, std::pair{kTakeChangesKey, kTakeChangesEntries}}) {
    const QString button = key;
    for (int entry = 1; entry <= entries; ++entry) {
      const QString entryKey = EntryKey(key, entry);
      dropDownEntry(button, entryKey);
      menu(MenuEntryOf(entryKey), [this, button, entryKey] { RunDropDownEntry(button, entryKey); });
    }
  }

  for (int stepType = 1; stepType <= kActionMenuEntries; ++stepType) {
    if (!HasActionWindow(stepType)) continue;
    const QString key = RenameToolKey(stepType);
    mainTool(key, [this, stepType] { OpenAction(stepType); });
    menu(RenameMenuEntry(stepType), [this, key] { RunMainToolKey(key); });
  }

  mainTool(kNameStructureKey, [this] { OpenNameStructure(ActionServices()); });
  menu(kNameStructureEntry, [this] { RunMainToolKey(kNameStructureKey); });

  tool(kScriptBar, kStartRecordKey, [this] { mnuStartRecordScript(); });
  tool(kScriptBar, kStopRecordKey, [this] { mnuStopRecordScript(); });
  tool(kScriptBar, kStartRunKey, [this] { mnuStartRunScript(); });
  tool(kScriptBar, kRunSelectedKey, [this] { RunSelectedScriptButton(); });
  menu(kStartRecordEntry, [this] { RunToolCommand(kScriptBar, kStartRecordKey); });
  menu(kStopRecordEntry, [this] { RunToolCommand(kScriptBar, kStopRecordKey); });
  menu(kStartRunEntry, [this] { RunToolCommand(kScriptBar, kStartRunKey); });
  // The entry is there and does nothing of its own; the button plays.
  menu(kRunSelectedEntry, [] {});

  tool(kLeftBar, kEditManKey, [this] { mnuEditMan(); });
  tool(kLeftBar, kDelListKey, [this] {
    const int position = SelectedPosition();
    if (position > 0) core::btnBarLeftDel1File(List(), &committer_, position);
    RefreshPreview();
  });
  tool(kLeftBar, kCancelActionKey, [this] { CancelAction(); });
  tool(kLeftBar, kPropertiesKey, [this] {
    const int position = SelectedPosition();
    if (position > 0) ShowProperties(this, system_.Files(), frontEnd_, catalog_, state_.list.Item(position).key);
  });

  menu(kOpenFileEntry, [this] { RunMainToolKey(kOpenFileKey); });
  menu(kOpenFromListEntry, [this] { OpenFilesDialog(open::OpenMode::Playlists); });
  menu(kCopyFilesEntry, [this] {
    RunSelAction(this, system_, Actions(), &committer_, catalog_, "frmCopyFiles");
    RefreshPreview();
  });
  menu(kMoveFilesEntry, [this] {
    RunSelAction(this, system_, Actions(), &committer_, catalog_, "frmMoveFiles");
    RefreshPreview();
  });
  menu(kDeleteToTrashEntry, [this] {
    DeleteListFiles(this, system_, List(), options_.expertMode, catalog_, true);
    RefreshPreview();
  });
  menu(kDeleteEntry, [this] {
    DeleteListFiles(this, system_, List(), options_.expertMode, catalog_, false);
    RefreshPreview();
  });
  menu(kRejectChangesEntry, [this] { RunMainToolKey(kRejectChangesKey); });
  menu(kUndoEntry, [this] { RunMainToolKey(kUndoKey); });
  menu(kEditManEntry, [this] { mnuEditMan(); });
  menu(kCopyOldNameEntry, [this] { mnuCopyText(core::kColOldName); });
  menu(kCopyNewNameEntry, [this] { mnuCopyText(core::kColNewName); });
  menu(kCopyPathEntry, [this] { mnuCopyText(-1); });
  menu(kInfoEntry, [this] { mnuInfo(); });
  menu(kHistoryEntry, [this] {
    ShowRenameHistory(this, system_.Files(), options_.dataFolder, frontEnd_, catalog_, appTitle_);
    RefreshPreview();
  });
  menu(kOptionsEntry, [this] { RunMainToolKey(kOptionsKey); });
  menu(kExpertsEntry, [this] { mnuExperts(); });
  menu(kEndEntry, [this] { close(); });
  menu(kViewDetailsEntry, [this] { SetView(ListView::Details); });
  menu(kViewDetailsIconsEntry, [this] { SetView(ListView::DetailsIcons); });
  menu(kViewIconsEntry, [this] { SetView(ListView::Icons); });
  menu(kGridLinesEntry, [this] { SetGridLines(MenuAction(kGridLinesEntry)->isChecked()); });
  menu(kShowMainBarEntry, [this] { mainBar_->setVisible(MenuAction(kShowMainBarEntry)->isChecked()); });
  menu(kShowScriptBarEntry, [this] { scriptBar_->setVisible(MenuAction(kShowScriptBarEntry)->isChecked()); });
  // The check is all there is to it: the close stores it.
  menu(kShowSplashEntry, [] {});
  menu(kUnsortedEntry, [this] {
    core::mnuViewSortingUnsorted(state_.list, frontEnd_);
    listModel_->Reload();
    RestoreSelection();
    UpdateSortIndicators();
  });
  numberedMenuCommands_.insert(kSortFamily, [this](int entry) {
    core::mnuViewSortingSorted(state_.list, frontEnd_, entry);
    listModel_->Reload();
    RestoreSelection();
    UpdateSortIndicators();
  });
  numberedMenuCommands_.insert(kColumnFamily, [this](int entry) { ToggleColumn(entry); });
  numberedMenuCommands_.insert(kIconSizeFamily, [this](int entry) { SetIconSizeEntry(entry); });
}

void MainWindow::RunMenuCommand(const QString& name) {
  if (!HasMenuCommand(name) || notYetBuilt_.contains(name)) return;
  if (const Command run = menuCommands_.value(name)) {
    run();
    return;
  }
  const auto [family, number] = SplitControlArrayMember(name);
  if (const std::function<void(int)> run = numberedMenuCommands_.value(family)) run(number);
}

void MainWindow::RunToolCommand(const QString& bar, const QString& key) {
  if (!HasToolCommand(bar, key) || IsNotYetBuilt(bar, key)) return;
  // A copy: the command may run for as long as a dialog stays open.
  const Command run = toolCommands_.value(ToolName(bar, key));
  run();
}

void MainWindow::RunMainToolKey(const QString& key) { RunToolCommand(kMainBar, key); }

void MainWindow::RunDropDownEntry(const QString& buttonKey, const QString& entryKey) {
  if (IsNotYetBuilt(kMainBar, entryKey)) return;
  variants_.insert(buttonKey, entryKey);
  UpdateToolTips();
  RunMainToolKey(buttonKey);
}

// Only entries the window has count: a family's command doesn't make up
// numbers that have no entry.
bool MainWindow::HasMenuCommand(const QString& name) const {
  if (!menuActions_.contains(name)) return false;
  if (menuCommands_.contains(name)) return true;
  const auto [family, number] = SplitControlArrayMember(name);
  return number > 0 && numberedMenuCommands_.contains(family);
}

bool MainWindow::HasToolCommand(const QString& bar, const QString& key) const {
  return ToolEntry(bar, key) != nullptr && toolCommands_.contains(ToolName(bar, key));
}

bool MainWindow::IsNotYetBuilt(const QString& bar, const QString& key) const {
  return notYetBuilt_.contains(ToolName(bar, key));
}

QAction* MainWindow::ToolEntry(const QString& bar, const QString& key) const {
  if (QAction* button = ToolAction(bar, key)) return button;
  const QString prefix = ToolName(bar, QString());
  for (auto it = toolActions_.constBegin(); it != toolActions_.constEnd(); ++it) {
    if (!it.key().startsWith(prefix) || it.value()->menu() == nullptr) continue;
    for (QAction* entry : it.value()->menu()->actions()) {
      if (entry->property(kKeyProperty).toString() == key) return entry;
    }
  }
  return nullptr;
}

QStringList MainWindow::ToolKeys(const QString& bar) const {
  QStringList keys;
  const QString prefix = ToolName(bar, QString());
  for (auto it = toolActions_.constBegin(); it != toolActions_.constEnd(); ++it) {
    if (!it.key().startsWith(prefix)) continue;
    keys << it.key().mid(prefix.size());
    if (it.value()->menu() == nullptr) continue;
    for (QAction* entry : it.value()->menu()->actions()) {
      const QString key = entry->property(kKeyProperty).toString();
      if (!key.isEmpty()) keys << key;
    }
  }
  keys.sort();
  return keys;
}

void MainWindow::ConnectMenuEntry(QAction& action) {
  const QString name = action.objectName();
  if (HasMenuCommand(name)) connect(&action, &QAction::triggered, this, [this, name] { RunMenuCommand(name); });
}

void MainWindow::ConnectToolEntry(QAction& action, const QString& bar, const QString& key) {
  if (HasToolCommand(bar, key))
    connect(&action, &QAction::triggered, this, [this, bar, key] { RunToolCommand(bar, key); });
}

}  // namespace nomra::ui
