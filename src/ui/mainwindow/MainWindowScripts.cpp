// The main window's part in the renaming actions and scripts: opening an
// action's dialog, recording, the script dialog, the selected script's
// button with its drop-down, and "/runscript=" at start.
#include <QAction>
#include <QLabel>
#include <QMenu>

#include "base/LocalClock.h"
#include "script/ScriptFiles.h"
#include "script/ScriptPlayback.h"
#include "script/ScriptRecording.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/rename/ActionWindows.h"
#include "ui/script/FrmScript.h"

namespace nomra::ui {

namespace {

// The file name an entry of the drop-down stands for; not a dispatch key,
// as these entries come and go with the stored scripts.
constexpr char kScriptFileProperty[] = "scriptFile";

}  // namespace

ActionWindowServices MainWindow::ActionServices() {
  return ActionWindowServices{model_, catalog_, this, appTitle_, [this] { RefreshPreview(); }};
}

void MainWindow::OpenAction(int stepType) { OpenActionWindow(stepType, ActionServices()); }

void MainWindow::PlayScriptSteps() {
  RunShowingFault(frontEnd_, [this] { PlayScript(model_.script, model_.fileSystem, [this](int stepType) { OpenAction(stepType); }); });
  RefreshPreview();
}

void MainWindow::mnuStartRecordScript() {
  BeginScriptRecording(model_.script, model_.fileSystem);
  RefreshPreview();
}

void MainWindow::mnuStopRecordScript() {
  EndRecording();
  RefreshPreview();
}

void MainWindow::EndRecording() {
  RunShowingFault(frontEnd_, [this] {
    if (EndScriptRecording(model_, LocalTimeNow)) FillScriptMenu();
  });
}

void MainWindow::mnuStartRunScript() {
  FrmScript chooser(model_, catalog_, this, appTitle_);
  chooser.exec();
  // Also after a cancel, which has left nothing to play.
  PlayScriptSteps();
}

void MainWindow::RunSelectedScriptButton() {
  RunShowingFault(frontEnd_, [this] {
    RunSelectedScript(model_, ToEngineText(selectedScriptFile_), [this](int stepType) { OpenAction(stepType); });
  });
  selectedScript_->setText(ToQString(model_.selectedScriptLabel));
  RefreshPreview();
}

void MainWindow::FillScriptMenu() {
  QMenu* menu = ToolAction(kScriptBar, kRunSelectedKey)->menu();
  menu->clear();
  for (const StoredScript& script : ListStoredScripts(model_.fileSystem, model_.script.dataFolder)) {
    QAction* entry = menu->addAction(ToQString(script.displayText));
    const QString file = ToQString(script.fileName);
    entry->setProperty(kScriptFileProperty, file);
    connect(entry, &QAction::triggered, this, [this, file, text = entry->text()] {
      selectedScriptFile_ = file;
      model_.selectedScriptLabel = ToEngineText(text);
      selectedScript_->setText(text);
      RunSelectedScriptButton();
    });
  }
  model_.scriptMenuHasEntries = !menu->isEmpty();
}

void MainWindow::RunScriptFromCommandLine(const std::string& name) {
  RunScriptArgument(model_, name, [this](int stepType) { OpenAction(stepType); });
}

}  // namespace nomra::ui
