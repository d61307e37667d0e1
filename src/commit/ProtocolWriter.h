#pragma once
#include <ctime>
#include <string>
#include <string_view>

namespace nomra {

// "yyyymmddhhnnss" of a local time.
std::string ProtocolTime(const std::tm& when);

// One line of the rename protocol: time, folder (ending with the separator),
// old name and new name joined by double quotes, without quoting or
// escaping, ended by CR LF. Names keep their bytes.
std::string ProtocolRecord(const std::tm& when, std::string_view folder, std::string_view oldName,
                           std::string_view newName);

// The rename protocol ("renamed.nrp" in the data folder), open for one commit.
class ProtocolWriter {
 public:
  ProtocolWriter() = default;
  ~ProtocolWriter();
  ProtocolWriter(const ProtocolWriter&) = delete;
  ProtocolWriter& operator=(const ProtocolWriter&) = delete;

  // Opens for appending, creating the file when missing. Returns 0, or the
  // errno of the failure; then nothing is written.
  int Open(const std::string& path);
  bool IsOpen() const { return fd_ >= 0; }

  // Appends one record in a single write, so it is in the file at once, even
  // if the program dies before the next rename.
  void Write(const std::tm& when, std::string_view folder, std::string_view oldName, std::string_view newName);

  void Close();

 private:
  int fd_ = -1;
};

}  // namespace nomra
