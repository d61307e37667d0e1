#include "script/ScriptRecording.h"

#include <system_error>

#include "base/DateText.h"
#include "base/Trim.h"
#include "formats/IniFile.h"
#include "formats/IniLines.h"
#include "lang/MessageKeys.h"
#include "script/ScriptFiles.h"
#include "settings/CompactIniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::script {

namespace {

std::string DateTimeText(const std::tm& moment) {
  std::tm copy = moment;
  return base::FormatListDate(std::mktime(&copy));
}

// The name the user gives, or nothing when the recording is discarded.
std::optional<std::string> AskScriptName(core::FrontEnd& frontEnd, const base::LocalClock& clock) {
  for (;;) {
    std::string answer =
        frontEnd.AskInput({lang::kScriptNamePrompt, lang::kSaveScriptCaption, core::MessageStyle::OkInformation, {}},
                          DateTimeText(clock()));
    if (!base::TrimBlanks(answer).empty()) return answer;
    const core::Answer discard = frontEnd.Ask(
        {lang::kDiscardRecordingQuestion, lang::kSaveScriptCaption, core::MessageStyle::YesNoDefaultNo, {}});
    if (discard == core::Answer::Yes) return std::nullopt;
  }
}

// Two scripts stored within one second would share a name: the later one
// takes the next free second, so that none replaces another.
bool MoveIntoScriptFolder(const dialog::ScriptSession& session, platform::FileSystem& fileSystem,
                          const std::string& folder, const base::LocalClock& clock) {
  std::tm moment = clock();
  for (int attempt = 0; attempt < 3600; ++attempt) {
    const platform::RenameResult result = fileSystem.RenameNoReplace(session.tempPath, folder + ScriptFileName(moment));
    if (result.ok) return true;
    if (result.error != EEXIST) return false;
    ++moment.tm_sec;
    std::mktime(&moment);
  }
  return false;
}

}  // namespace

void ResetScriptTemp(dialog::ScriptSession& session, platform::FileSystem& fileSystem) {
  session.tempPath = session.dataFolder + settings::kScriptTempFileName;
  fileSystem.RemoveFile(session.tempPath);
  session.recording = 0;
}

void BeginScriptRecording(dialog::ScriptSession& session, platform::FileSystem& fileSystem) {
  session.recording = 1;
  formats::IniFile(fileSystem, session.tempPath).Write(kScriptMainSection, kScriptStepsKey, 0L);
}

bool EndScriptRecording(dialog::ScriptSession& session, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd,
                        const base::LocalClock& clock) {
  session.recording = 0;
  const std::string folder = ScriptFolder(session.dataFolder);
  fileSystem.MakeFolder(folder, 0777);

  const formats::IniFile recorded(fileSystem, session.tempPath);
  if (recorded.ReadInt(kScriptMainSection, kScriptStepsKey) <= 0) return false;
  const std::optional<std::string> name = AskScriptName(frontEnd, clock);
  if (!name) return false;
  recorded.Write(kScriptMainSection, kScriptNameKey, *name);
  settings::CompactIniFile(fileSystem, session.tempPath, session.dataFolder);
  if (!MoveIntoScriptFolder(session, fileSystem, folder, clock)) {
    frontEnd.ShowFault("The script could not be stored in " + folder + "; the recording stays in " + session.tempPath +
                       ".");
    return false;
  }
  return true;
}

}  // namespace nomra::script
