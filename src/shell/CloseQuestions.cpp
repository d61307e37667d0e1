#include "shell/CloseQuestions.h"

#include "base/Fault.h"
#include "lang/MessageKeys.h"

namespace nomra {

namespace {

// False when the user cancelled, which ends the close at once.
bool RecordingAllowsClose(MainModel& model, bool recordingRuns, const std::function<void()>& stopRecording) {
  if (!recordingRuns) return true;
  const Answer answer = model.frontEnd.Ask({lang::kStopRecordingQuestion, lang::kScriptRecordingCaption, MessageStyle::YesNoCancelDefaultNo, {}});
  if (answer == Answer::Cancel) return false;
  if (answer == Answer::Yes && stopRecording) stopRecording();
  return true;
}

// False when the pending names must stay in the list, so the window stays.
bool PendingNamesAllowClose(MainModel& model) {
  if (model.changedCount <= 0) return true;
  const Answer answer = model.frontEnd.Ask({lang::kTakeChangesQuestion, lang::kPendingChangesCaption, MessageStyle::YesNoCancelDefaultNo, {}});
  if (answer == Answer::Cancel) return false;
  if (answer != Answer::Yes) return true;
  // Without a committer the yes can't be kept; closing would throw the
  // names away against the user's answer. The window always wires one.
  if (model.committer == nullptr) return false;
  try {
    model.committer->CommitAll();
  } catch (const RuntimeFault& fault) {
    // The window stays open with what wasn't renamed still in the list.
    model.frontEnd.ShowFault(fault.what());
    return false;
  }
  return true;
}

}  // namespace

CloseDecision AskBeforeClose(MainModel& model, bool recordingRuns, const std::function<void()>& stopRecording) {
  if (!RecordingAllowsClose(model, recordingRuns, stopRecording)) return CloseDecision::Refuse;
  return PendingNamesAllowClose(model) ? CloseDecision::Close : CloseDecision::Refuse;
}

CloseDecision RunCloseSequence(const MainWindowSettings& settings, MainModel& model, const formats::IniFile& settingsFile,
                               bool recordingRuns, const std::function<void()>& stopRecording) {
  WriteLayoutOnClose(settings, settingsFile);
  if (!RecordingAllowsClose(model, recordingRuns, stopRecording)) return CloseDecision::Refuse;
  const bool close = PendingNamesAllowClose(model);
  WriteSettingsOnClose(settings, model, settingsFile);
  return close ? CloseDecision::Close : CloseDecision::Refuse;
}

}  // namespace nomra
