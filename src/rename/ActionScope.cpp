#include "rename/ActionScope.h"

#include "base/Fault.h"
#include "base/MessageText.h"
#include "core/BusyPointer.h"

namespace nomra {

namespace {

// "Row 3 of 10, IMG_0003.jpg: " ahead of what went wrong.
std::string RowOfFault(int row, int count, const std::string& name, std::string_view what) {
  return "Row " + std::to_string(row) + " of " + std::to_string(count) + ", " + name + ": " + std::string(what);
}

}  // namespace

void RewritePendingNames(const ActionContext& context, const PendingNameRewrite& newName) {
  ListState& state = context.State();
  BusyPointer busy(context.User());
  const int count = state.list.Count();
  const std::string countText = std::to_string(count);
  int row = 1;
  try {
    for (; row <= count; ++row) {
      context.User().SetStatusText(FormatMessage(context.texts.rowOfCount, {std::to_string(row), countText}));
      if (!InScope(state, row)) continue;
      FileEntry& entry = state.list.Item(row);
      entry[kColNewName] = newName(row, entry);
    }
  } catch (const RuntimeFault& fault) {
    // The rows done so far keep their names and show them; the message says
    // where the action stopped.
    const std::string name = state.list.Item(row)[kColOldName];
    context.list.preview.Refresh();
    throw RuntimeFault(RowOfFault(row, count, name, fault.what()));
  } catch (...) {
    context.list.preview.Refresh();
    throw;
  }
  context.list.preview.Refresh();
}

}  // namespace nomra
