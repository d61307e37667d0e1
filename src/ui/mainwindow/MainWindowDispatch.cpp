// The main window's dispatch: which command each menu entry, tool button and
// drop-down entry runs. The tables are written in one place, so that a name
// without a command can be found by asking, rather than by clicking.
#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <utility>

#include "base/Fault.h"
#include "core/NameHistory.h"
#include "core/RemoveRows.h"
#include "core/SortFileList.h"
#include "open/OpenCommand.h"
#include "ui/common/QtLocalisation.h"
#include "ui/fileops/FileOperationCommands.h"
#include "ui/history/FrmHistory.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/rename/ActionWindows.h"
#include "ui/structure/FrmNameStructure.h"

namespace nomra::ui {

namespace {

constexpr char kMainBar[] = "BtnBarMain";
constexpr char kLeftBar[] = "btnBarLeft";
constexpr char kScriptBar[] = "btnbarScript";

// "mnuViewPre(3)" is entry 3 of the family "mnuViewPre"; other names have number 0.
std::pair<QString, int> SplitNumberedName(const QString& name) {
  const qsizetype open = name.lastIndexOf(QLatin1Char('('));
  if (open <= 0 || !name.endsWith(QLatin1Char(')'))) return {name, 0};
  bool ok = false;
  const int number = QStringView(name).mid(open + 1, name.size() - open - 2).toInt(&ok);
  if (!ok || number <= 0) return {name, 0};
  return {name.left(open), number};
}

QString ToolName(const QString& bar, const QString& key) { return bar + QLatin1Char('/') + key; }

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
      try {
        run();
      } catch (const RuntimeFault& fault) {
        frontEnd_.ShowFault(fault.what());
        RefreshPreview();
      }
    });
  };
  auto dropDownEntry = [this, &tool](const QString& button, const QString& entry) {
    tool(kMainBar, entry, [this, button, entry] { RunDropDownEntry(button, entry); });
  };

  mainTool("OpenFile", [this] { mnuOpenFile(); });
  mainTool("DelList", [this] {
    model_.delListTag = variants_.value("DelList").toStdString();
    UpdateToolTips();
    deleteFromList(model_);
    if (model_.list.Empty()) picture_->clear();
    RefreshPreview();
  });
  mainTool("TakeChanges", [this] { takeChanges(); });
  mainTool("RejectChanges", [this] {
    mnuRejectChanges(model_);
    RefreshPreview();
  });
  mainTool("Undo", [this] {
    mnuUndo(model_);
    RefreshPreview();
  });
  mainTool("Options", [this] { mnuOptions(); });
  dropDownEntry("OpenFile", "OpenFile1");
  dropDownEntry("OpenFile", "OpenFile2");
  for (int entry = 1; entry <= 5; ++entry) dropDownEntry("DelList", QString("DelList%1").arg(entry));
  dropDownEntry("TakeChanges", "TakeChanges1");
  dropDownEntry("TakeChanges", "TakeChanges2");

  for (int stepType = 1; stepType <= kActionMenuEntries; ++stepType) {
    if (!HasActionWindow(stepType)) continue;
    const QString number = QString("%1").arg(stepType, 2, 10, QLatin1Char('0'));
    mainTool("Rename" + number, [this, stepType] { OpenAction(stepType); });
    menu("mnuRename" + number, [this, number] { RunMainToolKey("Rename" + number); });
  }

  mainTool("Rename99", [this] { OpenNameStructure(ActionServices()); });
  menu("mnuRenameStructure", [this] { RunMainToolKey("Rename99"); });

  tool(kScriptBar, "StartRecordScript", [this] { mnuStartRecordScript(); });
  tool(kScriptBar, "StopRecordScript", [this] { mnuStopRecordScript(); });
  tool(kScriptBar, "StartRunScript", [this] { mnuStartRunScript(); });
  tool(kScriptBar, "RunSelectedScript", [this] { RunSelectedScriptButton(); });
  menu("mnuStartRecordScript", [this] { RunToolCommand(kScriptBar, "StartRecordScript"); });
  menu("mnuStopRecordScript", [this] { RunToolCommand(kScriptBar, "StopRecordScript"); });
  menu("mnuStartRunScript", [this] { RunToolCommand(kScriptBar, "StartRunScript"); });
  // The entry is there and does nothing of its own; the button plays.
  menu("mnuRunSelectedScript", [] {});

  tool(kLeftBar, "EditMan", [this] { mnuEditMan(); });
  tool(kLeftBar, "DelList", [this] {
    const int position = SelectedPosition();
    if (position > 0) btnBarLeftDel1File(model_, position);
    RefreshPreview();
  });
  tool(kLeftBar, "CancelAction", [this] { CancelAction(); });
  tool(kLeftBar, "Properties", [this] {
    const int position = SelectedPosition();
    if (position > 0) ShowProperties(this, frontEnd_, catalog_, model_.list.Item(position).key);
  });

  menu("mnuOpenFile", [this] { RunMainToolKey("OpenFile"); });
  menu("mnuOpenFromList", [this] { OpenFilesDialog(open::OpenMode::Playlists); });
  menu("mnuTakeChanges1", [this] { RunDropDownEntry("TakeChanges", "TakeChanges1"); });
  menu("mnuTakeChanges2", [this] { RunDropDownEntry("TakeChanges", "TakeChanges2"); });
  menu("mnuCopyFiles", [this] {
    RunSelAction(this, model_, catalog_, "frmCopyFiles");
    RefreshPreview();
  });
  menu("mnuMoveFiles", [this] {
    RunSelAction(this, model_, catalog_, "frmMoveFiles");
    RefreshPreview();
  });
  menu("mnuDeleteFiles1", [this] {
    DeleteListFiles(this, model_, catalog_, true);
    RefreshPreview();
  });
  menu("mnuDeleteFiles2", [this] {
    DeleteListFiles(this, model_, catalog_, false);
    RefreshPreview();
  });
  menu("mnuRejectChanges", [this] { RunMainToolKey("RejectChanges"); });
  menu("mnuUndo", [this] { RunMainToolKey("Undo"); });
  for (int entry = 1; entry <= 5; ++entry) {
    const QString key = QString("DelList%1").arg(entry);
    menu("mnu" + key, [this, key] { RunDropDownEntry("DelList", key); });
  }
  menu("mnuEditMan", [this] { mnuEditMan(); });
  menu("mnuCopyName1", [this] { mnuCopyText(kColOldName); });
  menu("mnuCopyName2", [this] { mnuCopyText(kColNewName); });
  menu("mnuCopyLink", [this] { mnuCopyText(-1); });
  menu("mnuInfo", [this] { mnuInfo(); });
  menu("mnuHistory", [this] {
    ShowRenameHistory(this, model_, frontEnd_, catalog_, appTitle_);
    RefreshPreview();
  });
  menu("mnuOptions", [this] { RunMainToolKey("Options"); });
  menu("mnuExperts", [this] { mnuExperts(); });
  menu("mnuEnd", [this] { close(); });
  menu("mnuViewDetails", [this] { SetView(ListView::Details); });
  menu("mnuViewDetailsIcons", [this] { SetView(ListView::DetailsIcons); });
  menu("mnuViewIcons", [this] { SetView(ListView::Icons); });
  menu("mnuGridLines", [this] { SetGridLines(MenuAction("mnuGridLines")->isChecked()); });
  menu("mnuShowBtnBarMain", [this] { mainBar_->setVisible(MenuAction("mnuShowBtnBarMain")->isChecked()); });
  menu("mnuShowBtnBarScript", [this] { scriptBar_->setVisible(MenuAction("mnuShowBtnBarScript")->isChecked()); });
  // The check is all there is to it: the close stores it.
  menu("mnuShowSplash", [] {});
  menu("mnuViewSortingUnsorted", [this] {
    mnuViewSortingUnsorted(model_);
    listModel_->Reload();
    RestoreSelection();
    UpdateSortIndicators();
  });
  numberedMenuCommands_.insert("mnuViewSortingSorted", [this](int entry) {
    mnuViewSortingSorted(model_, entry);
    listModel_->Reload();
    RestoreSelection();
    UpdateSortIndicators();
  });
  numberedMenuCommands_.insert("mnuViewPre", [this](int entry) { ToggleColumn(entry); });
  numberedMenuCommands_.insert("mnuViewIconSize", [this](int entry) { SetIconSizeEntry(entry); });
}

void MainWindow::RunMenuCommand(const QString& name) {
  if (!HasMenuCommand(name) || notYetBuilt_.contains(name)) return;
  if (const Command run = menuCommands_.value(name)) {
    run();
    return;
  }
  const auto [family, number] = SplitNumberedName(name);
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
  const auto [family, number] = SplitNumberedName(name);
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
  const QString prefix = bar + QLatin1Char('/');
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
  const QString prefix = bar + QLatin1Char('/');
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
  if (HasToolCommand(bar, key)) connect(&action, &QAction::triggered, this, [this, bar, key] { RunToolCommand(bar, key); });
}

}  // namespace nomra::ui
