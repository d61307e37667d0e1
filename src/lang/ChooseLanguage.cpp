#include "lang/ChooseLanguage.h"

#include "base/CaseMap.h"
#include "base/Paths.h"
#include "lang/MessageCatalog.h"
#include "settings/SettingsKeys.h"

namespace nomra::lang {

namespace {

bool HasLanguageEnding(std::string_view name) {
  const std::string_view ending = settings::kLanguageFileEnding;
  // A file named only ".lng" still matches "*.lng", as on Windows.
  return name.size() >= ending.size() && base::EqualsNoCase(name.substr(name.size() - ending.size()), ending);
}

void Take(platform::FileSystem& fileSystem, LanguageChoice& choice, const std::string& path) {
  choice.outcome = LanguageOutcome::Chosen;
  choice.file = path;
  choice.charset = MessageCatalog(fileSystem, path).Charset();
}

}  // namespace

std::vector<LanguageFile> ListLanguageFiles(platform::FileSystem& fileSystem, const std::string& appFolder) {
  std::vector<LanguageFile> files;
  fileSystem.ListFolder(appFolder, [&](std::string_view name, platform::EntryKind kind) {
    if (!HasLanguageEnding(name) || kind != platform::EntryKind::File) return;
    const std::string path = base::AddBackslash(appFolder) + std::string(name);
    files.push_back(LanguageFile{path, MessageCatalog(fileSystem, path).LanguageName()});
  });
  return files;
}

LanguageChoice ChooseLanguage(const std::string& appFolder, const formats::IniFile& settingsFile) {
  platform::FileSystem& fileSystem = settingsFile.Files();
  LanguageChoice choice;
  choice.candidates = ListLanguageFiles(fileSystem, appFolder);
  if (choice.candidates.empty()) return choice;
  if (choice.candidates.size() == 1) {
    Take(fileSystem, choice, choice.candidates.front().path);
    return choice;
  }

  const std::string wanted = settingsFile.ReadString(settings::kSettingsSection, settings::kLanguageKey);
  // Without a setting (a first start) the user chooses, even when a file
  // lacks a language name and would "equal" the empty text.
  if (!wanted.empty()) {
    for (const auto& candidate : choice.candidates) {
      if (base::EqualsNoCase(candidate.languageName, wanted)) {
        Take(fileSystem, choice, candidate.path);
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

std::string NoLanguageFilesText(std::string_view appTitle, const std::vector<std::string>& foldersSearched) {
  std::string text = NoLanguageFilesText(appTitle) + "\n\nGesucht in / Searched in:";
  for (const std::string& folder : foldersSearched) text += "\n" + folder;
  return text;
}

}  // namespace nomra::lang
