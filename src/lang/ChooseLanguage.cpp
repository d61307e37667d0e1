#include "lang/ChooseLanguage.h"

#include <filesystem>
#include <system_error>

#include "base/CaseMap.h"
#include "base/Helpers.h"
#include "lang/MessageCatalog.h"
#include "settings/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::lang {

namespace {

namespace fs = std::filesystem;

bool HasLanguageEnding(const std::string& name) {
  const std::string_view ending = settings::kLanguageFileEnding;
  // A file named only ".lng" still matches "*.lng", as on Windows.
  return name.size() >= ending.size() &&
         text::EqualsNoCase(std::string_view(name).substr(name.size() - ending.size()), ending);
}

void Take(LanguageChoice& choice, const std::string& path) {
  choice.outcome = LanguageOutcome::Chosen;
  choice.file = path;
  choice.charset = MessageCatalog(path).Charset();
}

}  // namespace

std::vector<LanguageFile> ListLanguageFiles(const std::string& appFolder) {
  std::vector<LanguageFile> files;
  std::error_code error;
  fs::directory_iterator it(appFolder, error);
  if (error) return files;
  for (; it != fs::directory_iterator(); it.increment(error)) {
    if (error) break;
    const std::string name = it->path().filename().string();
    std::error_code typeError;
    if (!HasLanguageEnding(name) || !it->is_regular_file(typeError)) continue;
    const std::string path = AddBackslash(appFolder) + name;
    files.push_back(LanguageFile{path, MessageCatalog(path).LanguageName()});
  }
  return files;
}

LanguageChoice ChooseLanguage(const std::string& appFolder, const std::string& settingsFile) {
  LanguageChoice choice;
  choice.candidates = ListLanguageFiles(appFolder);
  if (choice.candidates.empty()) return choice;
  if (choice.candidates.size() == 1) {
    Take(choice, choice.candidates.front().path);
    return choice;
  }

  const std::string wanted = settings::ReadIniString(settings::kSettingsSection, settings::kLanguageKey, settingsFile);
  // Without a setting (a first start) the user chooses, even when a file
  // lacks a language name and would "equal" the empty text.
  if (!wanted.empty()) {
    for (const auto& candidate : choice.candidates) {
      if (text::EqualsNoCase(candidate.languageName, wanted)) {
        Take(choice, candidate.path);
        return choice;
      }
    }
  }
  choice.outcome = LanguageOutcome::UserMustChoose;
  return choice;
}

std::string NoLanguageFilesText(std::string_view appTitle) {
  const std::string title(appTitle);
  return "Es wurden keine Sprachdateien im Programmverzeichnis gefunden. Bitte installieren Sie " + title +
         " erneut.\n\nNo language files found in the application directory. Please install " + title + " again.";
}

}  // namespace nomra::lang
