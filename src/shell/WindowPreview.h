#pragma once
#include "core/FrontEnd.h"
#include "core/ListState.h"
#include "core/Preview.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "shell/WindowState.h"

namespace nomra::shell {

// The window's part of a refresh, after the list's: the selected-script
// label of an empty list and the command states.
void RefreshWindowState(WindowState& window, const core::ListState& state, const dialog::ScriptSession& script,
                        const core::StatusTexts& texts);

// The preview of the main window: the list's refresh, the status text, then
// the window's state. The window repaints its views after it.
class WindowPreview : public core::Preview {
 public:
  WindowPreview(core::ListState& state, WindowState& window, const dialog::ScriptSession& script,
                core::FrontEnd& frontEnd, const core::StatusTexts& texts)
      : state_(state), window_(window), script_(script), frontEnd_(frontEnd), texts_(texts) {}
  void Refresh() override;

 private:
  core::ListState& state_;
  WindowState& window_;
  const dialog::ScriptSession& script_;
  core::FrontEnd& frontEnd_;
  const core::StatusTexts& texts_;
};

}  // namespace nomra::shell
