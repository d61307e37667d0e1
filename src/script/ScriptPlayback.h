#pragma once
#include <functional>
#include <string_view>

#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"
#include "rename/ActionContext.h"

namespace nomra::script {

// Opens the dialog of one step type and returns when it has closed; a type
// without a dialog is passed over by the opener.
using StepOpener = std::function<void(int stepType)>;

// Plays the script of the session's run path in its run mode, one step
// after the other: types 1 to 10 go to the opener, any other step is passed
// over without a word. Afterwards, however it ends, no script plays.
void PlayScript(dialog::ScriptSession& session, platform::FileSystem& fileSystem, const StepOpener& openStep);

// The opener without a window: the step's action dialog restores the step
// and, when all steps run, applies itself.
void PlayStepWithoutWindow(const rename::ActionContext& context, int stepType);

// The "RunSelectedScript" button: plays the script of that file name in
// the scripts folder when it exists; otherwise nothing plays (and the
// window tells that no script is chosen). True when it played.
bool RunSelectedScript(dialog::ScriptSession& session, platform::FileSystem& fileSystem, std::string_view fileName,
                       const StepOpener& openStep);

// A script named on the command line (the text behind "/runscript=",
// quotes and all): a path, or else a name in the scripts folder. A name that
// can't be found is passed over without a message. True when it played.
bool RunScriptArgument(dialog::ScriptSession& session, platform::FileSystem& fileSystem, std::string_view text,
                       const StepOpener& openStep);

}  // namespace nomra::script
