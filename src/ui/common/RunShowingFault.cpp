#include "ui/common/RunShowingFault.h"

#include "base/Fault.h"

namespace nomra::ui {

bool RunShowingFault(core::FrontEnd& frontEnd, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const base::RuntimeFault& fault) {
    frontEnd.ShowFault(fault.what());
    return false;
  }
}

}  // namespace nomra::ui
