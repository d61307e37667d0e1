#include "rename/ActionScope.h"

#include "base/Helpers.h"
#include "core/BusyPointer.h"
#include "core/RefreshPreview.h"

namespace nomra {

namespace {

constexpr int kRowStatusText = 6;

}  // namespace

bool InScope(const MainModel& model, int row) {
  switch (model.applyScope) {
    case 0:
      return true;
    case 1:
      return model.list.Item(row).selected;
    case 2:
      return !model.list.Item(row).selected;
    default:
      return false;
  }
}

void RewritePendingNames(MainModel& model, const PendingNameRewrite& newName) {
  BusyPointer busy(model.frontEnd);
  const int count = model.list.Count();
  const std::string countText = std::to_string(count);
  try {
    for (int row = 1; row <= count; ++row) {
      model.frontEnd.SetStatusText(
          FormatMessage(model.statusTexts[kRowStatusText], {std::to_string(row), countText}));
      if (!InScope(model, row)) continue;
      FileEntry& entry = model.list.Item(row);
      entry[kColNewName] = newName(row, entry);
    }
  } catch (...) {
    // The rows done so far keep their names and show them.
    refreshPreview(model);
    throw;
  }
  refreshPreview(model);
}

}  // namespace nomra
