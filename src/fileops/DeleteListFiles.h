#pragma once
#include "core/ListContext.h"
#include "fileops/OperationServices.h"

namespace nomra::fileops {

// mnuDeleteFiles1 (to the trash) and mnuDeleteFiles2 (at once), expert mode
// only: the files of the rows in the apply scope are deleted after the
// user's yes; then each row whose file is gone leaves the list, and the
// list is refreshed. A cancelled or partly failed deletion leaves the rows
// whose files are still there. False when expert mode is off.
bool DeleteListFiles(const core::ListContext& context, bool expertMode, bool toTrash, OperationServices& services);

}  // namespace nomra::fileops
