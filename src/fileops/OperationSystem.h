#pragma once
#include <cstdint>
#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace nomra::fileops {

enum class EntryType {
  Missing,
  File,
  Folder,
  Other,  // devices, sockets, pipes, links that lead nowhere
};

// What the operations need to know of a path. Links are followed, as the
// list shows the files they lead to; `isLink` tells of the name itself.
struct EntryInfo {
  EntryType type = EntryType::Missing;
  std::uint64_t size = 0;
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::time_t modified = 0;
  bool isLink = false;
  bool sticky = false;  // a folder where only owners may remove entries
  int error = 0;        // errno of a failed query, ENOENT for a missing entry
};

// Called while a file's bytes are copied, with the bytes done so far; false
// stops the copy.
using CopyTick = std::function<bool(std::uint64_t bytesCopied)>;

// The operating-system calls behind copying, moving and deleting. Each call
// answers 0 or the errno it failed with. Tests put a fake in its place to
// make a disk fill, a folder refuse access or a move cross volumes.
class OperationSystem {
 public:
  virtual ~OperationSystem() = default;

  virtual EntryInfo Inspect(const std::string& path) = 0;

  // Creates `to`, which must not exist, and copies the bytes, permissions
  // and times of `from` into it. Whatever goes wrong, a stopped tick too
  // (ECANCELED), `to` is removed again: no part of a file is left behind.
  // With `durable`, the bytes are on the disk before the call returns.
  virtual int CopyFile(const std::string& from, const std::string& to, const CopyTick& tick, bool durable) = 0;

  // A new name in the same volume; EXDEV when `to` lies on another one.
  // Without `replace`, a taken `to` fails with EEXIST.
  virtual int Rename(const std::string& from, const std::string& to, bool replace) = 0;

  virtual int RemoveFile(const std::string& path) = 0;
  // One level; EEXIST when the name is taken.
  virtual int MakeFolder(const std::string& path, unsigned mode) = 0;
  // A file that must not exist yet, holding `content`, readable by its owner alone.
  virtual int WriteNewFile(const std::string& path, std::string_view content) = 0;

  // Visits the names of a folder's entries; false when it can't be read.
  virtual bool ListFolder(const std::string& folder, const std::function<void(std::string_view name)>& visit) = 0;

  // The user's data folder ($XDG_DATA_HOME, else ~/.local/share), without
  // a trailing separator, and the user's number.
  virtual std::string DataHome() = 0;
  virtual unsigned UserId() = 0;
};

}  // namespace nomra::fileops
