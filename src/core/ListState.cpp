#include "core/ListState.h"

namespace nomra::core {

bool InScope(int applyScope, const FileEntry& row) {
  switch (applyScope) {
    case kScopeAll: return true;
    case kScopeSelected: return row.selected;
    case kScopeUnselected: return !row.selected;
    default: return false;
  }
}

bool InScope(const ListState& state, int position) { return InScope(state.applyScope, state.list.Item(position)); }

}  // namespace nomra::core
