#include "settings/DataFolder.h"

#include <string_view>

#include "base/CaseMap.h"
#include "base/Paths.h"
#include "formats/IniFile.h"
#include "settings/CompactIniFile.h"
#include "settings/FirstRunFiles.h"
#include "settings/SettingsKeys.h"
#include "settings/UpdateMerge.h"

namespace nomra::settings {

namespace {

// Beside the executable's folder ("bin"), as an installation lays it out.
constexpr char kInstalledAppFolder[] = "share/nomra/";

bool IsAppFileName(std::string_view name) {
  const std::string lower = base::ToLower(name);
  return lower.ends_with(kLanguageFileEnding) || lower == kUpdateFileName;
}

bool HoldsAppFiles(platform::FileSystem& fileSystem, const std::string& folder) {
  bool found = false;
  fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind) {
    if (IsAppFileName(name)) found = true;
  });
  return found;
}

}  // namespace

std::string FindDataFolder(platform::FileSystem& fileSystem, platform::DataLocations& locations) {
  const std::string folder = base::AddBackslash(locations.DataFolder());
  fileSystem.MakeFolderPath(folder);
  return folder;
}

std::vector<std::string> AppFolderCandidates(const std::string& executableFolder) {
  const std::string own = base::AddBackslash(executableFolder);
  // The executable's folder comes from the system whole, without "." or
  // "..", so its parent is found by text.
  return {own, base::FolderOf(base::WithoutTrailingSeparators(own)) + kInstalledAppFolder};
}

std::string FindAppFolderFrom(platform::FileSystem& fileSystem, const std::string& executableFolder) {
  const std::vector<std::string> candidates = AppFolderCandidates(executableFolder);
  const std::string& own = candidates.front();
  if (HoldsAppFiles(fileSystem, own)) return own;
  const std::string& installed = candidates.back();
  if (fileSystem.Status(installed).kind == platform::EntryKind::Folder) return installed;
  return own;
}

std::string FindAppFolder(platform::FileSystem& fileSystem, platform::DataLocations& locations) {
  return FindAppFolderFrom(fileSystem, locations.ExecutableFolder());
}

bool PrepareDataFolder(platform::FileSystem& fileSystem, const std::string& appFolder, const std::string& dataFolder) {
  fileSystem.MakeFolderPath(dataFolder);
  if (!fileSystem.MayWriteInFolder(dataFolder)) return false;
  const std::string app = base::AddBackslash(appFolder);
  const std::string data = base::AddBackslash(dataFolder);
  const std::string settingsFile = data + kSettingsFileName;
  CopyFirstRunFiles(fileSystem, app, data);
  MergeUpdateInstructions(formats::IniFile(fileSystem, app + kUpdateFileName),
                          formats::IniFile(fileSystem, settingsFile), data);
  CompactIniFile(fileSystem, settingsFile, data);
  return true;
}

}  // namespace nomra::settings
