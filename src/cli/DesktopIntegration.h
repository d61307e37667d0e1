#pragma once
#include <ostream>
#include <string>

#include "platform/Platform.h"

namespace nomra::cli {

// "Rename with Nomra" in the file managers of the user: a Dolphin service
// menu, a Nautilus script and a Thunar custom action, each starting the
// window's program with the chosen files. Files of the user's own are never
// replaced: a file that stands where ours would and isn't ours is reported
// and left as it is, and Thunar's list of actions gets ours added to it.
struct IntegrationPlaces {
  std::string program;     // the window's program, a full path
  std::string dataHome;    // $XDG_DATA_HOME or ~/.local/share, without the trailing separator
  std::string configHome;  // $XDG_CONFIG_HOME or ~/.config, without the trailing separator
  // Where Thunar's own actions lie when the user has none yet: the first
  // folder of $XDG_CONFIG_DIRS (or /etc/xdg) holding Thunar/uca.xml.
  std::string systemThunarActions;
};

// The places for this user, with the window's program beside nomra-cli.
IntegrationPlaces FindIntegrationPlaces(platform::Platform& system);

// Installs or updates the three entries, telling each on `out` and each
// refusal on `messages`; answers the exit status.
int InstallIntegration(platform::FileSystem& fileSystem, const IntegrationPlaces& places, std::ostream& out,
                       std::ostream& messages);

// Takes away what InstallIntegration put there and nothing else.
int RemoveIntegration(platform::FileSystem& fileSystem, const IntegrationPlaces& places, std::ostream& out,
                      std::ostream& messages);

}  // namespace nomra::cli
