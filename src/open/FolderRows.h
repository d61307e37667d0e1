#pragma once
#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::open {

// A row of Nomra's own open dialog: a folder, whose key is its full path, or
// a file, whose key is its bare name. Keys and names keep the bytes the file
// system gives, so a name that isn't valid UTF-8 still opens.
struct FolderRow {
  std::string key;
  std::string name;
  bool folder = false;
};

// A folder's rows: its subfolders, then its files that pass the pattern (the
// checked filters joined by ";"), each group in name order without regard to
// case. Names beginning with "." are hidden files and stay out unless
// `showHidden`. An unreadable folder gives no rows.
std::vector<FolderRow> ListFolderRows(platform::FileSystem& fileSystem, const std::string& folder,
                                      const std::string& pattern, bool showHidden);

// The folder above `path`, without a separator at its end; above the root
// come the locations, "".
std::string ParentFolder(const std::string& path);

// The folder the dialog shows for `path`: made absolute, and where it is
// gone, the nearest folder above it that is there; "" when none is (the
// locations).
std::string NearestExistingFolder(platform::FileSystem& fileSystem, const std::string& path);

}  // namespace nomra::open
