#include "settings/FirstRunFiles.h"

#include "base/Helpers.h"
#include "settings/AtomicFile.h"
#include "settings/FileBytes.h"
#include "settings/SettingsKeys.h"

namespace nomra::settings {

namespace {

void CopyWhenMissing(const std::string& appFolder, const std::string& dataFolder, const char* name) {
  const std::string target = AddBackslash(dataFolder) + name;
  if (PathExists(target)) return;
  const auto content = ReadFileBytes(AddBackslash(appFolder) + name);
  // Through a temporary file, so a crash can't leave half a file that the
  // next start would then take for the user's own.
  if (content) ReplaceFileContent(target, *content);
}

}  // namespace

void CopyFirstRunFiles(const std::string& appFolder, const std::string& dataFolder) {
  CopyWhenMissing(appFolder, dataFolder, kStructuresFileName);
  CopyWhenMissing(appFolder, dataFolder, kSettingsFileName);
}

}  // namespace nomra::settings
