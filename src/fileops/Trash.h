#pragma once
#include <ctime>
#include <string>
#include <string_view>

#include "fileops/OperationSystem.h"

namespace nomra::fileops {

// A trash folder of the freedesktop.org Trash specification, as desktops
// read it: files/ holds what was trashed, info/ one ".trashinfo" record each.
struct TrashPlace {
  std::string folder;        // ends with the separator
  // The top folder of the volume whose trash this is, ending with the
  // separator; "" for the home trash, whose records hold absolute paths.
  std::string topDirectory;
};

// The trash for a file: the home trash ($XDG_DATA_HOME/Trash) when the file
// lies on the home trash's volume, else that of the file's volume: the
// administrator's "$topdir/.Trash/$uid" where ".Trash" is a sticky folder
// and no link, otherwise "$topdir/.Trash-$uid". Missing folders are made,
// readable by the user alone. 0, or the errno that stopped it.
int FindTrash(OperationSystem& system, const std::string& path, TrashPlace& place);

// Escapes a path for the record's Path key: every byte but letters,
// digits, "-._~" and the separator as "%XX".
std::string EscapeTrashPath(std::string_view path);

// The whole ".trashinfo" record.
std::string TrashInfoText(std::string_view originalPath, const std::tm& deletedAt);

// Moves a file (or folder) to its trash under a name not in use there, with
// its record written first, as the freedesktop.org trash format asks, and removed again
// when the move fails. 0, or the errno that stopped it.
int MoveToTrash(OperationSystem& system, const std::string& path, const std::tm& deletedAt);

}  // namespace nomra::fileops
