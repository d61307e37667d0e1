// The rows Nomra's own open dialog shows for a folder, and the folder it
// shows for a path.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "open/FolderRows.h"
#include "support/FaultyFileSystem.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::open {
namespace {

using nomra::testing::RealFiles;
using nomra::testing::TempFolder;

std::vector<std::string> Names(const std::vector<FolderRow>& rows) {
  std::vector<std::string> names;
  for (const FolderRow& row : rows) names.push_back(row.name + (row.folder ? "/" : ""));
  return names;
}

TEST(OpenFolderRows, FoldersComeFirstThenFilesEachInNameOrderWithoutRegardToCase) {
  TempFolder temp;
  for (const char* name : {"b.txt", "A.txt", "c.TXT"}) temp.WriteFile(name);
  for (const char* name : {"zeta", "Alpha", "beta"}) temp.MakeFolder(name);
  EXPECT_EQ(Names(ListFolderRows(RealFiles(), temp.Path(), "*.*", false)),
            (std::vector<std::string>{"Alpha/", "beta/", "zeta/", "A.txt", "b.txt", "c.TXT"}));
}

TEST(OpenFolderRows, FolderKeysAreFullPathsAndFileKeysBareNames) {
  TempFolder temp;
  temp.WriteFile("a.txt");
  temp.MakeFolder("sub");
  const std::vector<FolderRow> rows = ListFolderRows(RealFiles(), temp.Path(), "*.*", false);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].key, temp.Path() + "sub");
  EXPECT_EQ(rows[1].key, "a.txt");
}

TEST(OpenFolderRows, OnlyFilesPassThePatternWhileEveryFolderIsShown) {
  TempFolder temp;
  for (const char* name : {"a.mp3", "b.jpg", "c.MP3"}) temp.WriteFile(name);
  temp.MakeFolder("covers.jpg.d");
  EXPECT_EQ(Names(ListFolderRows(RealFiles(), temp.Path(), "*.mp3", false)),
            (std::vector<std::string>{"covers.jpg.d/", "a.mp3", "c.MP3"}));
}

TEST(OpenFolderRows, HiddenNamesShowOnlyWhenAskedFor) {
  TempFolder temp;
  temp.WriteFile(".hidden.txt");
  temp.MakeFolder(".config");
  temp.WriteFile("shown.txt");
  EXPECT_EQ(Names(ListFolderRows(RealFiles(), temp.Path(), "*.*", false)), std::vector<std::string>{"shown.txt"});
  EXPECT_EQ(Names(ListFolderRows(RealFiles(), temp.Path(), "*.*", true)),
            (std::vector<std::string>{".config/", ".hidden.txt", "shown.txt"}));
}

TEST(OpenFolderRows, NameThatIsNotUtf8KeepsItsBytes) {
  TempFolder temp;
  const std::string name = "caf\xE9.txt";
  temp.WriteFile(name);
  const std::vector<FolderRow> rows = ListFolderRows(RealFiles(), temp.Path(), "*.*", false);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].key, name);
  EXPECT_EQ(rows[0].name, name);
}

TEST(OpenFolderRows, UnreadableFolderGivesNoRows) {
  TempFolder temp;
  temp.WriteFile("closed/a.txt");
  nomra::testing::FaultyFileSystem files;
  files.LockFolder(temp.Path() + "closed");
  EXPECT_TRUE(ListFolderRows(files, temp.Path() + "closed", "*.*", false).empty());
  EXPECT_EQ(files.refused, 1);
}

TEST(OpenParentFolder, GoesUpOneLevelAndAboveTheRootToTheLocations) {
  EXPECT_EQ(ParentFolder("/home/user/music"), "/home/user");
  EXPECT_EQ(ParentFolder("/home"), "/");
  EXPECT_EQ(ParentFolder("/"), "");
}

TEST(OpenNearestExistingFolder, AFolderThatIsThereIsShownItself) {
  TempFolder temp;
  const std::string folder = temp.MakeFolder("music");
  EXPECT_EQ(NearestExistingFolder(RealFiles(), folder), temp.Path() + "music");
}

TEST(OpenNearestExistingFolder, AFolderThatIsGoneGivesWayToTheNearestAboveIt) {
  TempFolder temp;
  temp.MakeFolder("music");
  EXPECT_EQ(NearestExistingFolder(RealFiles(), temp.Path() + "music/gone/deeper"), temp.Path() + "music");
}

TEST(OpenNearestExistingFolder, AFileGivesWayToItsFolder) {
  TempFolder temp;
  const std::string file = temp.WriteFile("music/a.mp3");
  EXPECT_EQ(NearestExistingFolder(RealFiles(), file), temp.Path() + "music");
}

TEST(OpenNearestExistingFolder, NoPathIsTheLocations) { EXPECT_EQ(NearestExistingFolder(RealFiles(), ""), ""); }

}  // namespace
}  // namespace nomra::open
