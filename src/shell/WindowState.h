#pragma once
#include <string>

#include "shell/CommandState.h"

namespace nomra::shell {

// What the main window shows beside the list, computed by its refresh.
struct WindowState {
  CommandState commands;              // which commands are enabled
  std::string selectedScriptLabel;    // the label of the script bar's selected script
  bool scriptMenuHasEntries = false;  // stored scripts exist, so one can be played at once
  // The variant of the removal button: "", "DelList1" to "DelList5".
  std::string delListTag;
};

}  // namespace nomra::shell
