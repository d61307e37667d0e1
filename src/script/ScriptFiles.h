#pragma once
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "formats/IniFile.h"
#include "platform/FileSystem.h"

namespace nomra::script {

// Stored scripts lie in the folder "Script" of the data folder, named by the
// moment they were stored ("yyyymmddhhnnss.nrs"); the name the user gave is
// kept inside the file, never in its name.
inline constexpr char kScriptFolderName[] = "Script";
inline constexpr std::string_view kScriptFileEnding = ".nrs";
inline constexpr char kScriptMainSection[] = "Main";
inline constexpr char kScriptStepsKey[] = "Steps";
inline constexpr char kScriptNameKey[] = "Name";
inline constexpr char kScriptTypeKey[] = "Type";

// The scripts folder, ending with the separator.
std::string ScriptFolder(const std::string& dataFolder);

// "yyyymmddhhnnss.nrs" for that moment.
std::string ScriptFileName(const std::tm& moment);

// "yyyy-mm-dd, hh:nn:ss" cut from the characters of such a file name. Other
// names give a cut-up text; nothing is checked.
std::string FormatScriptDate(std::string_view fileName);

// The stored name, " [", the date of the file name, "]".
std::string ScriptDisplayText(const formats::IniFile& script, std::string_view fileName);

struct StoredScript {
  std::string fileName;  // without folder
  std::string displayText;
};

// The "*.nrs" files of the scripts folder in the order the file system
// gives them, with their display texts; none when the folder is missing.
std::vector<StoredScript> ListStoredScripts(platform::FileSystem& fileSystem, const std::string& dataFolder);

}  // namespace nomra::script
