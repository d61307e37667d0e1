#include "rename/ActionScope.h"

#include "base/Fault.h"
#include "base/MessageText.h"
#include "core/BusyPointer.h"

namespace nomra::rename {

namespace {

// "Row 3 of 10, IMG_0003.jpg: " ahead of what went wrong.
std::string RowOfFault(int row, int count, const std::string& name, std::string_view what) {
  return "Row " + std::to_string(row) + " of " + std::to_string(count) + ", " + name + ": " + std::string(what);
}

}  // namespace

void RewritePendingNames(const ActionContext& context, const PendingNameRewrite& newName) {
  core::ListState& state = context.State();
  core::BusyPointer busy(context.User());
  const int count = state.list.Count();
  const std::string countText = std::to_string(count);
  int row = 1;
  try {
    for (; row <= count; ++row) {
      context.User().SetStatusText(base::FormatMessage(context.texts.rowOfCount, {std::to_string(row), countText}));
      if (!core::InScope(state, row)) continue;
      core::FileEntry& entry = state.list.Item(row);
      entry[core::kColNewName] = newName(row, entry);
    }
  } catch (const base::RuntimeFault& fault) {
    // The rows done so far keep their names and show them; the message says
    // where the action stopped.
    const std::string name = state.list.Item(row)[core::kColOldName];
    context.list.preview.Refresh();
    throw base::RuntimeFault(RowOfFault(row, count, name, fault.what()));
  } catch (...) {
    context.list.preview.Refresh();
    throw;
  }
  context.list.preview.Refresh();
}

}  // namespace nomra::rename
