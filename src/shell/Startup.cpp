#include "shell/Startup.h"

#include "base/Fault.h"
#include "base/Flags.h"
#include "base/Paths.h"
#include "formats/IniFile.h"
#include "settings/DataFolder.h"
#include "settings/SettingsKeys.h"

namespace nomra::shell {

namespace {

// A flag of the settings; a value that isn't a number is shown and the
// default stands, so one bad line can't stop the program.
bool ReadFlag(core::FrontEnd& frontEnd, const formats::IniFile& file, const char* section, const char* key,
              bool fallback) {
  try {
    return base::ToBoolean(file.ReadInt(section, key), fallback);
  } catch (const base::RuntimeFault& fault) {
    frontEnd.ShowFault(fault.what());
    return fallback;
  }
}

void CreateProtocolIfMissing(platform::FileSystem& fileSystem, const std::string& dataFolder) {
  int error = 0;
  // A read-only data folder keeps no protocol.
  fileSystem.OpenForAppend(dataFolder + settings::kProtocolFileName, error);
}

}  // namespace

StartupPaths PrepareStartup(platform::FileSystem& fileSystem, platform::DataLocations& locations,
                            const std::string& dataFolderOverride) {
  StartupPaths paths;
  paths.appFolder = settings::FindAppFolder(fileSystem, locations);
  if (dataFolderOverride.empty()) {
    paths.dataFolder = settings::FindDataFolder(fileSystem, locations);
  } else {
    paths.dataFolder = base::AddBackslash(dataFolderOverride);
    fileSystem.MakeFolderPath(paths.dataFolder);
  }
  paths.settingsPath = paths.dataFolder + settings::kSettingsFileName;
  paths.dataFolderUsable = settings::PrepareDataFolder(fileSystem, paths.appFolder, paths.dataFolder);
  return paths;
}

void LoadStartupSettings(const StartupPaths& paths, const StartupTarget& target) {
  using namespace settings;
  const formats::IniFile file(target.fileSystem, paths.settingsPath);
  core::FrontEnd& frontEnd = target.frontEnd;
  core::ListOptions& options = target.options;
  options.securityQuestions[0] = ReadFlag(frontEnd, file, kSettingsSection, kSecurityQuestion1Key, false);
  options.securityQuestions[1] = ReadFlag(frontEnd, file, kSettingsSection, kSecurityQuestion2Key, false);
  options.securityQuestions[2] = ReadFlag(frontEnd, file, kSettingsSection, kSecurityQuestion3Key, false);
  options.expertMode = ReadFlag(frontEnd, file, kSettingsSection, kExpertModeKey, false);
  options.checkExistence = ReadFlag(frontEnd, file, kSettingsSection, kCheckExistenceKey, false);
  options.loadExifDates = ReadFlag(frontEnd, file, kSettingsSection, kLoadExifDatesKey, true);
  options.protocolRenames = ReadFlag(frontEnd, file, kSettingsSection, kProtocolRenamesKey, false);
  options.dataFolder = paths.dataFolder;
  dialog::ScriptSession& script = target.script;
  script.dataFolder = paths.dataFolder;
  script.settingsPath = paths.settingsPath;
  script.saveDialogSettings = ReadFlag(frontEnd, file, kSettingsSection, kSaveDialogSettingsKey, false);
  script.tempPath = paths.dataFolder + kScriptTempFileName;
  if (paths.dataFolderUsable) CreateProtocolIfMissing(target.fileSystem, paths.dataFolder);
}

}  // namespace nomra::shell
