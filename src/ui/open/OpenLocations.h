#pragma once
#include <QString>

#include <vector>

namespace nomra::ui {

enum class LocationKind { Home, FileSystemRoot, Volume };

// A place the top of Nomra's own open dialog offers, where a drive letter
// would stand on other systems: the home folder, the file system's root and
// every mounted volume a user keeps files on.
struct Location {
  QString path;
  QString text;  // the path, and the volume's label in brackets where it has one
  LocationKind kind = LocationKind::Volume;
};

std::vector<Location> ListLocations();

}  // namespace nomra::ui
