#include "cli/LoadSources.h"

#include <string>

#include "base/Fault.h"
#include "core/AddFile.h"
#include "open/Playlist.h"

namespace nomra::cli {

namespace {

void LoadPath(CliSession& session, std::string path) {
  try {
    core::AddFile(session.load, path);
  } catch (const base::RuntimeFault& fault) {
    session.frontEnd.ShowFault(fault.what());
  }
}

// The engine takes a playlist it can't read as an empty one, as the window
// does after a file chooser. On the command line the name was typed, so a
// wrong one is worth saying, whatever CheckExistence says about entries.
void LoadPlaylist(CliSession& session, const std::string& playlist) {
  if (session.fileSystem.Status(playlist).kind != platform::EntryKind::File) {
    session.frontEnd.ShowFault("playlist not found: " + playlist);
    return;
  }
  if (!session.fileSystem.ReadFile(playlist)) {
    session.frontEnd.ShowFault("playlist not readable: " + playlist);
    return;
  }
  open::LoadPlaylist(session.load, session.preview, playlist);
}

}  // namespace

void LoadSources(CliSession& session, const std::vector<LoadSource>& sources) {
  for (const LoadSource& source : sources) {
    if (source.kind == LoadSource::Kind::Playlist) {
      LoadPlaylist(session, source.path);
    } else {
      LoadPath(session, source.path);
    }
  }
  session.preview.Refresh();
}

}  // namespace nomra::cli
