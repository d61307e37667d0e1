#pragma once
#include <ctime>
#include <memory>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace nomra::commit {

// One line of the rename protocol: time, folder (ending with the separator),
// old name and new name joined by double quotes, without quoting or
// escaping, ended by CR LF. Names keep their bytes.
std::string ProtocolRecord(const std::tm& when, std::string_view folder, std::string_view oldName,
                           std::string_view newName);

// The rename protocol ("renamed.nrp" in the data folder), open for one commit.
class ProtocolWriter {
 public:
  explicit ProtocolWriter(platform::FileSystem& fileSystem) : fileSystem_(fileSystem) {}
  ProtocolWriter(const ProtocolWriter&) = delete;
  ProtocolWriter& operator=(const ProtocolWriter&) = delete;

  // Opens for appending, creating the file when missing. Returns 0, or the
  // errno of the failure; then nothing is written.
  int Open(const std::string& path);
  bool IsOpen() const { return file_ != nullptr; }

  // Appends one record in a single write, so it is in the file at once, even
  // if the program dies before the next rename.
  void Write(const std::tm& when, std::string_view folder, std::string_view oldName, std::string_view newName);

  void Close() { file_.reset(); }

 private:
  platform::FileSystem& fileSystem_;
  std::unique_ptr<platform::OpenFile> file_;
};

}  // namespace nomra::commit
