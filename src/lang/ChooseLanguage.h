#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "formats/IniFile.h"
#include "platform/FileSystem.h"

namespace nomra::lang {

enum class LanguageOutcome {
  NoLanguageFiles,  // show NoLanguageFilesText under kNoLanguageFilesCaption; design captions stay
  Chosen,           // `file` is the language file to use
  UserMustChoose,   // several files and none matches the setting "lng"
};

struct LanguageFile {
  std::string path;
  std::string languageName;  // Main/lngname
};

struct LanguageChoice {
  LanguageOutcome outcome = LanguageOutcome::NoLanguageFiles;
  std::string file;                      // set when Chosen
  int charset = 0;                       // Main/charset of the chosen file
  std::vector<LanguageFile> candidates;  // every "*.lng" of the program folder, in the order found
};

// Picks the language file at start: the only one there is, or the one whose
// language name equals the setting "lng" (section "Settings"), ignoring
// case. With one file the setting isn't read at all.
LanguageChoice ChooseLanguage(const std::string& appFolder, const formats::IniFile& settingsFile);

// Every "*.lng" file of the folder (the ending compared without case), in
// the order the folder lists them, with its language name.
std::vector<LanguageFile> ListLanguageFiles(platform::FileSystem& fileSystem, const std::string& appFolder);

// The one text the program holds of its own, in German and English.
inline constexpr char kNoLanguageFilesCaption[] = "Fehler/Error";
std::string NoLanguageFilesText(std::string_view appTitle);
// The same text followed by the folders that were searched, one a line, so
// a broken installation shows where the files should lie.
std::string NoLanguageFilesText(std::string_view appTitle, const std::vector<std::string>& foldersSearched);

}  // namespace nomra::lang
