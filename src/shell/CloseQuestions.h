#pragma once
#include <functional>
#include <string>

#include "core/FrontEnd.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/RowCommitter.h"
#include "shell/MainWindowSettings.h"

namespace nomra::shell {

enum class CloseDecision { Refuse, Close };

// What the close asks about: the list, the user, and whoever takes the
// pending names to disk when the user wants them kept.
struct ClosingList {
  const core::ListState& state;
  core::FrontEnd& frontEnd;
  core::RowCommitter* committer = nullptr;
};

// The questions before the main window closes. While a recording runs, the
// user is asked whether to stop it: Cancel refuses the close at once, Yes
// stops the recording. Then, with pending names in the list, the user is
// asked whether to take them: Cancel refuses the close, Yes renames the
// whole list through the committer. The close goes ahead otherwise.
CloseDecision AskBeforeClose(const ClosingList& closing, bool recordingRuns,
                             const std::function<void()>& stopRecording);

// The whole close of the main window in one call: the layout is written, the
// questions are asked, and the remaining settings are written, also when the
// pending-names question refused the close (writing them then is harmless).
// Only a Cancel on the recording question ends the sequence before the
// remaining settings are written. The caller releases its services when the
// result is Close.
CloseDecision RunCloseSequence(const MainWindowSettings& settings, const ClosingList& closing,
                               const core::ListOptions& options, const formats::IniFile& settingsFile,
                               bool recordingRuns, const std::function<void()>& stopRecording);

}  // namespace nomra::shell
