#pragma once
#include <string>

#include "core/MainModel.h"

namespace nomra {

// The one way into the list. A file becomes one row, a folder is walked
// whole. `path` is replaced by the absolute path when the file exists.
// A path that is neither file nor folder is passed over in silence when
// CheckExistence is on; otherwise the failure goes to the caller as a
// RuntimeFault.
void AddFile(MainModel& model, std::string& path);

// Adds every file of a folder in the order the file system gives them, then
// walks each subfolder. No filter, hidden files included, failures ignored,
// no cancel test: a dropped folder always comes whole.
void AddFolder(MainModel& model, const std::string& folder);

}  // namespace nomra
