#pragma once
#include <functional>
#include <string>

#include "core/MainModel.h"
#include "shell/MainWindowSettings.h"

namespace nomra {

enum class CloseDecision { Refuse, Close };

// The questions before the main window closes. While a recording runs, the
// user is asked whether to stop it: Cancel refuses the close at once, Yes
// stops the recording. Then, with pending names in the list, the user is
// asked whether to take them: Cancel refuses the close, Yes renames the
// whole list through the model's committer. The close goes ahead otherwise.
CloseDecision AskBeforeClose(MainModel& model, bool recordingRuns, const std::function<void()>& stopRecording);

// The whole close of the main window in one call: the layout is written, the
// questions are asked, and the remaining settings are written, also when the
// pending-names question refused the close (writing them then is harmless).
// Only a Cancel on the recording question ends the sequence before the
// remaining settings are written. The caller releases its services when the
// result is Close.
CloseDecision RunCloseSequence(const MainWindowSettings& settings, MainModel& model, const formats::IniFile& settingsFile,
                               bool recordingRuns, const std::function<void()>& stopRecording);

}  // namespace nomra
