#pragma once
#include "fileops/OperationSystem.h"

namespace nomra::fileops {

// The file operations' system calls on Linux.
class PosixOperationSystem final : public OperationSystem {
 public:
  EntryInfo Inspect(const std::string& path) override;
  int CopyFile(const std::string& from, const std::string& to, const CopyTick& tick, bool durable) override;
  int Rename(const std::string& from, const std::string& to, bool replace) override;
  int RemoveFile(const std::string& path) override;
  int MakeFolder(const std::string& path, unsigned mode) override;
  int WriteNewFile(const std::string& path, std::string_view content) override;
  bool ListFolder(const std::string& folder, const std::function<void(std::string_view name)>& visit) override;
  std::string DataHome() override;
  unsigned UserId() override;
};

}  // namespace nomra::fileops
