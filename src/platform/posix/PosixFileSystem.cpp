#include "platform/posix/PosixFileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <vector>

#include "base/Paths.h"
#include "platform/posix/CaseLookup.h"
#include "platform/posix/FileContents.h"
#include "platform/posix/FileCopy.h"
#include "platform/posix/FileLocks.h"
#include "platform/posix/FileProperties.h"
#include "platform/posix/NoReplaceRename.h"
#include "platform/posix/PosixInputFile.h"

namespace nomra::platform {

namespace {

bool HoldsNul(const std::string& path) { return path.find('\0') != std::string::npos; }

constexpr long kMsdosMagic = 0x4d44;  // FAT12/16/32, vfat
constexpr long kExfatMagic = 0x2011BAB0;
constexpr long kCifsMagic = 0xFF534D42;
constexpr long kSmb2Magic = 0xFE534D42;
constexpr long kSmbMagic = 0x517B;
constexpr long kFuseMagic = 0x65735546;
constexpr unsigned kCasefoldFlag = 0x40000000;  // FS_CASEFOLD_FL

EntryKind KindOfMode(mode_t mode) {
  if (S_ISREG(mode)) return EntryKind::File;
  if (S_ISDIR(mode)) return EntryKind::Folder;
  return EntryKind::Other;
}

std::string WorkingFolder() {
  std::vector<char> buffer(4096);
  while (getcwd(buffer.data(), buffer.size()) == nullptr) {
    if (errno != ERANGE) return "/";
    buffer.resize(buffer.size() * 2);
  }
  return buffer.data();
}

bool HasCasefoldAttribute(const std::string& folder) {
  const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return false;
  unsigned flags = 0;
  const bool ok = ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
  close(fd);
  return ok && (flags & kCasefoldFlag) != 0;
}

}  // namespace

FileStatus PosixFileSystem::Status(const std::string& path) {
  FileStatus status;
  // The system would read the path only up to a NUL and so name another
  // file; a path holding one names nothing.
  if (HoldsNul(path)) {
    status.error = ENOENT;
    return status;
  }
  struct statx sx {};
  if (statx(AT_FDCWD, path.c_str(), 0, STATX_TYPE | STATX_SIZE | STATX_MTIME | STATX_BTIME, &sx) != 0) {
    status.error = errno;
    return status;
  }
  status.kind = KindOfMode(sx.stx_mode);
  status.size = sx.stx_size;
  if (sx.stx_mask & STATX_MTIME) status.modified = static_cast<std::time_t>(sx.stx_mtime.tv_sec);
  if (sx.stx_mask & STATX_BTIME) status.created = static_cast<std::time_t>(sx.stx_btime.tv_sec);
  return status;
}

FileStatus PosixFileSystem::Inspect(const std::string& path) {
  FileStatus status;
  struct stat own {};
  if (lstat(path.c_str(), &own) != 0) {
    status.error = errno;
    return status;
  }
  status.isLink = S_ISLNK(own.st_mode);
  struct stat target = own;
  // A link that leads nowhere still takes its name.
  if (status.isLink && stat(path.c_str(), &target) != 0) target = own;
  status.kind = KindOfMode(target.st_mode);
  status.size = static_cast<std::uint64_t>(target.st_size);
  status.device = static_cast<std::uint64_t>(target.st_dev);
  status.inode = static_cast<std::uint64_t>(target.st_ino);
  status.modified = target.st_mtim.tv_sec;
  status.sticky = (target.st_mode & S_ISVTX) != 0;
  return status;
}

FileProperties PosixFileSystem::Properties(const std::string& path) { return ReadProperties(path); }

namespace {

// An absolute path without ".", ".." or doubled separators is its own normal form.
bool IsNormalAbsolute(const std::string& path) {
  if (!path.starts_with('/')) return false;
  return path.find("//") == std::string::npos && path.find("/./") == std::string::npos &&
         path.find("/../") == std::string::npos && !path.ends_with("/.") && !path.ends_with("/..");
}

}  // namespace

std::string PosixFileSystem::AbsolutePath(const std::string& path) {
  if (IsNormalAbsolute(path)) return path;
  return NormalizeAbsolutePath(path, path.starts_with('/') ? std::string() : WorkingFolder());
}

std::string PosixFileSystem::ResolveLink(const std::string& path) { return ResolvedLink(path); }

bool PosixFileSystem::ListFolder(const std::string& folder, const EntryVisitor& visit) {
  if (HoldsNul(folder)) return false;
  std::unique_ptr<DIR, int (*)(DIR*)> dir(opendir(folder.c_str()), closedir);
  if (!dir) return false;
  const int dirFd = dirfd(dir.get());
  for (;;) {
    errno = 0;
    dirent* entry = readdir(dir.get());
    if (entry == nullptr) break;
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    EntryKind kind = EntryKind::Other;
    switch (entry->d_type) {
      case DT_REG: kind = EntryKind::File; break;
      case DT_DIR: kind = EntryKind::Folder; break;
      case DT_LNK:
      case DT_UNKNOWN: {
        struct stat target {};
        if (fstatat(dirFd, entry->d_name, &target, 0) == 0) {
          kind = KindOfMode(target.st_mode);
          if (kind == EntryKind::Folder && entry->d_type == DT_LNK) kind = EntryKind::FolderLink;
          if (kind == EntryKind::Folder && entry->d_type == DT_UNKNOWN) {
            struct stat self {};
            if (fstatat(dirFd, entry->d_name, &self, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(self.st_mode)) {
              kind = EntryKind::FolderLink;
            }
          }
        }
        break;
      }
      default: break;
    }
    visit(name, kind);
  }
  // A read error half-way: what was visited stays visited, the answer says
  // the listing is incomplete.
  return errno == 0;
}

bool PosixFileSystem::IsCaseInsensitiveFolder(const std::string& folder) {
  // Files of one folder come one after the other; the last answer is at hand.
  if (!lastFolder_.empty() && folder == lastFolder_) return lastAnswer_;
  lastFolder_ = folder;
  lastAnswer_ = CaseRuleOf(folder);
  return lastAnswer_;
}

bool PosixFileSystem::CaseRuleOf(const std::string& folder) {
  auto found = caseRuleByFolder_.find(folder);
  if (found != caseRuleByFolder_.end()) return found->second;
  const bool insensitive = ProbeCaseInsensitiveFolder(folder);
  caseRuleByFolder_.emplace(folder, insensitive);
  return insensitive;
}

bool PosixFileSystem::MayWriteFile(const std::string& path) { return MayReplaceFile(path); }

bool PosixFileSystem::MayWriteInFolder(const std::string& folder) {
  struct stat st {};
  return stat(folder.c_str(), &st) == 0 && S_ISDIR(st.st_mode) && access(folder.c_str(), W_OK | X_OK) == 0;
}

bool ProbeCaseInsensitiveFolder(const std::string& folder) {
  struct statfs fs {};
  if (statfs(folder.c_str(), &fs) != 0) return false;
  const long type = static_cast<long>(fs.f_type);
  if (type == kMsdosMagic || type == kExfatMagic || type == kCifsMagic || type == kSmb2Magic || type == kSmbMagic) {
    return true;
  }
  if (HasCasefoldAttribute(folder)) return true;
  if (type == kFuseMagic) return LookupIgnoresCase(folder);
  return false;
}

RenameResult PosixFileSystem::RenameNoReplace(const std::string& from, const std::string& to) {
  if (HoldsNul(from) || HoldsNul(to)) return RenameResult{false, ENOENT};
  return RenameWithoutReplacing(from, to);
}

// Some file systems report a rename as done and change nothing (vfat for a
// change of case, some network shares, FUSE): there every rename is looked
// up afterwards. The kernel's own file systems below are trusted, which
// spares two look-ups per rename in a batch of 100,000.
bool PosixFileSystem::ConfirmRenamed(const std::string& from, const std::string& to) {
  std::string folder = base::FolderOf(to);
  if (folder.empty()) folder = ".";
  if (folder != trustFolder_) {
    trustFolder_ = folder;
    trustRename_ = KernelRenameIsTrusted(folder);
  }
  return trustRename_ || ConfirmRename(from, to);
}

int PosixFileSystem::RenameReplacing(const std::string& from, const std::string& to) {
  return rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int PosixFileSystem::RemoveFile(const std::string& path) { return unlink(path.c_str()) == 0 ? 0 : errno; }

int PosixFileSystem::MakeFolder(const std::string& path, unsigned mode) {
  return mkdir(path.c_str(), static_cast<mode_t>(mode)) == 0 ? 0 : errno;
}

int PosixFileSystem::MakeFolderPath(const std::string& path) {
  int lastError = 0;
  std::size_t from = 0;
  while (from < path.size()) {
    std::size_t slash = path.find('/', from);
    if (slash == std::string::npos) slash = path.size();
    const std::string prefix = path.substr(0, slash);
    if (!prefix.empty() && mkdir(prefix.c_str(), 0777) != 0 && errno != EEXIST) lastError = errno;
    from = slash + 1;
  }
  struct stat st {};
  if (stat(path.c_str(), &st) == 0) return S_ISDIR(st.st_mode) ? 0 : ENOTDIR;
  return lastError != 0 ? lastError : errno;
}

std::optional<std::string> PosixFileSystem::ReadFile(const std::string& path, int& error) {
  return ReadWholeFile(path, error);
}

std::unique_ptr<InputFile> PosixFileSystem::OpenForReading(const std::string& path, int& error) {
  return OpenInputFile(path, error);
}

int PosixFileSystem::WriteNewFile(const std::string& path, std::string_view content) {
  return WriteNewPrivateFile(path, content);
}

int PosixFileSystem::WriteFile(const std::string& path, std::string_view content, const std::string& permissionsFrom) {
  return WriteFileWithPermissionsOf(path, content, permissionsFrom);
}

int PosixFileSystem::ReplaceFile(const std::string& path, std::string_view content) {
  return ReplaceFileContent(path, content);
}

int PosixFileSystem::CopyFile(const std::string& from, const std::string& to, const CopyTick& tick, bool durable) {
  return CopyFileContents(from, to, tick, durable);
}

std::unique_ptr<OpenFile> PosixFileSystem::OpenForAppend(const std::string& path, int& error) {
  return OpenAppending(path, error);
}

int PosixFileSystem::SetTimes(const std::string& path, std::optional<std::time_t> accessed,
                              std::optional<std::time_t> modified) {
  const auto timeOf = [](const std::optional<std::time_t>& seconds) {
    return seconds ? timespec{*seconds, 0} : timespec{0, UTIME_OMIT};
  };
  const timespec times[2] = {timeOf(accessed), timeOf(modified)};
  return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 ? 0 : errno;
}

int PosixFileSystem::SetReadOnly(const std::string& path, bool readOnly) {
  struct stat st {};
  if (stat(path.c_str(), &st) != 0) return errno;
  const mode_t writeBits = S_IWUSR | S_IWGRP | S_IWOTH;
  const mode_t mode = readOnly ? (st.st_mode & ~writeBits) : (st.st_mode | S_IWUSR);
  return chmod(path.c_str(), mode & 07777) == 0 ? 0 : errno;
}

std::unique_ptr<OpenFile> PosixFileSystem::CreateLockedDraft(const std::string& path, std::string& draftPath,
                                                             int& error) {
  draftPath = path + ".new-" + std::to_string(getpid());
  return CreateLockedFile(draftPath, error);
}

ExistingLock PosixFileSystem::LockExisting(const std::string& path) { return LockExistingFile(path); }

int PosixFileSystem::SyncFolder(const std::string& folder) { return SyncFolderEntries(folder); }

bool KernelRenameIsTrusted(const std::string& folder) {
  constexpr long kExt4Magic = 0xEF53;
  constexpr long kXfsMagic = 0x58465342;
  constexpr long kBtrfsMagic = 0x9123683E;
  constexpr long kTmpfsMagic = 0x01021994;
  struct statfs fs {};
  if (statfs(folder.c_str(), &fs) != 0) return false;
  const long type = static_cast<long>(fs.f_type);
  return type == kExt4Magic || type == kXfsMagic || type == kBtrfsMagic || type == kTmpfsMagic;
}

std::string NormalizeAbsolutePath(const std::string& path, const std::string& workingFolder) {
  std::string joined;
  if (!path.starts_with('/')) {
    joined.reserve(workingFolder.size() + 1 + path.size());
    joined.append(workingFolder).push_back('/');
  }
  joined.append(path);
  std::vector<std::string_view> parts;
  std::string_view rest = joined;
  while (!rest.empty()) {
    const std::size_t slash = rest.find('/');
    const std::string_view part = rest.substr(0, slash);
    rest = slash == std::string_view::npos ? std::string_view() : rest.substr(slash + 1);
    if (part.empty() || part == ".") continue;
    if (part == "..") {
      if (!parts.empty()) parts.pop_back();
      continue;
    }
    parts.push_back(part);
  }
  std::string out;
  for (std::string_view part : parts) {
    out.push_back('/');
    out.append(part);
  }
  if (out.empty()) out.push_back('/');
  if (path.size() > 1 && path.back() == '/' && out.back() != '/') out.push_back('/');
  return out;
}

}  // namespace nomra::platform
