#include <gtest/gtest.h>

#include "script/ScriptFiles.h"
#include "script/ScriptFixture.h"
#include "support/RealFiles.h"

namespace nomra::script {
namespace {

using testing::ScriptMoment;

class ScriptFilesTest : public testing::ScriptTest {
 protected:
  std::vector<std::string> ListedNames() {
    std::vector<std::string> names;
    for (const StoredScript& script : ListStoredScripts(fileSystem, data.Path())) names.push_back(script.fileName);
    std::sort(names.begin(), names.end());
    return names;
  }
};

TEST_F(ScriptFilesTest, ScriptsLieInTheFolderScriptOfTheDataFolder) {
  EXPECT_EQ(ScriptFolder("/data/"), "/data/Script/");
  EXPECT_EQ(ScriptFolder("/data"), "/data/Script/");
}

TEST_F(ScriptFilesTest, FileNameIsTheMomentOfStoringInFourteenDigits) {
  EXPECT_EQ(ScriptFileName(ScriptMoment()), "20261115023303.nrs");
  EXPECT_EQ(ScriptFileName(testing::Moment(2027, 1, 2, 23, 4, 5)), "20270102230405.nrs");
}

TEST_F(ScriptFilesTest, DateOfAScriptIsCutFromItsFileName) {
  EXPECT_EQ(FormatScriptDate("20261115023303.nrs"), "2026-11-15, 02:33:03");
}

TEST_F(ScriptFilesTest, OtherFileNamesGiveACutUpDateWithoutComplaint) {
  EXPECT_EQ(FormatScriptDate("abc.nrs"), "abc.-nr-s, ::");
  EXPECT_EQ(FormatScriptDate(""), "--, ::");
  EXPECT_EQ(FormatScriptDate("äöüäöüäöüäöüäöü"), "äöüä-öü-äö, üä:öü:äö");
}

TEST_F(ScriptFilesTest, DisplayTextIsTheStoredNameAndTheDate) {
  const std::string path = WriteScript("20261115023303.nrs", "[Main]\r\nSteps=1\r\nName=Holiday pictures\r\n");
  EXPECT_EQ(ScriptDisplayText(nomra::testing::Ini(path), "20261115023303.nrs"),
            "Holiday pictures [2026-11-15, 02:33:03]");
}

TEST_F(ScriptFilesTest, MissingScriptsFolderListsNothing) {
  EXPECT_FALSE(testing::Exists(ScriptFolderPath()));
  EXPECT_TRUE(ListStoredScripts(fileSystem, data.Path()).empty());
}

TEST_F(ScriptFilesTest, EmptyScriptsFolderListsNothing) {
  data.MakeFolder("Script");
  EXPECT_TRUE(ListStoredScripts(fileSystem, data.Path()).empty());
}

TEST_F(ScriptFilesTest, OnlyFilesEndingInNrsAreListed) {
  WriteScript("20261115023303.nrs", "[Main]\r\nName=one\r\n");
  WriteScript("20261115023304.NRS", "[Main]\r\nName=two\r\n");
  WriteScript("script.tmp", "[Main]\r\nName=work\r\n");
  WriteScript("notes.txt", "");
  WriteScript(".nrs", "");
  data.MakeFolder("Script/20261115023305.nrs");
  EXPECT_EQ(ListedNames(), (std::vector<std::string>{"20261115023303.nrs", "20261115023304.NRS"}));
}

TEST_F(ScriptFilesTest, ScriptsWithTheSameDisplayNameAreTellApartByTheirFileNames) {
  WriteScript("20261115023303.nrs", "[Main]\r\nName=Same = [name]\r\n");
  WriteScript("20261115023304.nrs", "[Main]\r\nName=Same = [name]\r\n");
  std::vector<std::string> texts;
  for (const StoredScript& script : ListStoredScripts(fileSystem, data.Path())) texts.push_back(script.displayText);
  std::sort(texts.begin(), texts.end());
  EXPECT_EQ(texts,
            (std::vector<std::string>{"Same = [name] [2026-11-15, 02:33:03]", "Same = [name] [2026-11-15, 02:33:04]"}));
}

TEST_F(ScriptFilesTest, ScriptWithoutNameShowsOnlyItsDate) {
  WriteScript("20261115023303.nrs", "[Main]\r\nSteps=1\r\n");
  const std::vector<StoredScript> scripts = ListStoredScripts(fileSystem, data.Path());
  ASSERT_EQ(scripts.size(), 1u);
  EXPECT_EQ(scripts[0].displayText, " [2026-11-15, 02:33:03]");
}

TEST_F(ScriptFilesTest, NameOfAScriptThatIsNotUtf8IsReadAsWindows1252) {
  WriteScript("20261115023303.nrs", "[Main]\r\nName=Caf\xE9 \x80\r\n");
  const std::vector<StoredScript> scripts = ListStoredScripts(fileSystem, data.Path());
  ASSERT_EQ(scripts.size(), 1u);
  EXPECT_EQ(scripts[0].displayText, "Café € [2026-11-15, 02:33:03]");
}

}  // namespace
}  // namespace nomra::script
