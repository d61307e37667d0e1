#include "platform/posix/CaseLookup.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cstdlib>
#include <memory>
#include <optional>

#include "base/CaseMap.h"

namespace nomra::platform {

namespace {

using DirHandle = std::unique_ptr<DIR, int (*)(DIR*)>;

std::string FlippedCase(const std::string& name) {
  std::string flipped = base::ToUpper(name);
  if (flipped == name) flipped = base::ToLower(name);
  return flipped;
}

bool IsListedExactly(const std::string& folder, const std::string& name) {
  DirHandle dir(opendir(folder.c_str()), closedir);
  if (!dir) return true;  // unreadable: the spelling may well be there, so nothing is claimed
  while (const dirent* entry = readdir(dir.get())) {
    if (name == entry->d_name) return true;
  }
  return false;
}

// Empty when the name has no other case or can't be looked up at all, so
// that the caller can try another one.
std::optional<bool> CompareSpellings(const std::string& folder, const std::string& name) {
  const std::string flipped = FlippedCase(name);
  if (flipped == name) return std::nullopt;
  struct stat original {};
  if (lstat((folder + name).c_str(), &original) != 0) return std::nullopt;
  struct stat other {};
  if (lstat((folder + flipped).c_str(), &other) != 0) return false;
  if (original.st_ino == other.st_ino && original.st_dev == other.st_dev) return true;
  // Two inode numbers: either two files, each listed under its spelling, or
  // one file the driver numbers anew for each spelling asked. The second
  // read of the folder comes only here, so a case-sensitive volume pays it
  // only where both spellings stand side by side.
  return !IsListedExactly(folder, flipped);
}

std::string WithSeparator(const std::string& folder) {
  return folder.empty() || folder.back() == '/' ? folder : folder + "/";
}

// The folder's own name within its parent. The path is resolved first, so
// that a link's name isn't taken for the folder's; a mount point's parent is
// another volume and says nothing about this one.
bool OwnNameIgnoresCase(const std::string& folder) {
  const std::unique_ptr<char, void (*)(void*)> resolved(realpath(folder.c_str(), nullptr), std::free);
  if (!resolved) return false;
  const std::string path = resolved.get();
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos || slash + 1 == path.size()) return false;  // the root has no parent
  const std::string parent = path.substr(0, slash + 1);
  struct stat self {};
  struct stat above {};
  if (stat(path.c_str(), &self) != 0 || stat(parent.c_str(), &above) != 0) return false;
  if (self.st_dev != above.st_dev) return false;
  return CompareSpellings(parent, path.substr(slash + 1)).value_or(false);
}

}  // namespace

bool FlippedSpellingFindsTheSameEntry(const std::string& folder, const std::string& name) {
  return CompareSpellings(WithSeparator(folder), name).value_or(false);
}

bool LookupIgnoresCase(const std::string& folder) {
  const std::string base = WithSeparator(folder);
  {
    DirHandle dir(opendir(base.c_str()), closedir);
    if (!dir) return false;
    while (const dirent* entry = readdir(dir.get())) {
      const std::string name = entry->d_name;
      if (name == "." || name == "..") continue;
      if (const std::optional<bool> answer = CompareSpellings(base, name)) return *answer;
    }
  }
  return OwnNameIgnoresCase(folder);
}

}  // namespace nomra::platform
