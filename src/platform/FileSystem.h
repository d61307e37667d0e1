#pragma once
#include <cstdint>
#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace nomra::platform {

enum class EntryKind {
  Missing,
  File,
  Folder,
  FolderLink,  // a symbolic link to a folder: walked never, so a tree can't loop
  Other,       // devices, sockets, pipes, dangling links
};

struct FileStatus {
  EntryKind kind = EntryKind::Missing;
  std::uint64_t size = 0;
  std::optional<std::time_t> created;   // birth time, where the file system keeps it
  std::optional<std::time_t> modified;  // last write
  int error = 0;                        // errno of a failed query
};

struct RenameResult {
  bool ok = false;
  int error = 0;  // errno of a refused rename; EEXIST when the target is taken
};

// The operating-system services that the list engine needs. The engine sees
// only this interface; tests pass fakes.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Follows symbolic links, as a file manager shows the target.
  virtual FileStatus Status(const std::string& path) = 0;

  // Absolute form of a path, "." and ".." resolved by text; links stay.
  virtual std::string AbsolutePath(const std::string& path) = 0;

  // Visits a folder's entries in the order the file system gives them.
  // Returns false when the folder can't be read.
  using EntryVisitor = std::function<void(std::string_view name, EntryKind kind)>;
  virtual bool ListFolder(const std::string& folder, const EntryVisitor& visit) = 0;

  // Whether names in this folder compare without regard to case (FAT, exFAT,
  // CIFS, casefolded folders). Answers are remembered per folder.
  virtual bool IsCaseInsensitiveFolder(const std::string& folder) = 0;

  // Gives a file a new name, never replacing anything: a taken target fails
  // with EEXIST. Both paths are full paths.
  virtual RenameResult RenameNoReplace(const std::string& from, const std::string& to) = 0;

  // After a rename that reported success: whether `to` now exists under
  // exactly that spelling and `from` no longer does. A file system may say
  // it renamed and have changed nothing.
  virtual bool ConfirmRenamed(const std::string& from, const std::string& to) = 0;
};

}  // namespace nomra::platform
