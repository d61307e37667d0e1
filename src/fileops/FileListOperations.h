#pragma once
#include <string>

#include "fileops/OperationServices.h"

namespace nomra::fileops {

// Copies the files of the path list `sources` to `targets` (path lists, see
// PathList.h), asking before any file is replaced. Returns 0 when all went
// through, else the errno of the first failure; `aborted` becomes -1 when
// the user stopped before the end, else 0.
int CopyFileList(const std::string& sources, const std::string& targets, bool renameOnCollision, int& aborted,
                 OperationServices& services);

// The same as a move: a rename within a volume, a verified copy and then
// the removal of the source across volumes.
int MoveFileList(const std::string& sources, const std::string& targets, bool renameOnCollision, int& aborted,
                 OperationServices& services);

// Sends the files of the list to the trash, or deletes them at once; with
// `confirm` the user is asked first. A failure that escapes comes back as 0.
int DeleteFileList(const std::string& paths, bool toRecycleBin, bool confirm, OperationServices& services);

}  // namespace nomra::fileops
