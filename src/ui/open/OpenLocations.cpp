#include "ui/open/OpenLocations.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

namespace nomra::ui {

namespace {

bool IsUnder(const QString& path, const QString& folder) { return path == folder || path.startsWith(folder + '/'); }

// Mounts of the system's own running (run-time state, boot files, packaged
// programs) hold nothing a user renames; removable media under /run/media do.
bool IsSystemMount(const QString& path) {
  if (IsUnder(path, QStringLiteral("/run/media"))) return false;
  for (const char* folder : {"/run", "/boot", "/snap", "/dev", "/proc", "/sys"}) {
    if (IsUnder(path, QLatin1String(folder))) return true;
  }
  return false;
}

}  // namespace

std::vector<Location> ListLocations() {
  std::vector<Location> places;
  const QString home = QDir::homePath();
  places.push_back({home, home, LocationKind::Home});
  places.push_back({QStringLiteral("/"), QStringLiteral("/"), LocationKind::FileSystemRoot});
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString path = volume.rootPath();
    if (!volume.isValid() || !volume.isReady() || IsSystemMount(path)) continue;
    // Files mounted onto files (as containers do with /etc/hosts) are no place to open.
    if (!QFileInfo(path).isDir()) continue;
    const bool known =
        std::any_of(places.begin(), places.end(), [&](const Location& place) { return place.path == path; });
    if (known) continue;
    const QString label = volume.name();
    places.push_back({path, label.isEmpty() ? path : path + " [" + label + "]", LocationKind::Volume});
  }
  return places;
}

}  // namespace nomra::ui
