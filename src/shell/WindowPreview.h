#pragma once
#include "core/FrontEnd.h"
#include "core/ListState.h"
#include "core/Preview.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "shell/WindowState.h"

namespace nomra {

// The window's part of a refresh, after the list's: the selected-script
// label of an empty list and the command states.
void RefreshWindowState(WindowState& window, const ListState& state, const ScriptSession& script,
                        const StatusTexts& texts);

// The preview of the main window: the list's refresh, the status text, then
// the window's state. The window repaints its views after it.
class WindowPreview : public Preview {
 public:
  WindowPreview(ListState& state, WindowState& window, const ScriptSession& script, FrontEnd& frontEnd,
                const StatusTexts& texts)
      : state_(state), window_(window), script_(script), frontEnd_(frontEnd), texts_(texts) {}
  void Refresh() override;

 private:
  ListState& state_;
  WindowState& window_;
  const ScriptSession& script_;
  FrontEnd& frontEnd_;
  const StatusTexts& texts_;
};

}  // namespace nomra
