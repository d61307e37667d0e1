#pragma once
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

namespace nomra::fileops {

enum class PropertyType { Missing, File, Folder, Link, Other };

// What the properties dialog shows of one path.
struct FileProperties {
  std::string path;
  PropertyType type = PropertyType::Missing;
  std::string linkTarget;  // where a link leads
  std::uint64_t size = 0;
  // The birth time only where the file system keeps it.
  std::optional<std::time_t> created;
  std::time_t modified = 0;
  std::time_t accessed = 0;
  std::string owner;  // user name, or the number where the name is unknown
  std::string group;
  unsigned mode = 0;  // permission bits, 07777
  int error = 0;      // errno when the path could not be read
};

// The path's properties, the link itself for a link.
FileProperties ReadFileProperties(const std::string& path);

// "rwxr-x---" and the like, with s, S, t, T where set-id and sticky bits
// stand, as `ls -l` shows them.
std::string PermissionText(unsigned mode);

}  // namespace nomra::fileops
