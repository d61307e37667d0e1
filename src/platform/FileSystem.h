#pragma once
#include <cstdint>
#include <ctime>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/InputFile.h"
#include "platform/OpenFile.h"

namespace nomra::platform {

enum class EntryKind {
  Missing,
  File,
  Folder,
  FolderLink,  // a symbolic link to a folder: walked never, so a tree can't loop
  Other,       // devices, sockets, pipes, dangling links
};

// What a path is. Which fields are filled depends on the call: Status fills
// what the list shows, Inspect what copying, moving and the trash need.
struct FileStatus {
  EntryKind kind = EntryKind::Missing;
  std::uint64_t size = 0;
  std::optional<std::time_t> created;   // birth time, where the file system keeps it
  std::optional<std::time_t> modified;  // last write
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  bool isLink = false;  // the name itself is a symbolic link
  bool sticky = false;  // a folder where only owners may remove entries
  int error = 0;        // errno of a failed query, ENOENT for a missing entry
};

struct RenameResult {
  bool ok = false;
  int error = 0;  // errno of a refused rename; EEXIST when the target is taken
};

enum class PropertyType { Missing, File, Folder, Link, Other };

// What the properties window shows of one path, the link itself for a link.
struct FileProperties {
  std::string path;
  PropertyType type = PropertyType::Missing;
  std::string linkTarget;  // where a link leads
  std::uint64_t size = 0;
  std::optional<std::time_t> created;  // the birth time only where the file system keeps it
  std::time_t modified = 0;
  std::time_t accessed = 0;
  std::string owner;  // user name, or the number where the name is unknown
  std::string group;
  unsigned mode = 0;  // permission bits, 07777
  int error = 0;      // errno when the path could not be read
};

// Called while a file's bytes are copied, with the bytes done so far; false
// stops the copy.
using CopyTick = std::function<bool(std::uint64_t bytesCopied)>;

// A lock taken on a file that is already there.
struct ExistingLock {
  enum class State {
    Missing,  // no file under the name
    Busy,     // another process holds its lock
    Stale,    // locked, but the name meanwhile leads to another file or none
    Locked,   // ours until the handle goes
    Failed,   // could not be opened; see error
  };
  State state = State::Missing;
  int error = 0;
  std::unique_ptr<OpenFile> handle;
};

// The file system as the engine sees it. Every system call about files lies
// behind this interface; tests pass fakes, and a fault-injecting file system
// makes "access denied on the third rename" a one-line test. Calls that can
// fail answer 0 or the errno they failed with, unless they say otherwise.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // --- Entries --------------------------------------------------------------

  // Follows symbolic links, as a file manager shows the target: the kind,
  // size and dates. A dangling link is Missing.
  virtual FileStatus Status(const std::string& path) = 0;

  // The name itself: a link counts as an entry of its own (isLink), with the
  // kind, size, device and time of what it leads to; a dangling link is Other.
  virtual FileStatus Inspect(const std::string& path) = 0;

  // Owner, group, permission bits, the three times, and where a link leads.
  virtual FileProperties Properties(const std::string& path) = 0;

  // Absolute form of a path, "." and ".." resolved by text; links stay.
  virtual std::string AbsolutePath(const std::string& path) = 0;

  // The path a symbolic link finally leads to; any other path as it is.
  virtual std::string ResolveLink(const std::string& path) = 0;

  // Visits a folder's entries in the order the file system gives them.
  // Returns false when the folder can't be read, or stopped being readable
  // half-way (what was visited stays visited).
  using EntryVisitor = std::function<void(std::string_view name, EntryKind kind)>;
  virtual bool ListFolder(const std::string& folder, const EntryVisitor& visit) = 0;

  // Whether names in this folder compare without regard to case (FAT, exFAT,
  // CIFS, casefolded folders). Answers are remembered per folder.
  virtual bool IsCaseInsensitiveFolder(const std::string& folder) = 0;

  // Whether this user may replace the regular file at `path`, or create and
  // remove entries in the folder at `path`.
  virtual bool MayWriteFile(const std::string& path) = 0;
  virtual bool MayWriteInFolder(const std::string& folder) = 0;

  // --- Names ----------------------------------------------------------------

  // Gives a file a new name, never replacing anything: a taken target fails
  // with EEXIST. Both paths are full paths.
  virtual RenameResult RenameNoReplace(const std::string& from, const std::string& to) = 0;

