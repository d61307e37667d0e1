#include "shell/SelectedScript.h"

namespace nomra::shell {

bool PlaySelectedScript(WindowState& window, const core::StatusTexts& texts, dialog::ScriptSession& session,
                        platform::FileSystem& fileSystem, std::string_view fileName,
                        const script::StepOpener& openStep) {
  if (script::RunSelectedScript(session, fileSystem, fileName, openStep)) return true;
  window.selectedScriptLabel = texts.noScript;
  return false;
}

}  // namespace nomra::shell
