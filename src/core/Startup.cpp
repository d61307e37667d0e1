#include "core/Startup.h"

#include <fcntl.h>
#include <unistd.h>

#include "base/Fault.h"
#include "base/Helpers.h"
#include "platform/DataLocations.h"
#include "settings/DataFolder.h"
#include "settings/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra {

namespace {

// A flag of the settings; a value that isn't a number is shown and the
// default stands, so one bad line can't stop the program.
bool ReadFlag(MainModel& model, const std::string& file, const char* section, const char* key, bool fallback) {
  try {
    return ToBoolean(settings::ReadIniInt(section, key, file), fallback);
  } catch (const RuntimeFault& fault) {
    model.frontEnd.ShowFault(fault.what());
    return fallback;
  }
}

void CreateProtocolIfMissing(const std::string& dataFolder) {
  const std::string path = dataFolder + settings::kProtocolFileName;
  const int fd = open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
  if (fd >= 0) close(fd);  // a read-only data folder keeps no protocol
}

}  // namespace

StartupPaths PrepareStartup(const std::string& dataFolderOverride) {
  StartupPaths paths;
  paths.appFolder = settings::FindAppFolder();
  if (dataFolderOverride.empty()) {
    paths.dataFolder = settings::FindDataFolder();
  } else {
    paths.dataFolder = AddBackslash(dataFolderOverride);
    platform::CreateFolderPath(paths.dataFolder);
  }
  paths.settingsPath = paths.dataFolder + settings::kSettingsFileName;
  paths.dataFolderUsable = settings::PrepareDataFolder(paths.appFolder, paths.dataFolder);
  return paths;
}

void LoadStartupSettings(MainModel& model, const StartupPaths& paths) {
  using namespace settings;
  const std::string& file = paths.settingsPath;
  model.securityQuestions[0] = ReadFlag(model, file, kSettingsSection, kSecurityQuestion1Key, false);
  model.securityQuestions[1] = ReadFlag(model, file, kSettingsSection, kSecurityQuestion2Key, false);
  model.securityQuestions[2] = ReadFlag(model, file, kSettingsSection, kSecurityQuestion3Key, false);
  model.expertMode = ReadFlag(model, file, kSettingsSection, kExpertModeKey, false);
  model.checkExistence = ReadFlag(model, file, kSettingsSection, kCheckExistenceKey, false);
  model.loadExifDates = ReadFlag(model, file, kSettingsSection, kLoadExifDatesKey, true);
  model.protocolRenames = ReadFlag(model, file, kSettingsSection, kProtocolRenamesKey, false);
  model.dataFolder = paths.dataFolder;
  model.script.dataFolder = paths.dataFolder;
  model.script.settingsPath = file;
  model.script.saveDialogSettings = ReadFlag(model, file, kSettingsSection, kSaveDialogSettingsKey, false);
  model.script.tempPath = paths.dataFolder + kScriptTempFileName;
  if (paths.dataFolderUsable) CreateProtocolIfMissing(paths.dataFolder);
}

}  // namespace nomra