  // After a rename that reported success: whether `to` now exists under
  // exactly that spelling and `from` no longer does. A file system may say
  // it renamed and have changed nothing.
  virtual bool ConfirmRenamed(const std::string& from, const std::string& to) = 0;

  // A rename that replaces what stands at `to`, for the caller that has the
  // user's word or owns the target (a finished temporary file). EXDEV when
  // `to` lies on another volume.
  virtual int RenameReplacing(const std::string& from, const std::string& to) = 0;

  // Removes a file (or a link, never what it leads to).
  virtual int RemoveFile(const std::string& path) = 0;

  // One folder level; EEXIST when the name is taken.
  virtual int MakeFolder(const std::string& path, unsigned mode) = 0;

  // Creates each missing level of a folder path from the left (0777 less
  // the umask), passing over the levels that fail. 0 when the folder exists
  // at the end; else ENOTDIR when something else stands there, or the errno
  // of the last level that could not be made.
  virtual int MakeFolderPath(const std::string& path) = 0;

  // --- Contents -------------------------------------------------------------

  // The whole content of a file, or nothing when it can't be read (missing,
  // a folder, no permission), with the errno in `error`.
  virtual std::optional<std::string> ReadFile(const std::string& path, int& error) = 0;
  std::optional<std::string> ReadFile(const std::string& path) {
    int error = 0;
    return ReadFile(path, error);
  }

  // Opens a file for reading parts of it; nothing, with the errno in
  // `error`, when it is missing or may not be read. A folder opens, and
  // its reads fail (EISDIR).
  virtual std::unique_ptr<InputFile> OpenForReading(const std::string& path, int& error) = 0;

  // A file that must not exist yet, holding `content`, readable by its owner
  // alone. Nothing is left behind when it fails.
  virtual int WriteNewFile(const std::string& path, std::string_view content) = 0;

  // Writes a file whole (created or truncated) with the permission bits of
  // `permissionsFrom` when that file exists, else 0666 less the umask.
  virtual int WriteFile(const std::string& path, std::string_view content, const std::string& permissionsFrom) = 0;

  // Replaces (or creates) a file so that a crash leaves either the old or
  // the new content whole: a temporary file beside it, renamed over it. The
  // old file's permission bits carry over; a link is written through, not
  // replaced. A read-only file is left alone (EACCES).
  virtual int ReplaceFile(const std::string& path, std::string_view content) = 0;

  // Creates `to`, which must not exist, and copies the bytes, permissions
  // and times of `from` into it. Whatever goes wrong, a stopped tick too
  // (ECANCELED), `to` is removed again: no part of a file is left behind.
  // With `durable`, the bytes are on the disk before the call returns.
  virtual int CopyFile(const std::string& from, const std::string& to, const CopyTick& tick, bool durable) = 0;

  // Opens a file for appending, created (0644 less the umask) when missing.
  virtual std::unique_ptr<OpenFile> OpenForAppend(const std::string& path, int& error) = 0;

  // --- Times and attributes -----------------------------------------------

  // Sets the access and modification times to whole seconds; a time left
  // empty stays as it is.
  virtual int SetTimes(const std::string& path, std::optional<std::time_t> accessed,
                       std::optional<std::time_t> modified) = 0;

  // Read-only means nobody may write: setting it takes every write bit
  // away, clearing it gives the owner write again.
  virtual int SetReadOnly(const std::string& path, bool readOnly) = 0;

  // --- Locks and durability -------------------------------------------------

  // Creates a file of this process's own beside `path` (its name is `path`
  // with an ending that names the process, given back in `draftPath`),
  // readable by its owner alone, and holds an exclusive lock on it for as
  // long as the handle lives. The lock goes with the process, so a killed
  // program leaves the file free. The draft is meant to take `path`'s name
  // once it is whole; on failure the caller removes it.
  virtual std::unique_ptr<OpenFile> CreateLockedDraft(const std::string& path, std::string& draftPath, int& error) = 0;

  // Opens an existing file and takes its lock without waiting.
  virtual ExistingLock LockExisting(const std::string& path) = 0;

  // Puts a folder's entries (new names, removed names) on the disk.
  virtual int SyncFolder(const std::string& folder) = 0;
};

}  // namespace nomra::platform
