#include "script/ScriptPlayback.h"

#include <limits>
#include <system_error>

#include "base/Fault.h"
#include "base/Quoting.h"
#include "rename/ActionFrame.h"
#include "rename/actions/BuiltInActions.h"
#include "script/ScriptFiles.h"
#include "formats/IniFile.h"

namespace nomra {

namespace {

constexpr int kFirstStepType = 1;
constexpr int kLastStepType = 10;
constexpr int kNoScriptStatusText = 5;

bool FileExists(platform::FileSystem& fileSystem, const std::string& path) {
  return fileSystem.Status(path).kind == platform::EntryKind::File;
}

// A Type that is no number counts as a missing one.
long ReadStepType(const ScriptSession& session, const formats::IniFile& script) {
  try {
    return script.ReadInt(std::to_string(session.runStep), kScriptTypeKey);
  } catch (const RuntimeFault&) {
    return -1;
  }
}

void PlaySteps(ScriptSession& session, platform::FileSystem& fileSystem, const StepOpener& openStep) {
  if (session.runPath.empty() || session.runMode == 0) return;
  const formats::IniFile script(fileSystem, session.runPath);
  const long steps = script.ReadInt(kScriptMainSection, kScriptStepsKey);
  // The step counter is a 16-bit number: no script goes beyond 32767 steps.
  const long last = std::min<long>(steps, std::numeric_limits<std::int16_t>::max());
  for (long step = 1; step <= last; ++step) {
    session.runStep = static_cast<std::int16_t>(step);
    const long type = ReadStepType(session, script);
    if (type >= kFirstStepType && type <= kLastStepType) openStep(static_cast<int>(type));
  }
}

}  // namespace

void PlayScript(ScriptSession& session, platform::FileSystem& fileSystem, const StepOpener& openStep) {
  try {
    PlaySteps(session, fileSystem, openStep);
  } catch (...) {
    session.runMode = 0;
    session.runPath.clear();
    throw;
  }
  session.runMode = 0;
  session.runPath.clear();
}

void PlayStepWithoutWindow(MainModel& model, int stepType) {
  const std::unique_ptr<ActionDialog> dialog = CreateActionDialog(stepType);
  if (dialog) PlayActionWithoutWindow(*dialog, model);
}

bool RunSelectedScript(MainModel& model, std::string_view fileName, const StepOpener& openStep) {
  ScriptSession& session = model.script;
  session.runPath = ScriptFolder(session.dataFolder) + std::string(fileName);
  if (!fileName.empty() && FileExists(model.fileSystem, session.runPath)) {
    session.runMode = 1;
    PlayScript(session, model.fileSystem, openStep);
    return true;
  }
  model.selectedScriptLabel = model.statusTexts[kNoScriptStatusText];
  session.runPath.clear();
  return false;
}

bool RunScriptArgument(MainModel& model, std::string_view text, const StepOpener& openStep) {
  ScriptSession& session = model.script;
  const std::string name = WithoutDoubleQuotes(text);
  session.runPath = name;
  if (!FileExists(model.fileSystem, session.runPath)) session.runPath = ScriptFolder(session.dataFolder) + name;
  if (!FileExists(model.fileSystem, session.runPath)) return false;
  session.runMode = 1;
  PlayScript(session, model.fileSystem, openStep);
  return true;
}

}  // namespace nomra
