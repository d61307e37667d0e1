#include "rename/ActionFrame.h"

#include "dialog/DialogState.h"

namespace nomra {

namespace {

void RestoreInputs(ActionDialog& dialog, MainModel& model) {
  const ScriptSession& session = model.script;
  if (session.runMode == 1 || session.runMode == 2) {
    dialog::RestoreDialogState(dialog.Model(), std::to_string(session.runStep), dialog::kScriptMode, session, model.fileSystem, model.frontEnd);
    return;
  }
  const std::string& section = dialog.Traits().restoreSection;
  if (session.runMode == 0 && session.saveDialogSettings && !section.empty()) {
    dialog::RestoreDialogState(dialog.Model(), section, dialog::kSettingsMode, session, model.fileSystem, model.frontEnd);
  }
}

}  // namespace

void LoadActionDialog(ActionDialog& dialog, MainModel& model) {
  if (dialog.Traits().restoreMoment == RestoreMoment::OnLoad) RestoreInputs(dialog, model);
}

bool ActivateActionDialog(ActionDialog& dialog, MainModel& model, bool firstActivation) {
  if (firstActivation && dialog.Traits().restoreMoment == RestoreMoment::OnFirstActivation) {
    RestoreInputs(dialog, model);
  }
  return firstActivation && model.script.runMode == 1;
}

bool ApplyActionDialog(ActionDialog& dialog, MainModel& model) {
  if (!dialog.CheckInputs(model)) return false;
  const ActionTraits& traits = dialog.Traits();
  const ScriptSession& session = model.script;
  if (session.saveDialogSettings && session.runMode == 0 && !traits.storeSection.empty()) {
    dialog::StoreDialogState(dialog.Model(), traits.storeSection, dialog::kSettingsMode, session, model.fileSystem);
  }
  if (session.recording == 1 && traits.stepType != 0) {
    dialog::StoreDialogState(dialog.Model(), std::to_string(traits.stepType), dialog::kScriptMode, session, model.fileSystem);
  }
  dialog.Run(model);
  return true;
}

void PlayActionWithoutWindow(ActionDialog& dialog, MainModel& model) {
  LoadActionDialog(dialog, model);
  if (ActivateActionDialog(dialog, model, true)) ApplyActionDialog(dialog, model);
}

}  // namespace nomra
