#include "rename/ActionFrame.h"

#include "dialog/DialogState.h"

namespace nomra::rename {

namespace {

void RestoreInputs(ActionDialog& dialog, const ActionContext& context) {
  const dialog::ScriptSession& session = context.script;
  if (session.runMode == 1 || session.runMode == 2) {
    dialog::RestoreDialogState(dialog.Model(), std::to_string(session.runStep), dialog::kScriptMode, session,
                               context.fileSystem, context.User());
    return;
  }
  const std::string& section = dialog.Traits().restoreSection;
  if (session.runMode == 0 && session.saveDialogSettings && !section.empty()) {
    dialog::RestoreDialogState(dialog.Model(), section, dialog::kSettingsMode, session, context.fileSystem,
                               context.User());
  }
}

}  // namespace

void LoadActionDialog(ActionDialog& dialog, const ActionContext& context) {
  dialog.Open(context);
  if (dialog.Traits().restoreMoment == RestoreMoment::OnLoad) RestoreInputs(dialog, context);
}

bool ActivateActionDialog(ActionDialog& dialog, const ActionContext& context, bool firstActivation) {
  if (dialog.ClosesAtOnce()) return false;
  if (firstActivation && dialog.Traits().restoreMoment == RestoreMoment::OnFirstActivation) {
    RestoreInputs(dialog, context);
  }
  return firstActivation && context.script.runMode == 1;
}

bool ApplyActionDialog(ActionDialog& dialog, const ActionContext& context) {
  if (!dialog.CheckInputs(context)) return false;
  const ActionTraits& traits = dialog.Traits();
  const dialog::ScriptSession& session = context.script;
  if (session.saveDialogSettings && session.runMode == 0 && !traits.storeSection.empty()) {
    dialog::StoreDialogState(dialog.Model(), traits.storeSection, dialog::kSettingsMode, session, context.fileSystem);
  }
  if (session.recording == 1 && traits.stepType != 0) {
    dialog::StoreDialogState(dialog.Model(), std::to_string(traits.stepType), dialog::kScriptMode, session,
                             context.fileSystem);
  }
  dialog.Run(context);
  return true;
}

void PlayActionWithoutWindow(ActionDialog& dialog, const ActionContext& context) {
  LoadActionDialog(dialog, context);
  if (ActivateActionDialog(dialog, context, true)) ApplyActionDialog(dialog, context);
}

}  // namespace nomra::rename
