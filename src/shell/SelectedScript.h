#pragma once
#include <string_view>

#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"
#include "script/ScriptPlayback.h"
#include "shell/WindowState.h"

namespace nomra::shell {

// The "RunSelectedScript" button of the script bar: plays the script of
// that file name in the scripts folder; when there is none (deleted
// meanwhile, or none chosen), the selected-script label says so and nothing
// plays. True when it played.
bool PlaySelectedScript(WindowState& window, const core::StatusTexts& texts, dialog::ScriptSession& session,
                        platform::FileSystem& fileSystem, std::string_view fileName,
                        const script::StepOpener& openStep);

}  // namespace nomra::shell
