#pragma once
#include "rename/ActionDialog.h"

namespace nomra::rename {

// What every action dialog does alike, apart from any window.

// Opening: the remembered inputs (no script playing, remembering on) or the
// step being played, for the dialogs that restore on loading.
void LoadActionDialog(ActionDialog& dialog, const ActionContext& context);

// Coming to the front; the dialogs that restore then do so the first time.
// True when a script plays all steps, so the OK handler must run at once;
// false, too, for a dialog that closes at once (the window then closes).
bool ActivateActionDialog(ActionDialog& dialog, const ActionContext& context, bool firstActivation);

// The apply button: the dialog's checks, then its inputs remembered (when
// no script plays) and recorded (when a recording runs), then the action.
// False when the checks refused the inputs and nothing was done.
bool ApplyActionDialog(ActionDialog& dialog, const ActionContext& context);

// A whole opening without a window, as a played script passes through a
// dialog: load, come to the front, and OK when all steps run.
void PlayActionWithoutWindow(ActionDialog& dialog, const ActionContext& context);

}  // namespace nomra::rename
