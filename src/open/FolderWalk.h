#pragma once
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::open {

// Hidden means a name that starts with ".".
bool IsHiddenName(std::string_view name);

// Gets the position of a folder in the work list, its path ending with the
// separator and the names of its files in the order the file system gives
// them. Returning false ends the walk.
using FolderVisitor =
    std::function<bool(std::size_t position, const std::string& folder, const std::vector<std::string>& fileNames)>;

// Walks a work list of folders by position. With `descend`, every folder's
// subfolders are appended to the list as it is read, so the walk is breadth
// first: a whole level before the one below it. Links to folders are never
// followed, so a tree can't loop. A folder that can't be read is passed over
// and the walk goes on. False when the visitor ended the walk.
bool WalkFolders(platform::FileSystem& fileSystem, std::vector<std::string> workList, bool descend,
                 const FolderVisitor& visit);

}  // namespace nomra::open
