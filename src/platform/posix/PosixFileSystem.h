#pragma once
#include <string>
#include <unordered_map>

#include "platform/FileSystem.h"

namespace nomra::platform {

class PosixFileSystem final : public FileSystem {
 public:
  FileStatus Status(const std::string& path) override;
  std::string AbsolutePath(const std::string& path) override;
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override;
  bool IsCaseInsensitiveFolder(const std::string& folder) override;
  RenameResult RenameNoReplace(const std::string& from, const std::string& to) override;
  bool ConfirmRenamed(const std::string& from, const std::string& to) override;

 private:
  bool CaseRuleOf(const std::string& folder);

  std::unordered_map<std::string, bool> caseRuleByFolder_;
  std::string lastFolder_;
  std::string trustFolder_;
  bool trustRename_ = false;
  bool lastAnswer_ = false;
};

// Whether the kernel's rename on this folder's volume can be taken at its
// word: ext4, xfs, btrfs and tmpfs.
bool KernelRenameIsTrusted(const std::string& folder);

// The folder probe itself, without memory: file system type, then the
// casefold attribute, then, on FUSE mounts, a look-up with flipped case.
bool ProbeCaseInsensitiveFolder(const std::string& folder);

// Lexical normalisation: joins to the working folder when relative, drops
// "." and empty parts, and lets ".." take away the part before it.
std::string NormalizeAbsolutePath(const std::string& path, const std::string& workingFolder);

}  // namespace nomra::platform
