#include "platform/posix/NoReplaceRename.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string_view>

#include "base/Paths.h"

namespace nomra::platform {

namespace {

RenameResult Done() { return {true, 0}; }

// A target that is a non-empty folder gives ENOTEMPTY on some paths; for the
// caller both mean the name is taken.
RenameResult Refused(int error) { return {false, error == ENOTEMPTY ? EEXIST : error}; }

// The file system does not know the flag (older kernels, FAT, some FUSE and
// network file systems answer EINVAL, very old kernels ENOSYS).
bool FlagRefused(int error) { return error == EINVAL || error == ENOSYS; }

// No hard links on this volume (FAT, exFAT), or links forbidden to us.
bool LinksRefused(int error) { return error == EPERM || error == EOPNOTSUPP || error == ENOSYS; }

// The folder to list for a name: its own, or the working folder for a bare name.
std::string ListedFolderOf(const std::string& path) {
  const std::string folder = base::FolderOf(path);
  return folder.empty() ? std::string(".") : folder;
}

// Exact spellings as the folder lists them: a volume without case finds a
// file under any spelling, its listing shows the one it keeps.
void SpellingsListed(const std::string& folder, std::string_view first, std::string_view second, bool& firstListed,
                     bool& secondListed) {
  firstListed = false;
  secondListed = false;
  std::unique_ptr<DIR, int (*)(DIR*)> dir(opendir(folder.c_str()), closedir);
  if (!dir) return;
  while (const dirent* entry = readdir(dir.get())) {
    const std::string_view name = entry->d_name;
    if (name == first) firstListed = true;
    if (name == second) secondListed = true;
  }
}

}  // namespace

RenameResult RenameWithoutReplacing(const std::string& from, const std::string& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return Done();
  const int error = errno;
  if (!FlagRefused(error)) return Refused(error);
  const RenameResult linked = RenameByLink(from, to);
  if (linked.ok || !LinksRefused(linked.error)) return linked;
  return RenameAfterLookup(from, to);
}

RenameResult RenameByLink(const std::string& from, const std::string& to) {
  // link() never replaces: the new name comes into being whole or not at all.
  if (link(from.c_str(), to.c_str()) != 0) return Refused(errno);
  if (unlink(from.c_str()) != 0) {
    const int error = errno;
    unlink(to.c_str());  // back to the one old name
    return Refused(error);
  }
  return Done();
}

RenameResult RenameAfterLookup(const std::string& from, const std::string& to) {
  // Not atomic: a file created under `to` between the look-up and the rename
  // would be replaced. This runs only where the volume offers neither the
  // flag nor hard links, and the window is a few microseconds wide.
  struct stat taken {};
  if (lstat(to.c_str(), &taken) == 0) return Refused(EEXIST);
  if (errno != ENOENT) return Refused(errno);
  if (rename(from.c_str(), to.c_str()) != 0) return Refused(errno);
  return Done();
}

bool ConfirmRename(const std::string& from, const std::string& to) {
  struct stat target {};
  if (lstat(to.c_str(), &target) != 0) return false;
  struct stat source {};
  if (lstat(from.c_str(), &source) != 0) return errno == ENOENT || errno == ENOTDIR;
  // The old name still reaches a file of its own: nothing was renamed.
  if (source.st_dev != target.st_dev || source.st_ino != target.st_ino) return false;
  bool newListed = false;
  bool oldListed = false;
  SpellingsListed(ListedFolderOf(to), base::NameOf(to), base::NameOf(from), newListed, oldListed);
  return newListed && !oldListed;
}

}  // namespace nomra::platform
