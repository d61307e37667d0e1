#pragma once
#include <string>
#include <vector>

#include "fileops/OperationServices.h"

namespace nomra::fileops {

struct TransferPair {
  std::string from;
  std::string to;
};

struct TransferOutcome {
  int result = 0;        // 0, or the errno of the first file that failed
  bool aborted = false;  // the user stopped before every file was handled
  // Per pair: where its file stands now, "" when it wasn't put anywhere.
  std::vector<std::string> placed;
  // Files that landed under another name than asked for, with that name.
  std::vector<TransferPair> renamed;
};

// Copies or moves each file to its target, one after the other, with the
// progress told before each file and the user's stop honoured between
// them. A taken target is asked about (replace, keep both, skip, stop, and
// the same for all); with `renameOnCollision` the file is kept beside the
// other at once. A copy onto itself is kept beside itself, a move onto
// itself does nothing. After a failure the user is told why and asked
// whether to go on.
TransferOutcome TransferFiles(OperationKind kind, const std::vector<TransferPair>& pairs, bool renameOnCollision,
                              OperationServices& services);

}  // namespace nomra::fileops
