#pragma once
#include <string>

#include "core/ListState.h"
#include "core/StatusTexts.h"

namespace nomra::core {

// Brings the list's state back in line with its rows after any change:
// colours, counts, the history of pending names, the folder count, the
// user's sort order and the undo levels; the status panel's running number
// starts again. Safe with an empty list; never touches the disk.
void RefreshList(ListState& state);

// The status text after a refresh: rows, folders and changed rows.
std::string ListSummaryText(const StatusTexts& texts, const ListState& state);

}  // namespace nomra::core
