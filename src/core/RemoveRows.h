#pragma once
#include <string_view>

#include "core/ListContext.h"
#include "core/RowCommitter.h"

namespace nomra::core {

// Removes the rows named by the variant of the removal button (its Tag):
// "" or "DelList1" all, "DelList2" the selected, "DelList3" the unselected,
// "DelList4" those with a pending change, "DelList5" those without. Where
// pending changes would go, the user is asked once: Yes takes them first
// through `committer`, No drops them, Cancel stops. Ends with a refresh.
// Returns false when the user cancelled or nothing was to be done.
bool deleteFromList(const ListContext& context, RowCommitter* committer, std::string_view variant);

// Removes one row; a pending change is asked about first.
bool btnBarLeftDel1File(const ListContext& context, RowCommitter* committer, int position);

}  // namespace nomra::core
