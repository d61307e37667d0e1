#pragma once
#include <string>
#include <vector>

#include "core/AddFile.h"
#include "core/Preview.h"

namespace nomra::open {

// The entries of a playlist, in order, as paths ready for AddFile. ".m3u"
// keeps every line that doesn't begin with "#EXT" in any case; ".pls" keeps
// what follows the first "=" of each line beginning with "FILE" in any case;
// any other ending keeps every line. Empty lines and lines holding a NUL,
// which can name no file, are dropped. An entry that is no existing file is
// made absolute: one that begins with the separator stays as it is (this
// platform has no drive to put in front), any other gets the playlist's
// folder in front, whatever it holds. The text is UTF-8, or Windows-1252
// when it isn't valid UTF-8; LF and CR LF both end a line. A missing or
// unreadable playlist gives nothing.
std::vector<std::string> ReadPlaylistEntries(const std::string& playlistPath, platform::FileSystem& fileSystem);

enum class LoadOutcome { Finished, Cancelled };

// Adds every entry through AddFile, failures ignored. When the user asked
// to stop (load.stopAsked) after an entry it returns at once, leaving the
// stop asked and running no refresh; otherwise the preview is refreshed
// after the last entry. A missing or unreadable playlist changes nothing,
// the view included.
LoadOutcome LoadPlaylist(core::ListLoad& load, core::Preview& preview, const std::string& playlistPath);

}  // namespace nomra::open
