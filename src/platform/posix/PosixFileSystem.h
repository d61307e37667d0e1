#pragma once
#include <string>
#include <unordered_map>

#include "platform/FileSystem.h"

namespace nomra::platform {

// The file system through POSIX and Linux calls.
class PosixFileSystem final : public FileSystem {
 public:
  FileStatus Status(const std::string& path) override;
  FileStatus Inspect(const std::string& path) override;
  FileProperties Properties(const std::string& path) override;
  std::string AbsolutePath(const std::string& path) override;
  std::string ResolveLink(const std::string& path) override;
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override;
  bool IsCaseInsensitiveFolder(const std::string& folder) override;
  bool MayWriteFile(const std::string& path) override;
  bool MayWriteInFolder(const std::string& folder) override;

  RenameResult RenameNoReplace(const std::string& from, const std::string& to) override;
  bool ConfirmRenamed(const std::string& from, const std::string& to) override;
  int RenameReplacing(const std::string& from, const std::string& to) override;
  int RemoveFile(const std::string& path) override;
  int MakeFolder(const std::string& path, unsigned mode) override;
  int MakeFolderPath(const std::string& path) override;

  using FileSystem::ReadFile;
  std::optional<std::string> ReadFile(const std::string& path, int& error) override;
  std::unique_ptr<InputFile> OpenForReading(const std::string& path, int& error) override;
  int WriteNewFile(const std::string& path, std::string_view content) override;
  int WriteFile(const std::string& path, std::string_view content, const std::string& permissionsFrom) override;
  int ReplaceFile(const std::string& path, std::string_view content) override;
  int CopyFile(const std::string& from, const std::string& to, const CopyTick& tick, bool durable) override;
  std::unique_ptr<OpenFile> OpenForAppend(const std::string& path, int& error) override;

  int SetTimes(const std::string& path, std::optional<std::time_t> accessed,
               std::optional<std::time_t> modified) override;
  int SetReadOnly(const std::string& path, bool readOnly) override;

  std::unique_ptr<OpenFile> CreateLockedDraft(const std::string& path, std::string& draftPath, int& error) override;
  ExistingLock LockExisting(const std::string& path) override;
  int SyncFolder(const std::string& folder) override;

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
