#pragma once
#include <string>
#include <vector>

#include "core/AddFile.h"
#include "core/Preview.h"
#include "open/Playlist.h"

namespace nomra::open {

// What cmdOpen of Nomra's own open dialog takes from the folder it shows.
struct FolderSelection {
  std::string folder;                        // the folder shown, with or without the separator
  std::vector<std::string> selectedFiles;    // names of selected file rows
  std::vector<std::string> selectedFolders;  // full paths of selected folder rows
  std::vector<std::string> listedFiles;      // names of every file row under the pattern
  bool allFiles = false;                     // chkAllFiles
  bool subFolders = false;                   // chkSubFolders, when enabled and checked
  std::string pattern = "*.*";               // the checked filters joined by ";"
  bool showHiddenFiles = false;
};

// The staging list, the folders read through `fileSystem`: the selected files (or every listed file with
// allFiles), then, when subfolders are wanted or folders are selected, the
// files under the pattern of every folder of the walk, breadth first: a
// selected folder is always taken with its whole tree. Unreadable folders
// are passed over; a file of the walk is staged when it passes any of the
// pattern's ";"-separated patterns and isn't hidden (a name beginning with
// ".") unless showHiddenFiles is on.
std::vector<std::string> StageFiles(const FolderSelection& selection, platform::FileSystem& fileSystem);

// Adds every staged path through AddFile with a stop looked for after
// each, under the wait pointer; a stop is spent and ends the load. The
// refresh runs either way and the staging list is emptied. A path that is
// neither file nor folder while CheckExistence is off ends the load with
// AddFile's RuntimeFault, after the refresh and the emptying.
LoadOutcome LoadStagedFiles(core::ListLoad& load, core::Preview& preview, std::vector<std::string>& staged);

}  // namespace nomra::open
