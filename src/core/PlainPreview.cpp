#include "core/PlainPreview.h"

#include <optional>

#include "core/BusyPointer.h"
#include "core/RefreshList.h"

namespace nomra::core {

void PlainPreview::Refresh() {
  {
    // Sorting a long list takes a moment.
    std::optional<BusyPointer> busy;
    if (!state_.list.Empty()) busy.emplace(frontEnd_);
    RefreshList(state_);
  }
  frontEnd_.SetStatusText(ListSummaryText(texts_, state_));
}

}  // namespace nomra::core
