#pragma once
#include <ctime>
#include <string>
#include <string_view>

#include "platform/DataLocations.h"
#include "platform/FileSystem.h"
#include "platform/Trash.h"

namespace nomra::platform {

// A trash folder of the freedesktop.org Trash specification, as desktops
// read it: files/ holds what was trashed, info/ one ".trashinfo" record each.
struct TrashPlace {
  std::string folder;  // ends with the separator
  // The top folder of the volume whose trash this is, ending with the
  // separator; "" for the home trash, whose records hold absolute paths.
  std::string topDirectory;
};

// The desktop trash of Linux and other free desktops, over the file system
// interface, so that tests can bend any step of it.
class FreedesktopTrash final : public Trash {
 public:
  FreedesktopTrash(FileSystem& fileSystem, DataLocations& locations) : fileSystem_(fileSystem), locations_(locations) {}

  // Under a name not in use in the trash, with its record written first, as
  // the trash format asks, and removed again when the move fails.
  int MoveToTrash(const std::string& path, const std::tm& deletedAt) override;

  // The trash for a file: the home trash ($XDG_DATA_HOME/Trash) when the
  // file lies on the home trash's volume, else that of the file's volume:
  // the administrator's "$topdir/.Trash/$uid" where ".Trash" is a sticky
  // folder and no link, otherwise "$topdir/.Trash-$uid". Missing folders
  // are made, readable by the user alone. 0, or the errno that stopped it.
  int FindTrash(const std::string& path, TrashPlace& place);

 private:
  std::uint64_t DeviceOf(std::string path);
  std::string TopDirectoryOf(std::string folder, std::uint64_t device);
  bool MakePrivateFolder(const std::string& path, int& error);
  int UseTrash(const std::string& folder, std::string topDirectory, TrashPlace& place);

  FileSystem& fileSystem_;
  DataLocations& locations_;
};

// Escapes a path for the record's Path key: every byte but letters,
// digits, "-._~" and the separator as "%XX".
std::string EscapeTrashPath(std::string_view path);

// The whole ".trashinfo" record.
std::string TrashInfoText(std::string_view originalPath, const std::tm& deletedAt);

}  // namespace nomra::platform
