#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "LanguageFile.h"
#include "lang/ChooseLanguage.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::lang {
namespace {

using nomra::testing::TempFolder;
using testing::WriteLanguageFile;

// The program folder and the data folder are separate, as in an installation.
struct Folders {
  TempFolder app;
  TempFolder data;
  formats::IniFile Settings(const std::string& language) const {
    return nomra::testing::Ini(data.WriteFile("settings.nrp", "[Settings]\r\nlng=" + language + "\r\n"));
  }
};

TEST(ChooseLanguage, NoLanguageFilesGivesNoLanguageFiles) {
  Folders folders;
  folders.app.WriteFile("readme.txt", "[Main]\r\nlngname=Deutsch\r\n");
  folders.app.MakeFolder("old.lng");  // a folder is no language file
  const auto choice = ChooseLanguage(folders.app.Path(), folders.Settings("Deutsch"));
  EXPECT_EQ(choice.outcome, LanguageOutcome::NoLanguageFiles);
  EXPECT_TRUE(choice.candidates.empty());
  EXPECT_EQ(choice.file, "");
}

TEST(ChooseLanguage, NoLanguageFilesTextNamesTheApplicationInBothLanguages) {
  EXPECT_EQ(NoLanguageFilesText("Nomra"),
            "Es wurden keine Sprachdateien im Programmverzeichnis gefunden. Bitte installieren Sie Nomra erneut.\n\n"
            "No language files found in the application directory. Please install Nomra again.");
  EXPECT_STREQ(kNoLanguageFilesCaption, "Fehler/Error");
}

TEST(ChooseLanguage, NoLanguageFilesTextListsTheFoldersSearched) {
  const std::string text = NoLanguageFilesText("Nomra", {"/usr/bin/", "/usr/share/nomra/"});
  EXPECT_TRUE(text.starts_with(NoLanguageFilesText("Nomra"))) << text;
  EXPECT_TRUE(text.ends_with("\n/usr/bin/\n/usr/share/nomra/")) << text;
}

TEST(ChooseLanguage, OneLanguageFileIsTakenWithoutReadingTheSetting) {
  Folders folders;
  const auto file = WriteLanguageFile(folders.app, "English.lng", {"[Main]", "lngname=English", "charset=0"});
  // The setting names a language there is no file for; with several files
  // that would leave the choice to the user.
  const auto choice = ChooseLanguage(folders.app.Path(), folders.Settings("Deutsch"));
  EXPECT_EQ(choice.outcome, LanguageOutcome::Chosen);
  EXPECT_EQ(choice.file, file);
  ASSERT_EQ(choice.candidates.size(), 1u);
  EXPECT_EQ(choice.candidates[0].languageName, "English");
}

TEST(ChooseLanguage, ChosenFileBringsItsCharset) {
  Folders folders;
  WriteLanguageFile(folders.app, "Russian.lng", {"[Main]", "lngname=Russian", "charset=204"});
  EXPECT_EQ(ChooseLanguage(folders.app.Path(), folders.Settings("Russian")).charset, 204);
}

TEST(ChooseLanguage, ChosenFileWithCharsetMinusOneBringsZero) {
  Folders folders;
  WriteLanguageFile(folders.app, "Deutsch.lng", {"[Main]", "lngname=Deutsch", "charset=-1"});
  WriteLanguageFile(folders.app, "English.lng", {"[Main]", "lngname=English", "charset=204"});
  const auto choice = ChooseLanguage(folders.app.Path(), folders.Settings("Deutsch"));
  ASSERT_EQ(choice.outcome, LanguageOutcome::Chosen);
  EXPECT_EQ(choice.charset, 0);
}

TEST(ChooseLanguage, SeveralFilesAndUnknownSettingLeaveTheChoiceToTheUser) {
  Folders folders;
  WriteLanguageFile(folders.app, "Deutsch.lng", {"[Main]", "lngname=Deutsch"});
  WriteLanguageFile(folders.app, "English.lng", {"[Main]", "lngname=English"});
  const auto choice = ChooseLanguage(folders.app.Path(), folders.Settings("Français"));
  EXPECT_EQ(choice.outcome, LanguageOutcome::UserMustChoose);
  EXPECT_EQ(choice.file, "");
  EXPECT_EQ(choice.candidates.size(), 2u);
}

TEST(ChooseLanguage, SeveralFilesAndNoSettingLeaveTheChoiceToTheUser) {
  Folders folders;
  WriteLanguageFile(folders.app, "Deutsch.lng", {"[Main]", "lngname=Deutsch"});
  WriteLanguageFile(folders.app, "Unnamed.lng", {"[Main]", "charset=0"});
  const auto choice = ChooseLanguage(folders.app.Path(), nomra::testing::Ini(folders.data.Path() + "settings.nrp"));
  EXPECT_EQ(choice.outcome, LanguageOutcome::UserMustChoose);
}

TEST(ChooseLanguage, SeveralFilesAndSettingInOtherCaseTakeTheMatchingFile) {
  Folders folders;
  WriteLanguageFile(folders.app, "a.lng", {"[Main]", "lngname=English"});
  const auto german = WriteLanguageFile(folders.app, "b.lng", {"[Main]", "lngname=Deutsch"});
  WriteLanguageFile(folders.app, "c.lng", {"[Main]", "lngname=Français"});
  const auto choice = ChooseLanguage(folders.app.Path(), folders.Settings("DEUTSCH"));
  EXPECT_EQ(choice.outcome, LanguageOutcome::Chosen);
  EXPECT_EQ(choice.file, german);
}

TEST(ChooseLanguage, ListsEveryLngFileWithItsLanguageNameWhateverTheCaseOfTheEnding) {
  Folders folders;
  const auto upper = WriteLanguageFile(folders.app, "Deutsch.LNG", {"[Main]", "lngname=Deutsch"});
  const auto lower = WriteLanguageFile(folders.app, "English.lng", {"[Main]", "lngname=English"});
  folders.app.WriteFile("English.lng.bak", "[Main]\r\nlngname=Old\r\n");
  auto files = ListLanguageFiles(nomra::testing::RealFiles(), folders.app.Path());
  std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
  ASSERT_EQ(files.size(), 2u);
  EXPECT_EQ(files[0].path, upper);
  EXPECT_EQ(files[0].languageName, "Deutsch");
  EXPECT_EQ(files[1].path, lower);
  EXPECT_EQ(files[1].languageName, "English");
}

TEST(ChooseLanguage, MissingProgramFolderHasNoLanguageFiles) {
  TempFolder temp;
  EXPECT_TRUE(ListLanguageFiles(nomra::testing::RealFiles(), temp.Path() + "gone/").empty());
}

}  // namespace
}  // namespace nomra::lang
