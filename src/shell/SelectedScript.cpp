#include "shell/SelectedScript.h"

namespace nomra {

bool PlaySelectedScript(WindowState& window, const StatusTexts& texts, ScriptSession& session,
                        platform::FileSystem& fileSystem, std::string_view fileName, const StepOpener& openStep) {
  if (RunSelectedScript(session, fileSystem, fileName, openStep)) return true;
  window.selectedScriptLabel = texts.noScript;
  return false;
}

}  // namespace nomra
