#include "shell/CloseQuestions.h"

#include "base/Fault.h"
#include "lang/MessageKeys.h"

namespace nomra::shell {

namespace {

// False when the user cancelled, which ends the close at once.
bool RecordingAllowsClose(core::FrontEnd& frontEnd, bool recordingRuns, const std::function<void()>& stopRecording) {
  if (!recordingRuns) return true;
  const core::Answer answer = frontEnd.Ask(
      {lang::kStopRecordingQuestion, lang::kScriptRecordingCaption, core::MessageStyle::YesNoCancelDefaultNo, {}});
  if (answer == core::Answer::Cancel) return false;
  if (answer == core::Answer::Yes && stopRecording) stopRecording();
  return true;
}

// False when the pending names must stay in the list, so the window stays.
bool PendingNamesAllowClose(const ClosingList& closing) {
  if (closing.state.changedCount <= 0) return true;
  const core::Answer answer = closing.frontEnd.Ask(
      {lang::kTakeChangesQuestion, lang::kPendingChangesCaption, core::MessageStyle::YesNoCancelDefaultNo, {}});
  if (answer == core::Answer::Cancel) return false;
  if (answer != core::Answer::Yes) return true;
  // Without a committer the yes can't be kept; closing would throw the
  // names away against the user's answer. The window always wires one.
  if (closing.committer == nullptr) return false;
  try {
    closing.committer->CommitAll();
  } catch (const base::RuntimeFault& fault) {
    // The window stays open with what wasn't renamed still in the list.
    closing.frontEnd.ShowFault(fault.what());
    return false;
  }
  return true;
}

}  // namespace

CloseDecision AskBeforeClose(const ClosingList& closing, bool recordingRuns,
                             const std::function<void()>& stopRecording) {
  if (!RecordingAllowsClose(closing.frontEnd, recordingRuns, stopRecording)) return CloseDecision::Refuse;
  return PendingNamesAllowClose(closing) ? CloseDecision::Close : CloseDecision::Refuse;
}

CloseDecision RunCloseSequence(const MainWindowSettings& settings, const ClosingList& closing,
                               const core::ListOptions& options, const formats::IniFile& settingsFile,
                               bool recordingRuns, const std::function<void()>& stopRecording) {
  WriteLayoutOnClose(settings, settingsFile);
  if (!RecordingAllowsClose(closing.frontEnd, recordingRuns, stopRecording)) return CloseDecision::Refuse;
  const bool close = PendingNamesAllowClose(closing);
  WriteSettingsOnClose(settings, options, settingsFile);
  return close ? CloseDecision::Close : CloseDecision::Refuse;
}

}  // namespace nomra::shell
