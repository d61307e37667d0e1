#include "script/ScriptPlayback.h"

#include <filesystem>
#include <limits>
#include <system_error>

#include "base/Fault.h"
#include "base/Helpers.h"
#include "rename/ActionFrame.h"
#include "rename/BuiltInActions.h"
#include "script/ScriptFiles.h"
#include "settings/IniFile.h"

namespace nomra {

namespace {

constexpr int kFirstStepType = 1;
constexpr int kLastStepType = 10;
constexpr int kNoScriptStatusText = 5;

bool FileExists(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

// A Type that is no number counts as a missing one.
long ReadStepType(const ScriptSession& session) {
  try {
    return settings::ReadIniInt(std::to_string(session.runStep), kScriptTypeKey, session.runPath);
  } catch (const RuntimeFault&) {
    return -1;
  }
}

void PlaySteps(ScriptSession& session, const StepOpener& openStep) {
  if (session.runPath.empty() || session.runMode == 0) return;
  const long steps = settings::ReadIniInt(kScriptMainSection, kScriptStepsKey, session.runPath);
  // The step counter is a 16-bit number: no script goes beyond 32767 steps.
  const long last = std::min<long>(steps, std::numeric_limits<std::int16_t>::max());
  for (long step = 1; step <= last; ++step) {
    session.runStep = static_cast<std::int16_t>(step);
    const long type = ReadStepType(session);
    if (type >= kFirstStepType && type <= kLastStepType) openStep(static_cast<int>(type));
  }
}

}  // namespace

void PlayScript(ScriptSession& session, const StepOpener& openStep) {
  try {
    PlaySteps(session, openStep);
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
  if (!fileName.empty() && FileExists(session.runPath)) {
    session.runMode = 1;
    PlayScript(session, openStep);
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
  if (!FileExists(session.runPath)) session.runPath = ScriptFolder(session.dataFolder) + name;
  if (!FileExists(session.runPath)) return false;
  session.runMode = 1;
  PlayScript(session, openStep);
  return true;
}

}  // namespace nomra
