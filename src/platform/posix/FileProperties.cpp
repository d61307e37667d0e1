#include "platform/posix/FileProperties.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace nomra::platform {

namespace {

PropertyType TypeOf(mode_t mode) {
  if (S_ISREG(mode)) return PropertyType::File;
  if (S_ISDIR(mode)) return PropertyType::Folder;
  if (S_ISLNK(mode)) return PropertyType::Link;
  return PropertyType::Other;
}

std::string OwnerName(uid_t uid) {
  if (const passwd* user = getpwuid(uid)) return user->pw_name;
  return std::to_string(uid);
}

std::string GroupName(gid_t gid) {
  if (const group* entry = getgrgid(gid)) return entry->gr_name;
  return std::to_string(gid);
}

std::string LinkTarget(const std::string& path, std::uint64_t size) {
  std::vector<char> buffer(size > 0 ? size + 1 : 4096);
  const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
  return length < 0 ? std::string() : std::string(buffer.data(), static_cast<std::size_t>(length));
}

}  // namespace

FileProperties ReadProperties(const std::string& path) {
  FileProperties properties;
  properties.path = path;
  struct statx sx {};
  const unsigned wanted = STATX_BASIC_STATS | STATX_BTIME;
  if (statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &sx) != 0) {
    properties.error = errno;
    return properties;
  }
  properties.type = TypeOf(sx.stx_mode);
  properties.size = sx.stx_size;
  if ((sx.stx_mask & STATX_BTIME) != 0) properties.created = static_cast<std::time_t>(sx.stx_btime.tv_sec);
  properties.modified = static_cast<std::time_t>(sx.stx_mtime.tv_sec);
  properties.accessed = static_cast<std::time_t>(sx.stx_atime.tv_sec);
  properties.owner = OwnerName(sx.stx_uid);
  properties.group = GroupName(sx.stx_gid);
  properties.mode = sx.stx_mode & 07777;
  if (properties.type == PropertyType::Link) properties.linkTarget = LinkTarget(path, sx.stx_size);
  return properties;
}

}  // namespace nomra::platform
