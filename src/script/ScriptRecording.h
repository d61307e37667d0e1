#pragma once
#include "base/LocalClock.h"
#include "core/FrontEnd.h"
#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"

namespace nomra::script {

// Points the recording at "script.tmp" in the data folder and removes what
// an earlier run left there: a recording doesn't outlive the program.
void ResetScriptTemp(dialog::ScriptSession& session, platform::FileSystem& fileSystem);

// Starts counting steps from 0 in the recording's file.
void BeginScriptRecording(dialog::ScriptSession& session, platform::FileSystem& fileSystem);

// Ends the recording and, when it holds a step, asks for a name and stores
// it in the scripts folder under the moment of storing. A cleared or
// cancelled name is asked again unless the user discards the recording, which
// leaves "script.tmp" as it is. True when a script was stored, so the
// caller fills the script menu again.
bool EndScriptRecording(dialog::ScriptSession& session, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd,
                        const base::LocalClock& clock);

}  // namespace nomra::script
