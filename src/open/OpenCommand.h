#pragma once
#include <string>
#include <vector>

#include "core/AddFile.h"
#include "core/Preview.h"
#include "formats/IniFile.h"
#include "open/FilterList.h"
#include "open/Playlist.h"

namespace nomra::open {

enum class OpenMode { Files = 1, Playlists = 2 };

// The filter string of the system dialog in mode Playlists.
inline constexpr char kPlaylistDialogFilter[] = "m3u Playlist|*.m3u|pls Playlist|*.pls";

// What the system open dialog delivered.
struct OpenChoice {
  OpenMode mode = OpenMode::Files;
  // The chosen paths, absolute. With `allFiles` the first one names the
  // folder whose files are taken (a chosen file stands for its folder).
  std::vector<std::string> paths;
  bool allFiles = false;    // chkAll: every file of the folder that passes the filter
  bool subFolders = false;  // chkSub: and of all its subfolders, breadth first
  int filterIndex = 1;      // 1-based row of the filter list in force
};

// Carries out what the dialog delivered, from the wait pointer to the saved
// "lastpath" and "lastfilter" (section "Settings"): files or playlists are
// added in order with a stop looked for after each; with `allFiles`
// the folder's files that pass the filter row and aren't hidden (a name
// beginning with ".") unless ShowHiddenFiles is on, then, with
// `subFolders`, those of every folder below, breadth first, unreadable
// folders passed over. A stop is spent, refreshes and ends without
// saving "lastpath" or "lastfilter". The refresh runs at the end. The
// filter row's pattern is tested as one pattern; a `filterIndex` outside
// the list means row 1. "lastpath" is the folder of the first path through
// its last separator, or, with `allFiles`, the folder whose files were
// taken; "lastfilter" is `filterIndex` in both modes, so in mode Playlists
// the caller passes the index in force for files. A chosen path that is
// neither file nor folder while CheckExistence is off ends the command with
// AddFile's RuntimeFault, after the refresh. No path at all changes nothing.
LoadOutcome RunOpenChoice(core::ListLoad& load, core::Preview& preview, const OpenChoice& choice,
                          const std::vector<FilterRow>& filters, const formats::IniFile& settingsFile,
                          bool showHiddenFiles);

// Where the dialogs open next: "lastpath", or the home folder when it is
// missing or gone (the root when there is no home folder).
std::string InitialFolder(const formats::IniFile& settingsFile, const std::string& homeFolder);

// The filter row the files dialog starts on: "lastfilter", from 1; the first
// row where it is missing, below 1 or damaged.
int LastFilterIndex(const formats::IniFile& settingsFile);

// Nomra's own open dialog took files from `folder`: the dialogs open there
// next time.
void RememberLastPath(formats::IniFile& settingsFile, const std::string& folder);

}  // namespace nomra::open
