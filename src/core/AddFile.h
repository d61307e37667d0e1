#pragma once
#include <string>

#include "core/ExifDateReader.h"
#include "core/FrontEnd.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/Progress.h"
#include "core/StatusTexts.h"
#include "platform/FileSystem.h"

namespace nomra::core {

// What loading files into the list works with.
struct ListLoad {
  ListState& state;
  platform::FileSystem& fileSystem;
  FrontEnd& frontEnd;  // the status panel counts the files added
  Progress& progress;  // ticks every hundredth file, so the window stays alive
  ExifDateReader& exifDates;
  const ListOptions& options;
  const StatusTexts& texts;
  // Set when a tick said stop. The loaders of several paths honour it after
  // the path at work, then clear it; a folder walk always comes whole.
  bool stopAsked = false;
};

// The one way into the list. A file becomes one row, a folder is walked
// whole. `path` is replaced by the absolute path when the file exists.
// A path that is neither file nor folder is passed over in silence when
// CheckExistence is on; otherwise the failure goes to the caller as a
// RuntimeFault.
void AddFile(ListLoad& load, std::string& path);

// Adds every file of a folder in the order the file system gives them, then
// walks each subfolder. No filter, hidden files included, failures ignored,
// no stop: a dropped folder always comes whole.
void AddFolder(ListLoad& load, const std::string& folder);

}  // namespace nomra::core
