#pragma once
#include <cerrno>
#include <string>
#include <vector>

#include "support/ForwardingFileSystem.h"

namespace nomra::testing {

// The real file system with permissions that the test sets instead of the
// disk: a folder that can't be listed, a folder in which nothing may be
// made or removed, a file that can't be read or written. The calls fail as
// the kernel would fail them for a user without the right, so the failure
// paths run the same for root (who ignores permission bits) as for anyone.
class FaultyFileSystem final : public ForwardingFileSystem {
 public:
  // Nothing in the folder can be listed, read, written or made, as a folder
  // with no permissions at all.
  void LockFolder(const std::string& folder) { locked_.push_back(AsFolder(folder)); }
  // The folder's entries stay as they are: nothing is made, removed or
  // renamed directly in it. Its files may still be read and written in place.
  void MakeFolderReadOnly(const std::string& folder) { readOnlyFolders_.push_back(AsFolder(folder)); }
  void MakeFileReadOnly(const std::string& path) { readOnlyFiles_.push_back(path); }
  void MakeFileUnreadable(const std::string& path) { unreadable_.push_back(path); }
  // Every write of a file's content fails as on a full disk.
  void FillDisk() { full_ = true; }

  // How many calls were refused, so a test sees that the fault was met.
  int refused = 0;

  std::optional<std::string> ReadFile(const std::string& path, int& error) override {
    if (const int fault = ReadFault(path)) {
      error = Refuse(fault);
      return std::nullopt;
    }
    return real.ReadFile(path, error);
  }
  std::unique_ptr<platform::InputFile> OpenForReading(const std::string& path, int& error) override {
    if (const int fault = ReadFault(path)) {
      error = Refuse(fault);
      return nullptr;
    }
    return real.OpenForReading(path, error);
  }
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override {
    if (IsLocked(AsFolder(folder))) return Refuse(false);
    return real.ListFolder(folder, visit);
  }
  // Asking is not writing: a full disk still says yes.
  bool MayWriteFile(const std::string& path) override {
    if (IsLocked(path) || Holds(readOnlyFiles_, path)) return Refuse(false);
    return real.MayWriteFile(path);
  }
  bool MayWriteInFolder(const std::string& folder) override {
    if (IsLocked(AsFolder(folder)) || IsReadOnlyFolder(AsFolder(folder))) return Refuse(false);
    return real.MayWriteInFolder(folder);
  }
  platform::RenameResult RenameNoReplace(const std::string& from, const std::string& to) override {
    if (EntryFault(from) || EntryFault(to)) return Refuse(platform::RenameResult{false, EACCES});
    return real.RenameNoReplace(from, to);
  }
  int RenameReplacing(const std::string& from, const std::string& to) override {
    if (const int fault = EntryFault(from) ? EntryFault(from) : EntryFault(to)) return Refuse(fault);
    return real.RenameReplacing(from, to);
  }
  int RemoveFile(const std::string& path) override {
    if (const int fault = EntryFault(path)) return Refuse(fault);
    return real.RemoveFile(path);
  }
  int MakeFolder(const std::string& path, unsigned mode) override {
    if (const int fault = EntryFault(path)) return Refuse(fault);
    return real.MakeFolder(path, mode);
  }
  int MakeFolderPath(const std::string& path) override {
    // Each missing level is made in the one above it.
    std::string level;
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1)) {
      level = path.substr(0, slash);
      if (real.Inspect(level).kind == platform::EntryKind::Missing) {
        if (const int fault = EntryFault(level)) return Refuse(fault);
      }
    }
    if (real.Inspect(path).kind == platform::EntryKind::Missing) {
      if (const int fault = EntryFault(path)) return Refuse(fault);
    }
    return real.MakeFolderPath(path);
  }
  int WriteNewFile(const std::string& path, std::string_view content) override {
    if (const int fault = NewFileFault(path)) return Refuse(fault);
    return real.WriteNewFile(path, content);
  }
  int WriteFile(const std::string& path, std::string_view content, const std::string& permissionsFrom) override {
    if (const int fault = ReplaceFault(path)) return Refuse(fault);
    return real.WriteFile(path, content, permissionsFrom);
  }
  int ReplaceFile(const std::string& path, std::string_view content) override {
    if (const int fault = ReplaceFault(path)) return Refuse(fault);
    return real.ReplaceFile(path, content);
  }
  int CopyFile(const std::string& from, const std::string& to, const platform::CopyTick& tick, bool durable) override {
    if (const int fault = ReadFault(from) ? ReadFault(from) : NewFileFault(to)) return Refuse(fault);
    return real.CopyFile(from, to, tick, durable);
  }
  std::unique_ptr<platform::OpenFile> OpenForAppend(const std::string& path, int& error) override {
    const bool exists = real.Inspect(path).kind != platform::EntryKind::Missing;
    if (const int fault = exists ? WriteFault(path) : NewFileFault(path)) {
      error = Refuse(fault);
      return nullptr;
    }
    return real.OpenForAppend(path, error);
  }
  std::unique_ptr<platform::OpenFile> CreateLockedDraft(const std::string& path, std::string& draftPath,
                                                        int& error) override {
    if (const int fault = NewFileFault(path)) {
      error = Refuse(fault);
      return nullptr;
    }
    return real.CreateLockedDraft(path, draftPath, error);
  }

 private:
  static std::string AsFolder(std::string folder) {
    if (folder.empty() || folder.back() != '/') folder += '/';
    return folder;
  }
  static std::string ParentOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/', path.size() > 1 ? path.size() - 2 : 0);
    return slash == std::string::npos ? std::string("/") : path.substr(0, slash + 1);
  }
  bool IsLocked(const std::string& folderOrPath) const {
    for (const std::string& folder : locked_) {
      if (folderOrPath.compare(0, folder.size(), folder) == 0) return true;
    }
    return false;
  }
  bool IsReadOnlyFolder(const std::string& folder) const {
    for (const std::string& readOnly : readOnlyFolders_) {
      if (folder == readOnly) return true;
    }
    return false;
  }
  static bool Holds(const std::vector<std::string>& paths, const std::string& path) {
    for (const std::string& held : paths) {
      if (held == path) return true;
    }
    return false;
  }
  template <typename T>
  T Refuse(T answer) {
    ++refused;
    return answer;
  }
  int ReadFault(const std::string& path) const { return IsLocked(path) || Holds(unreadable_, path) ? EACCES : 0; }
  // Making, removing or renaming the entry itself.
  int EntryFault(const std::string& path) const {
    if (IsLocked(path) || IsReadOnlyFolder(ParentOf(path))) return EACCES;
    return 0;
  }
  // Changing the content of a file that is there.
  int WriteFault(const std::string& path) const {
    if (IsLocked(path) || Holds(readOnlyFiles_, path)) return EACCES;
    if (full_) return ENOSPC;
    return 0;
  }
  // Replacing a file goes through a new file beside it, so the folder must
  // let one be made, and the file itself must be writable.
  int ReplaceFault(const std::string& path) const {
    if (const int fault = WriteFault(path)) return fault;
    return EntryFault(path);
  }
  int NewFileFault(const std::string& path) const {
    if (const int fault = EntryFault(path)) return fault;
    return full_ ? ENOSPC : 0;
  }

  std::vector<std::string> locked_;
  std::vector<std::string> readOnlyFolders_;
  std::vector<std::string> readOnlyFiles_;
  std::vector<std::string> unreadable_;
  bool full_ = false;
};

}  // namespace nomra::testing
