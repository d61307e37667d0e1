#pragma once
#include <string>
#include <vector>

#include "fileops/OperationServices.h"

namespace nomra::fileops {

struct DeleteOutcome {
  int result = 0;        // 0, or the errno of the first file that failed
  bool aborted = false;  // the user said no, or stopped before the end
};

// Sends files to the trash, or deletes them at once. With `confirm` the
// user is asked first, for one file by its name, for several by their
// number. A file that can't go to the trash is offered for deleting at once;
// nothing is deleted for good without the user's yes unless the caller
// asked for it. An empty list does nothing and asks nothing.
DeleteOutcome DeleteFiles(const std::vector<std::string>& paths, bool toTrash, bool confirm,
                          OperationServices& services);

}  // namespace nomra::fileops
