#pragma once
#include <functional>
#include <string>

#include "core/FileEntry.h"
#include "core/ListState.h"
#include "rename/ActionContext.h"

namespace nomra::rename {

// The walk every action makes: the busy pointer, the status text for every
// row (in scope or not, so the count runs through the whole list), the new
// pending name of each row in scope, then the preview refresh. A fault
// thrown by `newName` ends the walk at that row; rows before it keep what
// they got, and the preview is refreshed all the same.
using PendingNameRewrite = std::function<std::string(int row, core::FileEntry& entry)>;
void RewritePendingNames(const ActionContext& context, const PendingNameRewrite& newName);

}  // namespace nomra::rename
