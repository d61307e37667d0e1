#pragma once
#include <memory>

#include "ui/rename/ActionDialogWindow.h"

namespace nomra::ui {

// The window of an action dialog by its script step type (which is also the
// number of its menu entry mnuRename01 to mnuRename10); nullptr for a type
// whose dialog doesn't exist yet.
std::unique_ptr<ActionDialogWindow> CreateActionWindow(int stepType, ActionWindowServices services);

// The action dialogs of the menu entries mnuRename01 to mnuRename10.
inline constexpr int kActionMenuEntries = 10;

bool HasActionWindow(int stepType);

// Opens the window modally and returns when it has closed; a type without
// a window does nothing.
void OpenActionWindow(int stepType, const ActionWindowServices& services);

}  // namespace nomra::ui
