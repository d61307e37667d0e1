#include "fileops/FileListOperations.h"

#include <exception>

#include "fileops/ShellOperation.h"

namespace nomra::fileops {

namespace {

int Transfer(std::uint32_t function, const std::string& sources, const std::string& targets, bool renameOnCollision,
             int& aborted, OperationServices& services) {
  ShellOperation record = TransferRecord(function, sources, targets, renameOnCollision);
  const int result = RunShellOperation(record, services);
  aborted = record.fAnyOperationsAborted ? -1 : 0;
  return result;
}

}  // namespace

int CopyFileList(const std::string& sources, const std::string& targets, bool renameOnCollision, int& aborted,
                 OperationServices& services) {
  return Transfer(FO_COPY, sources, targets, renameOnCollision, aborted, services);
}

int MoveFileList(const std::string& sources, const std::string& targets, bool renameOnCollision, int& aborted,
                 OperationServices& services) {
  return Transfer(FO_MOVE, sources, targets, renameOnCollision, aborted, services);
}

int DeleteFileList(const std::string& paths, bool toRecycleBin, bool confirm, OperationServices& services) {
  ShellOperation record;
  record.wFunc = FO_DELETE;
  record.pFrom = paths;
  record.fFlags = DeleteFlags(toRecycleBin, confirm);
  try {
    return RunShellOperation(record, services);
  } catch (const std::exception&) {
    return 0;
  }
}

}  // namespace nomra::fileops
