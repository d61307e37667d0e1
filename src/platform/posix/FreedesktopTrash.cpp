#include "platform/posix/FreedesktopTrash.h"

#include <cerrno>
#include <cstdio>

#include "base/Paths.h"

namespace nomra::platform {

namespace {

constexpr unsigned kPrivateFolder = 0700;
constexpr char kInfoExtension[] = ".trashinfo";
// A trash holding this many files of one name is given up on.
constexpr int kMostSameNames = 100000;

bool IsAdministratorsTrash(const FileStatus& status) {
  return status.kind == EntryKind::Folder && !status.isLink && status.sticky;
}

// "name.ext", "name.2.ext", "name.3.ext", ...: the desktop's own way.
std::string TrashName(const std::string& name, int number) {
  if (number == 1) return name;
  std::size_t dot = name.find('.', 1);
  if (dot == std::string::npos) dot = name.size();
  return name.substr(0, dot) + "." + std::to_string(number) + name.substr(dot);
}

}  // namespace

// The device of a path, or of its nearest folder that exists.
std::uint64_t FreedesktopTrash::DeviceOf(std::string path) {
  for (;;) {
    const FileStatus status = fileSystem_.Inspect(path);
    if (status.kind != EntryKind::Missing || path.size() <= 1) return status.device;
    path = base::WithoutTrailingSeparators(base::FolderOf(path));
  }
}

// The highest folder above `folder` that is still on its volume.
std::string FreedesktopTrash::TopDirectoryOf(std::string folder, std::uint64_t device) {
  for (;;) {
    if (folder.size() <= 1) return folder;
    const std::string above = base::WithoutTrailingSeparators(base::FolderOf(folder));
    if (above.empty() || fileSystem_.Inspect(above).device != device) return folder;
    folder = above;
  }
}

// A folder that is a folder and no link, made when missing.
bool FreedesktopTrash::MakePrivateFolder(const std::string& path, int& error) {
  const FileStatus status = fileSystem_.Inspect(path);
  if (status.kind == EntryKind::Missing) {
    error = fileSystem_.MakeFolder(path, kPrivateFolder);
    return error == 0 || error == EEXIST;
  }
  error = status.kind == EntryKind::Folder && !status.isLink ? 0 : ENOTDIR;
  return error == 0;
}

// Makes the trash folder and its two subfolders.
int FreedesktopTrash::UseTrash(const std::string& folder, std::string topDirectory, TrashPlace& place) {
  int error = 0;
  for (const std::string& path : {folder, folder + "/files", folder + "/info"}) {
    if (!MakePrivateFolder(path, error)) return error;
  }
  place = {base::AddBackslash(folder), std::move(topDirectory)};
  return 0;
}

int FreedesktopTrash::FindTrash(const std::string& path, TrashPlace& place) {
  // The folder that holds the name decides, so a link is trashed itself.
  const std::string folder = base::WithoutTrailingSeparators(base::FolderOf(path));
  const FileStatus holder = fileSystem_.Inspect(folder);
  if (holder.kind != EntryKind::Folder) return holder.error != 0 ? holder.error : ENOTDIR;
  const std::string dataHome = locations_.DataHome();
  const std::string home = dataHome + "/Trash";
  if (DeviceOf(home) == holder.device) {
    // The data folder itself may not exist yet in a fresh account.
    if (const int error = fileSystem_.MakeFolderPath(dataHome); error != 0) return error;
    return UseTrash(home, "", place);
  }

  const std::string top = TopDirectoryOf(folder, holder.device);
  const std::string topWithSeparator = base::AddBackslash(top);
  const std::string uid = std::to_string(locations_.UserId());
  const std::string shared = topWithSeparator + ".Trash";
  if (IsAdministratorsTrash(fileSystem_.Inspect(shared)) &&
      UseTrash(shared + "/" + uid, topWithSeparator, place) == 0) {
    return 0;
  }
  return UseTrash(topWithSeparator + ".Trash-" + uid, topWithSeparator, place);
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

int FreedesktopTrash::MoveToTrash(const std::string& path, const std::tm& deletedAt) {
  TrashPlace place;
  if (const int error = FindTrash(path, place); error != 0) return error;
  // Records under a volume's own trash name the file from its top folder,
  // so they stay right when the volume is mounted elsewhere.
  std::string recorded = path;
  if (!place.topDirectory.empty() && path.starts_with(place.topDirectory)) {
    recorded = path.substr(place.topDirectory.size());
  }
  const std::string record = TrashInfoText(recorded, deletedAt);
  const std::string name = base::NameOf(base::WithoutTrailingSeparators(path));
  for (int number = 1; number <= kMostSameNames; ++number) {
    const std::string trashName = TrashName(name, number);
    const std::string stored = place.folder + "files/" + trashName;
    if (fileSystem_.Inspect(stored).kind != EntryKind::Missing) continue;
    const std::string info = place.folder + "info/" + trashName + kInfoExtension;
    const int written = fileSystem_.WriteNewFile(info, record);
    if (written == EEXIST) continue;
    if (written != 0) return written;
    const RenameResult moved = fileSystem_.RenameNoReplace(path, stored);
    if (moved.ok) return 0;
    fileSystem_.RemoveFile(info);
    if (moved.error != EEXIST) return moved.error;
  }
  return EEXIST;
}

}  // namespace nomra::platform
