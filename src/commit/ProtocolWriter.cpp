#include "commit/ProtocolWriter.h"

#include <cerrno>

#include "base/DateText.h"

namespace nomra::commit {

std::string ProtocolRecord(const std::tm& when, std::string_view folder, std::string_view oldName,
                           std::string_view newName) {
  std::string record = base::FormatTimeStamp(when);
  record.append("\"").append(folder).append("\"").append(oldName).append("\"").append(newName).append("\r\n");
  return record;
}

int ProtocolWriter::Open(const std::string& path) {
  Close();
  if (path.empty()) return ENOENT;
  int error = 0;
  file_ = fileSystem_.OpenForAppend(path, error);
  return error;
}

void ProtocolWriter::Write(const std::tm& when, std::string_view folder, std::string_view oldName,
                           std::string_view newName) {
  // A full disk or a vanished data folder loses the record, not the rename.
  if (file_) file_->Write(ProtocolRecord(when, folder, oldName, newName));
}

}  // namespace nomra::commit
