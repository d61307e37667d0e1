#pragma once
#include <string>

#include "platform/FileSystem.h"
#include "platform/posix/NoReplaceRename.h"
#include "platform/posix/PosixFileSystem.h"

namespace nomra::testing {

// The real file system; a test overrides the one service it wants to bend.
class ForwardingFileSystem : public platform::FileSystem {
 public:
  platform::FileStatus Status(const std::string& path) override { return real.Status(path); }
  std::string AbsolutePath(const std::string& path) override { return real.AbsolutePath(path); }
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override {
    return real.ListFolder(folder, visit);
  }
  bool IsCaseInsensitiveFolder(const std::string& folder) override { return real.IsCaseInsensitiveFolder(folder); }
  platform::RenameResult RenameNoReplace(const std::string& from, const std::string& to) override {
    return real.RenameNoReplace(from, to);
  }
  // A test may bend the rename, so its word is never trusted: the disk is
  // always looked at.
  bool ConfirmRenamed(const std::string& from, const std::string& to) override {
    return platform::ConfirmRename(from, to);
  }

 protected:
  platform::PosixFileSystem real;
};

// Every folder answers as a FAT card would: names compare without regard to case.
class CaseInsensitiveFileSystem final : public ForwardingFileSystem {
 public:
  bool IsCaseInsensitiveFolder(const std::string&) override { return true; }
};

}  // namespace nomra::testing
