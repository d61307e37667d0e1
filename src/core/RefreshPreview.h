#pragma once

#include "core/MainModel.h"

namespace nomra {

// Brings everything the user sees back in line with the list after any
// change: colours, counts, the pending-name history, folder count, the
// user's sort order, undo levels, command states and the status text.
// Safe with an empty list; never touches the disk.
void refreshPreview(MainModel& model);

}  // namespace nomra
