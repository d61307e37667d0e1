#include "commit/ProtocolWriter.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace nomra {

namespace {

void PutDigits(std::string& out, int value, int width) {
  std::string digits(static_cast<std::size_t>(width), '0');
  for (int i = width - 1; i >= 0 && value > 0; --i) {
    digits[static_cast<std::size_t>(i)] = static_cast<char>('0' + value % 10);
    value /= 10;
  }
  out += digits;
}

}  // namespace

std::string ProtocolTime(const std::tm& when) {
  std::string out;
  out.reserve(14);
  PutDigits(out, when.tm_year + 1900, 4);
  PutDigits(out, when.tm_mon + 1, 2);
  PutDigits(out, when.tm_mday, 2);
  PutDigits(out, when.tm_hour, 2);
  PutDigits(out, when.tm_min, 2);
  PutDigits(out, when.tm_sec, 2);
  return out;
}

std::string ProtocolRecord(const std::tm& when, std::string_view folder, std::string_view oldName,
                           std::string_view newName) {
  std::string record = ProtocolTime(when);
  record.append("\"").append(folder).append("\"").append(oldName).append("\"").append(newName).append("\r\n");
  return record;
}

ProtocolWriter::~ProtocolWriter() { Close(); }

int ProtocolWriter::Open(const std::string& path) {
  Close();
  if (path.empty()) return ENOENT;
  fd_ = open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
  return fd_ >= 0 ? 0 : errno;
}

void ProtocolWriter::Write(const std::tm& when, std::string_view folder, std::string_view oldName,
                           std::string_view newName) {
  if (fd_ < 0) return;
  const std::string record = ProtocolRecord(when, folder, oldName, newName);
  std::size_t written = 0;
  while (written < record.size()) {
    const ssize_t n = write(fd_, record.data() + written, record.size() - written);
    if (n < 0 && errno == EINTR) continue;
    // A full disk or a vanished data folder loses the record, not the rename.
    if (n <= 0) return;
    written += static_cast<std::size_t>(n);
  }
}

void ProtocolWriter::Close() {
  if (fd_ >= 0) close(fd_);
  fd_ = -1;
}

}  // namespace nomra
