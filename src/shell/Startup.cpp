#include "shell/Startup.h"

#include "base/Fault.h"
#include "base/Paths.h"
#include "base/Flags.h"
#include "formats/IniFile.h"
#include "settings/DataFolder.h"
#include "settings/SettingsKeys.h"

namespace nomra {

namespace {

// A flag of the settings; a value that isn't a number is shown and the
// default stands, so one bad line can't stop the program.
bool ReadFlag(MainModel& model, const formats::IniFile& file, const char* section, const char* key, bool fallback) {
  try {
    return ToBoolean(file.ReadInt(section, key), fallback);
  } catch (const RuntimeFault& fault) {
    model.frontEnd.ShowFault(fault.what());
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
    paths.dataFolder = AddBackslash(dataFolderOverride);
    fileSystem.MakeFolderPath(paths.dataFolder);
  }
  paths.settingsPath = paths.dataFolder + settings::kSettingsFileName;
  paths.dataFolderUsable = settings::PrepareDataFolder(fileSystem, paths.appFolder, paths.dataFolder);
  return paths;
}

void LoadStartupSettings(MainModel& model, const StartupPaths& paths) {
  using namespace settings;
  const formats::IniFile file(model.fileSystem, paths.settingsPath);
  model.securityQuestions[0] = ReadFlag(model, file, kSettingsSection, kSecurityQuestion1Key, false);
  model.securityQuestions[1] = ReadFlag(model, file, kSettingsSection, kSecurityQuestion2Key, false);
  model.securityQuestions[2] = ReadFlag(model, file, kSettingsSection, kSecurityQuestion3Key, false);
  model.expertMode = ReadFlag(model, file, kSettingsSection, kExpertModeKey, false);
  model.checkExistence = ReadFlag(model, file, kSettingsSection, kCheckExistenceKey, false);
  model.loadExifDates = ReadFlag(model, file, kSettingsSection, kLoadExifDatesKey, true);
  model.protocolRenames = ReadFlag(model, file, kSettingsSection, kProtocolRenamesKey, false);
  model.dataFolder = paths.dataFolder;
  model.script.dataFolder = paths.dataFolder;
  model.script.settingsPath = paths.settingsPath;
  model.script.saveDialogSettings = ReadFlag(model, file, kSettingsSection, kSaveDialogSettingsKey, false);
  model.script.tempPath = paths.dataFolder + kScriptTempFileName;
  if (paths.dataFolderUsable) CreateProtocolIfMissing(model.fileSystem, paths.dataFolder);
}

}  // namespace nomra
