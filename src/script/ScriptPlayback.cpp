#include "script/ScriptPlayback.h"

#include <limits>
#include <system_error>

#include "actions/BuiltInActions.h"
#include "base/Fault.h"
#include "base/Quoting.h"
#include "formats/IniFile.h"
#include "rename/ActionFrame.h"
#include "script/ScriptFiles.h"

namespace nomra::script {

namespace {

constexpr int kFirstStepType = 1;
constexpr int kLastStepType = 10;

bool FileExists(platform::FileSystem& fileSystem, const std::string& path) {
  return fileSystem.Status(path).kind == platform::EntryKind::File;
}

// A Type that is no number counts as a missing one.
long ReadStepType(const dialog::ScriptSession& session, const formats::IniFile& script) {
  try {
    return script.ReadInt(std::to_string(session.runStep), kScriptTypeKey);
  } catch (const base::RuntimeFault&) {
    return -1;
  }
}

void PlaySteps(dialog::ScriptSession& session, platform::FileSystem& fileSystem, const StepOpener& openStep) {
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

void PlayScript(dialog::ScriptSession& session, platform::FileSystem& fileSystem, const StepOpener& openStep) {
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

void PlayStepWithoutWindow(const rename::ActionContext& context, int stepType) {
  const std::unique_ptr<rename::ActionDialog> dialog = actions::CreateActionDialog(stepType);
  if (dialog) rename::PlayActionWithoutWindow(*dialog, context);
}

bool RunSelectedScript(dialog::ScriptSession& session, platform::FileSystem& fileSystem, std::string_view fileName,
                       const StepOpener& openStep) {
  session.runPath = ScriptFolder(session.dataFolder) + std::string(fileName);
  if (!fileName.empty() && FileExists(fileSystem, session.runPath)) {
    session.runMode = 1;
    PlayScript(session, fileSystem, openStep);
    return true;
  }
  session.runPath.clear();
  return false;
}

bool RunScriptArgument(dialog::ScriptSession& session, platform::FileSystem& fileSystem, std::string_view text,
                       const StepOpener& openStep) {
  const std::string name = base::WithoutDoubleQuotes(text);
  session.runPath = name;
  if (!FileExists(fileSystem, session.runPath)) session.runPath = ScriptFolder(session.dataFolder) + name;
  if (!FileExists(fileSystem, session.runPath)) return false;
  session.runMode = 1;
  PlayScript(session, fileSystem, openStep);
  return true;
}

}  // namespace nomra::script
