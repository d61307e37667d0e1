#include "settings/FirstRunFiles.h"

#include "base/Paths.h"
#include "settings/SettingsKeys.h"

namespace nomra::settings {

namespace {

void CopyWhenMissing(platform::FileSystem& fileSystem, const std::string& appFolder, const std::string& dataFolder,
                     const char* name) {
  const std::string target = base::AddBackslash(dataFolder) + name;
  if (fileSystem.Inspect(target).kind != platform::EntryKind::Missing) return;
  const auto content = fileSystem.ReadFile(base::AddBackslash(appFolder) + name);
  // Through a temporary file, so a crash can't leave half a file that the
  // next start would then take for the user's own.
  if (content) fileSystem.ReplaceFile(target, *content);
}

}  // namespace

void CopyFirstRunFiles(platform::FileSystem& fileSystem, const std::string& appFolder, const std::string& dataFolder) {
  CopyWhenMissing(fileSystem, appFolder, dataFolder, kStructuresFileName);
  CopyWhenMissing(fileSystem, appFolder, dataFolder, kSettingsFileName);
}

}  // namespace nomra::settings
