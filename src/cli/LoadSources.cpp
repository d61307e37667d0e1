#include "cli/LoadSources.h"

#include <string>

#include "base/Fault.h"
#include "core/AddFile.h"
#include "core/RefreshPreview.h"
#include "open/Playlist.h"

namespace nomra::cli {

namespace {

void LoadPath(MainModel& model, std::string path) {
  try {
    AddFile(model, path);
  } catch (const RuntimeFault& fault) {
    model.frontEnd.ShowFault(fault.what());
  }
}

// The engine takes a playlist it can't read as an empty one, as the window
// does after a file chooser. On the command line the name was typed, so a
// wrong one is worth saying, whatever CheckExistence says about entries.
void LoadPlaylist(MainModel& model, const std::string& playlist) {
  if (model.fileSystem.Status(playlist).kind != platform::EntryKind::File) {
    model.frontEnd.ShowFault("playlist not found: " + playlist);
    return;
  }
  if (!model.fileSystem.ReadFile(playlist)) {
    model.frontEnd.ShowFault("playlist not readable: " + playlist);
    return;
  }
  open::LoadPlaylist(model, playlist);
}

}  // namespace

void LoadSources(MainModel& model, const std::vector<LoadSource>& sources) {
  for (const LoadSource& source : sources) {
    if (source.kind == LoadSource::Kind::Playlist) {
      LoadPlaylist(model, source.path);
    } else {
      LoadPath(model, source.path);
    }
  }
  refreshPreview(model);
}

}  // namespace nomra::cli
