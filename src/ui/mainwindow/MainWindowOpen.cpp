// How paths reach the list from the main window: the two open dialogs, the
// playlist dialog and the command line.
#include <QAction>

#include "base/Fault.h"
#include "formats/IniFile.h"
#include "open/OpenCommand.h"
#include "open/Playlist.h"
#include "open/StagedFiles.h"
#include "settings/SettingsKeys.h"
#include "shell/CommandLine.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/FormNames.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/open/FrmOpenWindow.h"
#include "ui/open/SystemOpenDialog.h"

namespace nomra::ui {

namespace {

// The playlist dialog's filters, each row "text (pattern)".
std::vector<open::FilterRow> PlaylistFilters() {
  std::vector<open::FilterRow> rows;
  const std::string filter = open::kPlaylistDialogFilter;
  std::size_t start = 0;
  while (start < filter.size()) {
    const std::size_t bar = filter.find('|', start);
    if (bar == std::string::npos) break;
    std::size_t end = filter.find('|', bar + 1);
    if (end == std::string::npos) end = filter.size();
    const std::string text = filter.substr(start, bar - start);
    const std::string pattern = filter.substr(bar + 1, end - bar - 1);
    rows.push_back({text + " (" + pattern + ")", pattern});
    start = end + 1;
  }
  return rows;
}

}  // namespace

// The button's variant picks the dialog; no variant yet acts as the first.
void MainWindow::mnuOpenFile() {
  if (variants_.value(kOpenFileKey) == EntryKey(kOpenFileKey, 2)) {
    ShowFrmOpen();
  } else {
    OpenFilesDialog(open::OpenMode::Files);
  }
}

void MainWindow::OpenFilesDialog(open::OpenMode mode) {
  SystemOpenDialog::Setup setup;
  setup.mode = mode;
  setup.folder = ToQString(open::InitialFolder(SettingsFile(), system_.Locations().HomeFolder()));
  const int filesFilterIndex = open::LastFilterIndex(SettingsFile());
  if (mode == open::OpenMode::Files) {
    std::string allRows = catalog_.GetText(kOpenDialogName, "FilterAll");
    if (allRows.empty()) allRows = "All files (*.*)";
    const std::string label = catalog_.GetText(kOpenDialogName, "AllFiles");
    setup.filters = open::BuildFilterList(SettingsFile(), allRows);
    setup.title = DialogTitleOf(MenuAction(kOpenFileEntry)->text());
    setup.allFilesLabel = label.empty() ? QString("(All files)") : ToQString(label);
    setup.allFiles = settings_.chkAll == 1;
    setup.subFolders = settings_.chkSub == 1;
    setup.filterIndex = filesFilterIndex;
  } else {
    setup.filters = PlaylistFilters();
    setup.title = DialogTitleOf(MenuAction(kOpenFromListEntry)->text());
  }
  const std::vector<open::FilterRow> filters = setup.filters;
  SystemOpenDialog dialog(setup, catalog_, this);
  const int result = dialog.exec();
  // The panel belongs to the window: its boxes keep what the user set,
  // whether the dialog was taken or not.
  if (mode == open::OpenMode::Files) {
    settings_.chkAll = dialog.AllFiles() ? 1 : 0;
    settings_.chkSub = dialog.SubFolders() ? 1 : 0;
  }
  if (result != QDialog::Accepted) return;
  open::OpenChoice choice = dialog.Choice();
  // The playlist dialog's rows are others: the files dialog's index stays.
  if (mode == open::OpenMode::Playlists) choice.filterIndex = filesFilterIndex;
  RunLoad([&] { open::RunOpenChoice(load_, preview_, choice, filters, SettingsFile(), settings_.showHiddenFiles); });
}

void MainWindow::ShowFrmOpen() {
  if (frmOpen_ == nullptr) frmOpen_ = new FrmOpenWindow({system_.Files(), frontEnd_, catalog_, SettingsFile()}, this);
  frmOpen_->Prepare(settings_.chkAll == 1, settings_.chkSub == 1, settings_.showHiddenFiles,
                    open::InitialFolder(SettingsFile(), system_.Locations().HomeFolder()));
  if (frmOpen_->exec() != QDialog::Accepted) return;
  settings_.chkAll = frmOpen_->AllFiles() ? 1 : 0;
  settings_.chkSub = frmOpen_->SubFolders() ? 1 : 0;
  std::vector<std::string> staged = frmOpen_->TakeStaged();
  RunLoad([&] { open::LoadStagedFiles(load_, preview_, staged); });
}

void MainWindow::RunCommandLine(const std::vector<std::string>& arguments) {
  shell::CommandLineSwitches switches;
  switches.openFromFile = [this](const std::string& path) { open::LoadPlaylist(load_, preview_, path); };
  switches.runScript = [this](const std::string& name) { RunScriptFromCommandLine(name); };
  RunLoad([&] { nomra::shell::RunCommandLine(arguments, load_, switches); });
}

void MainWindow::RunLoad(const std::function<void()>& load) {
  SetBusyLoading(true);
  load_.stopAsked = false;
  progress_.Reset();
  RunShowingFault(frontEnd_, load);
  // A stop the loader left standing is spent here, so the next load runs.
  load_.stopAsked = false;
  progress_.Reset();
  SetBusyLoading(false);
  RefreshPreview();
}

}  // namespace nomra::ui
