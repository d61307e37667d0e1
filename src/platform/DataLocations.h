#pragma once
#include <string>

namespace nomra::platform {

// The per-user data folder, with a trailing separator: NOMRA_DATA_DIR when
// set, else $XDG_DATA_HOME/NR-Software/Nomra/, else
// ~/.local/share/NR-Software/Nomra/.
std::string DefaultDataFolder();

// The folder of the running executable, with a trailing separator.
std::string ExecutableFolder();

// Creates each missing level of a folder path from the left. Failures are
// ignored; the answer says whether the folder exists at the end.
bool CreateFolderPath(const std::string& path);

}  // namespace nomra::platform
