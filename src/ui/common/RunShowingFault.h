#pragma once
#include <functional>

#include "core/FrontEnd.h"

namespace nomra::ui {

// Runs the work; a RuntimeFault it throws ends it there and is shown through
// the front end. False when a fault was shown.
bool RunShowingFault(core::FrontEnd& frontEnd, const std::function<void()>& work);

}  // namespace nomra::ui
