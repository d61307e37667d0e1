#pragma once
#include <string>

#include "platform/FileSystem.h"
#include "platform/posix/NoReplaceRename.h"
#include "platform/posix/PosixFileSystem.h"

namespace nomra::testing {

// The real file system; a test overrides the one call it wants to bend.
class ForwardingFileSystem : public platform::FileSystem {
 public:
  using platform::FileSystem::ReadFile;

  platform::FileStatus Status(const std::string& path) override { return real.Status(path); }
  platform::FileStatus Inspect(const std::string& path) override { return real.Inspect(path); }
  platform::FileProperties Properties(const std::string& path) override { return real.Properties(path); }
  std::string AbsolutePath(const std::string& path) override { return real.AbsolutePath(path); }
  std::string ResolveLink(const std::string& path) override { return real.ResolveLink(path); }
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override {
    return real.ListFolder(folder, visit);
  }
  bool IsCaseInsensitiveFolder(const std::string& folder) override { return real.IsCaseInsensitiveFolder(folder); }
  bool MayWriteFile(const std::string& path) override { return real.MayWriteFile(path); }
  bool MayWriteInFolder(const std::string& folder) override { return real.MayWriteInFolder(folder); }

  platform::RenameResult RenameNoReplace(const std::string& from, const std::string& to) override {
    return real.RenameNoReplace(from, to);
  }
  // A test may bend the rename, so its word is never trusted: the disk is
  // always looked at.
  bool ConfirmRenamed(const std::string& from, const std::string& to) override {
    return platform::ConfirmRename(from, to);
  }
  int RenameReplacing(const std::string& from, const std::string& to) override {
    return real.RenameReplacing(from, to);
  }
  int RemoveFile(const std::string& path) override { return real.RemoveFile(path); }
  int MakeFolder(const std::string& path, unsigned mode) override { return real.MakeFolder(path, mode); }
  int MakeFolderPath(const std::string& path) override { return real.MakeFolderPath(path); }

  std::optional<std::string> ReadFile(const std::string& path, int& error) override {
    return real.ReadFile(path, error);
  }
  std::unique_ptr<platform::InputFile> OpenForReading(const std::string& path, int& error) override {
    return real.OpenForReading(path, error);
  }
  int WriteNewFile(const std::string& path, std::string_view content) override {
    return real.WriteNewFile(path, content);
  }
  int WriteFile(const std::string& path, std::string_view content, const std::string& permissionsFrom) override {
    return real.WriteFile(path, content, permissionsFrom);
  }
  int ReplaceFile(const std::string& path, std::string_view content) override {
    return real.ReplaceFile(path, content);
  }
  int CopyFile(const std::string& from, const std::string& to, const platform::CopyTick& tick, bool durable) override {
    return real.CopyFile(from, to, tick, durable);
  }
  std::unique_ptr<platform::OpenFile> OpenForAppend(const std::string& path, int& error) override {
    return real.OpenForAppend(path, error);
  }

  int SetTimes(const std::string& path, std::optional<std::time_t> accessed,
               std::optional<std::time_t> modified) override {
    return real.SetTimes(path, accessed, modified);
  }
  int SetReadOnly(const std::string& path, bool readOnly) override { return real.SetReadOnly(path, readOnly); }

  std::unique_ptr<platform::OpenFile> CreateLockedDraft(const std::string& path, std::string& draftPath,
                                                        int& error) override {
    return real.CreateLockedDraft(path, draftPath, error);
  }
  platform::ExistingLock LockExisting(const std::string& path) override { return real.LockExisting(path); }
  int SyncFolder(const std::string& folder) override { return real.SyncFolder(folder); }

 protected:
  platform::PosixFileSystem real;
};

// Every folder answers as a FAT card would: names compare without regard to case.
class CaseInsensitiveFileSystem final : public ForwardingFileSystem {
 public:
  bool IsCaseInsensitiveFolder(const std::string&) override { return true; }
};

}  // namespace nomra::testing
