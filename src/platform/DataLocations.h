#pragma once
#include <string>

namespace nomra::platform {

// Where the user's and the program's files are.
class DataLocations {
 public:
  virtual ~DataLocations() = default;

  // The per-user data folder, with a trailing separator: NOMRA_DATA_DIR when
  // set, else $XDG_DATA_HOME/NR-Software/Nomra/, else
  // ~/.local/share/NR-Software/Nomra/.
  virtual std::string DataFolder() = 0;

  // The user's data home ($XDG_DATA_HOME when it is absolute, else
  // ~/.local/share), without a trailing separator: the desktop's trash is
  // found there.
  virtual std::string DataHome() = 0;

  // The user's home folder, without a trailing separator.
  virtual std::string HomeFolder() = 0;

  // The folder of the running executable, with a trailing separator.
  virtual std::string ExecutableFolder() = 0;

  // The user's number, which names the user's trash on other volumes.
  virtual unsigned UserId() = 0;
};

}  // namespace nomra::platform
