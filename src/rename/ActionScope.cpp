#include "rename/ActionScope.h"

#include "base/Fault.h"
#include "base/MessageText.h"
#include "core/BusyPointer.h"
#include "core/RefreshPreview.h"

namespace nomra {

namespace {

constexpr int kRowStatusText = 6;

// "Row 3 of 10, IMG_0003.jpg: " ahead of what went wrong.
std::string RowOfFault(int row, int count, const std::string& name, std::string_view what) {
  return "Row " + std::to_string(row) + " of " + std::to_string(count) + ", " + name + ": " + std::string(what);
}

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
  int row = 1;
  try {
    for (; row <= count; ++row) {
      model.frontEnd.SetStatusText(
          FormatMessage(model.statusTexts[kRowStatusText], {std::to_string(row), countText}));
      if (!InScope(model, row)) continue;
      FileEntry& entry = model.list.Item(row);
      entry[kColNewName] = newName(row, entry);
    }
  } catch (const RuntimeFault& fault) {
    // The rows done so far keep their names and show them; the message says
    // where the action stopped.
    const std::string name = model.list.Item(row)[kColOldName];
    refreshPreview(model);
    throw RuntimeFault(RowOfFault(row, count, name, fault.what()));
  } catch (...) {
    refreshPreview(model);
    throw;
  }
  refreshPreview(model);
}

}  // namespace nomra
