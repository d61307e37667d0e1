#include "fileops/Trash.h"

#include <cerrno>
#include <cstdio>

#include "base/Helpers.h"
#include "fileops/FilePaths.h"
#include "fileops/FileTransfer.h"

namespace nomra::fileops {

namespace {

constexpr unsigned kPrivateFolder = 0700;
constexpr char kInfoExtension[] = ".trashinfo";
// A trash holding this many files of one name is given up on.
constexpr int kMostSameNames = 100000;

std::string WithoutSeparator(std::string path) {
  while (path.size() > 1 && path.back() == kPathSeparator) path.pop_back();
  return path;
}

// The device of a path, or of its nearest folder that exists.
std::uint64_t DeviceOf(OperationSystem& system, std::string path) {
  for (;;) {
    const EntryInfo info = system.Inspect(path);
    if (info.type != EntryType::Missing || path.size() <= 1) return info.device;
    path = WithoutSeparator(FolderOf(path));
  }
}

// The highest folder above `folder` that is still on its volume.
std::string TopDirectoryOf(OperationSystem& system, std::string folder, std::uint64_t device) {
  for (;;) {
    if (folder.size() <= 1) return folder;
    const std::string above = WithoutSeparator(FolderOf(folder));
    if (above.empty() || system.Inspect(above).device != device) return folder;
    folder = above;
  }
}

// A folder that is a folder and no link, made when missing.
bool MakePrivateFolder(OperationSystem& system, const std::string& path, int& error) {
  const EntryInfo info = system.Inspect(path);
  if (info.type == EntryType::Missing) {
    error = system.MakeFolder(path, kPrivateFolder);
    return error == 0 || error == EEXIST;
  }
  error = info.type == EntryType::Folder && !info.isLink ? 0 : ENOTDIR;
  return error == 0;
}

// Makes the trash folder and its two subfolders.
int PrepareTrash(OperationSystem& system, const std::string& folder) {
  int error = 0;
  for (const std::string& path : {folder, folder + "/files", folder + "/info"}) {
    if (!MakePrivateFolder(system, path, error)) return error;
  }
  return 0;
}

int UseTrash(OperationSystem& system, const std::string& folder, std::string topDirectory, TrashPlace& place) {
  const int error = PrepareTrash(system, folder);
  if (error == 0) place = {AddBackslash(folder), std::move(topDirectory)};
  return error;
}

bool IsAdministratorsTrash(const EntryInfo& info) {
  return info.type == EntryType::Folder && !info.isLink && info.sticky;
}

// "name.ext", "name.2.ext", "name.3.ext", ...: the desktop's own way.
std::string TrashName(const std::string& name, int number) {
  if (number == 1) return name;
  std::size_t dot = name.find('.', 1);
  if (dot == std::string::npos) dot = name.size();
  return name.substr(0, dot) + "." + std::to_string(number) + name.substr(dot);
}

}  // namespace

int FindTrash(OperationSystem& system, const std::string& path, TrashPlace& place) {
  // The folder that holds the name decides, so a link is trashed itself.
  const std::string folder = WithoutSeparator(FolderOf(path));
  const EntryInfo holder = system.Inspect(folder);
  if (holder.type != EntryType::Folder) return holder.error != 0 ? holder.error : ENOTDIR;
  const std::string dataHome = system.DataHome();
  const std::string home = dataHome + "/Trash";
  if (DeviceOf(system, home) == holder.device) {
    // The data folder itself may not exist yet in a fresh account.
    if (auto failure = EnsureFolder(system, dataHome)) return failure->error;
    return UseTrash(system, home, "", place);
  }

  const std::string top = TopDirectoryOf(system, folder, holder.device);
  const std::string topWithSeparator = AddBackslash(top);
  const std::string uid = std::to_string(system.UserId());
  const std::string shared = topWithSeparator + ".Trash";
  if (IsAdministratorsTrash(system.Inspect(shared)) &&
      UseTrash(system, shared + "/" + uid, topWithSeparator, place) == 0) {
    return 0;
  }
  return UseTrash(system, topWithSeparator + ".Trash-" + uid, topWithSeparator, place);
}

std::string EscapeTrashPath(std::string_view path) {
  std::string escaped;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
                       c == '-' || c == '.' || c == '_' || c == '~' || c == '/';
    if (plain) {
      escaped.push_back(c);
    } else {
      char hex[4];
      std::snprintf(hex, sizeof hex, "%%%02X", byte);
      escaped += hex;
    }
  }
  return escaped;
}

std::string TrashInfoText(std::string_view originalPath, const std::tm& deletedAt) {
  char date[32];
  std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &deletedAt);
  return "[Trash Info]\nPath=" + EscapeTrashPath(originalPath) + "\nDeletionDate=" + date + "\n";
}

int MoveToTrash(OperationSystem& system, const std::string& path, const std::tm& deletedAt) {
  TrashPlace place;
  if (const int error = FindTrash(system, path, place); error != 0) return error;
  // Records under a volume's own trash name the file from its top folder,
  // so they stay right when the volume is mounted elsewhere.
  std::string recorded = path;
  if (!place.topDirectory.empty() && path.starts_with(place.topDirectory)) {
    recorded = path.substr(place.topDirectory.size());
  }
  const std::string record = TrashInfoText(recorded, deletedAt);
  const std::string name = NameOf(WithoutSeparator(path));
  for (int number = 1; number <= kMostSameNames; ++number) {
    const std::string trashName = TrashName(name, number);
    const std::string stored = place.folder + "files/" + trashName;
    if (system.Inspect(stored).type != EntryType::Missing) continue;
    const std::string info = place.folder + "info/" + trashName + kInfoExtension;
    const int written = system.WriteNewFile(info, record);
    if (written == EEXIST) continue;
    if (written != 0) return written;
    const int moved = system.Rename(path, stored, false);
    if (moved == 0) return 0;
    system.RemoveFile(info);
    if (moved != EEXIST) return moved;
  }
  return EEXIST;
}

}  // namespace nomra::fileops
