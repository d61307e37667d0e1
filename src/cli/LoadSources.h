#pragma once
#include <vector>

#include "cli/CliSession.h"
#include "cli/Invocation.h"

namespace nomra::cli {

// Loads the paths and playlists of the command line in the order they were
// given, then refreshes the list. A path that can't be added and a playlist
// that doesn't exist or can't be read are shown as faults, and the next
// one still loads. Entries of a playlist that name nothing are passed over
// in silence, as the window's playlist command passes them over.
void LoadSources(CliSession& session, const std::vector<LoadSource>& sources);

}  // namespace nomra::cli
