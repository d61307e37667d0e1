#include "settings/DataFolder.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string_view>

#include "base/CaseMap.h"
#include "base/Helpers.h"
#include "platform/DataLocations.h"
#include "settings/CompactIniFile.h"
#include "settings/FirstRunFiles.h"
#include "settings/SettingsKeys.h"
#include "settings/UpdateMerge.h"

namespace nomra::settings {

namespace {

constexpr char kInstalledAppFolder[] = "../share/nomra/";

bool IsFolder(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool IsAppFileName(std::string_view name) {
  const std::string lower = text::ToLower(name);
  return lower.ends_with(kLanguageFileEnding) || lower == kUpdateFileName;
}

bool HoldsAppFiles(const std::string& folder) {
  DIR* dir = opendir(folder.c_str());
  if (dir == nullptr) return false;
  bool found = false;
  while (const dirent* entry = readdir(dir)) {
    if (IsAppFileName(entry->d_name)) {
      found = true;
      break;
    }
  }
  closedir(dir);
  return found;
}

bool IsUsableFolder(const std::string& folder) {
  return IsFolder(folder) && access(folder.c_str(), W_OK | X_OK) == 0;
}

}  // namespace

std::string FindDataFolder() {
  const std::string folder = AddBackslash(platform::DefaultDataFolder());
  platform::CreateFolderPath(folder);
  return folder;
}

std::string FindAppFolderFrom(const std::string& executableFolder) {
  const std::string own = AddBackslash(executableFolder);
  if (HoldsAppFiles(own)) return own;
  const std::string installed =
      AddBackslash(std::filesystem::path(own + kInstalledAppFolder).lexically_normal().string());
  if (IsFolder(installed)) return installed;
  return own;
}

std::string FindAppFolder() { return FindAppFolderFrom(platform::ExecutableFolder()); }

bool PrepareDataFolder(const std::string& appFolder, const std::string& dataFolder) {
  platform::CreateFolderPath(dataFolder);
  if (!IsUsableFolder(dataFolder)) return false;
  const std::string app = AddBackslash(appFolder);
  const std::string data = AddBackslash(dataFolder);
  const std::string settingsFile = data + kSettingsFileName;
  CopyFirstRunFiles(app, data);
  MergeUpdateInstructions(app + kUpdateFileName, settingsFile, data);
  CompactIniFile(settingsFile, data);
  return true;
}

SettingsFolders OpenSettingsFolders() {
  SettingsFolders folders;
  folders.appFolder = FindAppFolder();
  folders.dataFolder = FindDataFolder();
  folders.dataFolderUsable = PrepareDataFolder(folders.appFolder, folders.dataFolder);
  return folders;
}

}  // namespace nomra::settings
