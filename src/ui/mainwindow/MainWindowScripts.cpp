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
#include "shell/SelectedScript.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/rename/ActionWindows.h"
#include "ui/script/FrmScriptWindow.h"

namespace nomra::ui {

namespace {

// The file name an entry of the drop-down stands for; not a dispatch key,
// as these entries come and go with the stored scripts.
constexpr char kScriptFileProperty[] = "scriptFile";

}  // namespace

ActionWindowServices MainWindow::ActionServices() {
  return ActionWindowServices{Actions(), catalog_, this, appTitle_, [this] { RefreshPreview(); }};
}

void MainWindow::OpenAction(int stepType) { OpenActionWindow(stepType, ActionServices()); }

void MainWindow::PlayScriptSteps() {
  RunShowingFault(frontEnd_, [this] {
    script::PlayScript(script_, system_.Files(), [this](int stepType) { OpenAction(stepType); });
  });
  RefreshPreview();
}

void MainWindow::mnuStartRecordScript() {
  script::BeginScriptRecording(script_, system_.Files());
  RefreshPreview();
}

void MainWindow::mnuStopRecordScript() {
  EndRecording();
  RefreshPreview();
}

void MainWindow::EndRecording() {
  RunShowingFault(frontEnd_, [this] {
    if (script::EndScriptRecording(script_, system_.Files(), frontEnd_, base::LocalTimeNow)) FillScriptMenu();
  });
}

void MainWindow::mnuStartRunScript() {
  FrmScriptWindow chooser(script_, system_.Files(), frontEnd_, catalog_, this, appTitle_);
  chooser.exec();
  // Also after a cancel, which has left nothing to play.
  PlayScriptSteps();
}

void MainWindow::RunSelectedScriptButton() {
  RunShowingFault(frontEnd_, [this] {
    shell::PlaySelectedScript(window_, texts_, script_, system_.Files(), ToEngineText(selectedScriptFile_),
                              [this](int stepType) { OpenAction(stepType); });
  });
  selectedScript_->setText(ToQString(window_.selectedScriptLabel));
  RefreshPreview();
}

void MainWindow::FillScriptMenu() {
  QMenu* menu = ToolAction(kScriptBar, kRunSelectedKey)->menu();
  menu->clear();
  for (const script::StoredScript& script : script::ListStoredScripts(system_.Files(), script_.dataFolder)) {
    QAction* entry = menu->addAction(ToQString(script.displayText));
    const QString file = ToQString(script.fileName);
    entry->setProperty(kScriptFileProperty, file);
    connect(entry, &QAction::triggered, this, [this, file, text = entry->text()] {
      selectedScriptFile_ = file;
      window_.selectedScriptLabel = ToEngineText(text);
      selectedScript_->setText(text);
      RunSelectedScriptButton();
    });
  }
  window_.scriptMenuHasEntries = !menu->isEmpty();
}

void MainWindow::RunScriptFromCommandLine(const std::string& name) {
  script::RunScriptArgument(script_, system_.Files(), name, [this](int stepType) { OpenAction(stepType); });
}

}  // namespace nomra::ui
