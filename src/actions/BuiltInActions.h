#pragma once
#include <memory>
#include <vector>

#include "rename/ActionDialog.h"

namespace nomra::actions {

// The action dialog of a script step type, new; nullptr for a type whose
// dialog doesn't exist, which playback passes over.
std::unique_ptr<rename::ActionDialog> CreateActionDialog(int stepType);

// The step types that have a dialog.
std::vector<int> KnownStepTypes();

}  // namespace nomra::actions
