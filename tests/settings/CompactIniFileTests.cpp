#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "settings/CompactIniFile.h"
#include "support/FaultyFileSystem.h"
#include "support/PermissionCases.h"
#include "support/RealFiles.h"
#include "support/SecondVolume.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::RealFiles;

using nomra::testing::Exists;
using nomra::testing::PermissionBits;
using nomra::testing::ReadWholeFile;
using nomra::testing::TempFolder;

// Compacts a settings file with the given text in a fresh data folder and
// gives back the new text.
std::string Compacted(const TempFolder& temp, const std::string& text) {
  const auto file = temp.WriteFile("settings.nrp", text);
  EXPECT_TRUE(CompactIniFile(RealFiles(), file, temp.Path()));
  return ReadWholeFile(file);
}

TEST(SettingsCompaction, DropsLinesEndingInTheDeleteMarker) {
  TempFolder temp;
  EXPECT_EQ(Compacted(temp, "[Main]\r\nA=1\r\nB=<<DELETE>>\r\nC=x<<DELETE>>  \t\r\nD=2\r\n  <<DELETE>>\r\n"),
            "[Main]\r\nA=1\r\nD=2\r\n");
}

TEST(SettingsCompaction, KeepsLinesThatOnlyHoldTheMarkerInside) {
  TempFolder temp;
  EXPECT_EQ(Compacted(temp, "[Main]\r\nA=<<DELETE>>x\r\nB=<<DELETE\r\n"), "[Main]\r\nA=<<DELETE>>x\r\nB=<<DELETE\r\n");
}

TEST(SettingsCompaction, PutsAnEmptyLineBeforeASectionAfterANonEmptyLine) {
  TempFolder temp;
  EXPECT_EQ(Compacted(temp, "[One]\r\nA=1\r\n[Two]\r\nB=2\r\n"), "[One]\r\nA=1\r\n\r\n[Two]\r\nB=2\r\n");
}

TEST(SettingsCompaction, FirstLineSectionGetsNoEmptyLineAhead) {
  TempFolder temp;
  EXPECT_EQ(Compacted(temp, "[One]\r\nA=1\r\n"), "[One]\r\nA=1\r\n");
}

TEST(SettingsCompaction, KeepsOneEmptyLineBeforeASectionWhenTheKeyBeforeItWasDropped) {
  TempFolder temp;
  EXPECT_EQ(Compacted(temp, "[One]\r\nA=1\r\nGone=<<DELETE>>\r\n[Two]\r\nB=2\r\n"),
            "[One]\r\nA=1\r\n\r\n[Two]\r\nB=2\r\n");
}

TEST(SettingsCompaction, NeverMakesTwoEmptyLinesFromOne) {
  TempFolder temp;
  const std::string tidy = "[One]\r\nA=1\r\n\r\n[Two]\r\nB=2\r\n";
  EXPECT_EQ(Compacted(temp, tidy), tidy);
  // A second pass finds nothing more to do.
  EXPECT_EQ(Compacted(temp, Compacted(temp, "[One]\r\nA=1\r\n[Two]\r\nB=2\r\n")), tidy);
}

TEST(SettingsCompaction, KeepsTwoEmptyLinesTheSourceAlreadyHad) {
  TempFolder temp;
  const std::string roomy = "[One]\r\nA=1\r\n\r\n\r\n[Two]\r\nB=2\r\n";
  EXPECT_EQ(Compacted(temp, roomy), roomy);
}

TEST(SettingsCompaction, KeepsGarbageAndIndentedHeadersAsTheyStand) {
  TempFolder temp;
  // Only a "[" in the very first column counts as a header here.
  EXPECT_EQ(Compacted(temp, "junk line\r\n  [Indented]\r\nK=\xE4\r\n"), "junk line\r\n  [Indented]\r\nK=\xE4\r\n");
}

TEST(SettingsCompaction, WritesCrLfLineEnds) {
  TempFolder temp;
  EXPECT_EQ(Compacted(temp, "[One]\nA=1\nX=<<DELETE>>\n[Two]\nB=2"), "[One]\r\nA=1\r\n\r\n[Two]\r\nB=2\r\n");
}

TEST(SettingsCompaction, LeavesNoFormatTmpBehind) {
  TempFolder temp;
  Compacted(temp, "[Main]\r\nA=<<DELETE>>\r\n");
  EXPECT_FALSE(Exists(temp.Path() + "format.tmp"));
}

TEST(SettingsCompaction, TemporaryFileMayLieInAnotherFolder) {
  TempFolder temp;
  const std::string data = temp.MakeFolder("data");
  const auto file = temp.WriteFile("elsewhere/settings.nrp", "[Main]\r\nA=<<DELETE>>\r\nB=1\r\n");
  ASSERT_TRUE(CompactIniFile(RealFiles(), file, data));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nB=1\r\n");
  EXPECT_FALSE(Exists(data + "format.tmp"));
}

TEST(SettingsCompaction, MissingFileReturnsFalseAndCreatesNothing) {
  TempFolder temp;
  EXPECT_FALSE(CompactIniFile(RealFiles(), temp.Path() + "settings.nrp", temp.Path()));
  EXPECT_FALSE(Exists(temp.Path() + "settings.nrp"));
  EXPECT_FALSE(Exists(temp.Path() + "format.tmp"));
}

TEST(SettingsCompaction, DataFolderUnderARegularFileLeavesTheSettingsAlone) {
  TempFolder temp;
  const auto plain = temp.WriteFile("plain", "x");
  const std::string text = "[Main]\r\nA=<<DELETE>>\r\n";
  const auto file = temp.WriteFile("settings.nrp", text);
  EXPECT_FALSE(CompactIniFile(RealFiles(), file, plain + "/"));
  EXPECT_EQ(ReadWholeFile(file), text);
}

TEST(SettingsCompaction, KeepsTheFilesPermissions) {
  TempFolder temp;
  const auto file = temp.WriteFile("settings.nrp", "[Main]\r\nA=<<DELETE>>\r\n");
  ASSERT_EQ(chmod(file.c_str(), 0604), 0);
  ASSERT_TRUE(CompactIniFile(RealFiles(), file, temp.Path()));
  EXPECT_EQ(PermissionBits(file), 0604u);
}

TEST(SettingsCompaction, ReadOnlyFileStaysUnchanged) {
  TempFolder temp;
  const std::string text = "[Main]\r\nA=<<DELETE>>\r\n";
  const auto file = temp.WriteFile("settings.nrp", text);
  nomra::testing::FaultyFileSystem files;
  files.MakeFileReadOnly(file);
  EXPECT_FALSE(CompactIniFile(files, file, temp.Path()));
  EXPECT_GT(files.refused, 0);
  EXPECT_EQ(ReadWholeFile(file), text);
  EXPECT_FALSE(Exists(temp.Path() + "format.tmp"));
}

TEST(SettingsCompaction, FullDiskLeavesTheFileAndNoTemporary) {
  TempFolder temp;
  const std::string text = "[Main]\r\nA=<<DELETE>>\r\nB=1\r\n";
  const auto file = temp.WriteFile("settings.nrp", text);
  nomra::testing::FaultyFileSystem files;
  files.FillDisk();
  EXPECT_FALSE(CompactIniFile(files, file, temp.Path()));
  EXPECT_GT(files.refused, 0);
  EXPECT_EQ(ReadWholeFile(file), text);
  EXPECT_FALSE(Exists(temp.Path() + "format.tmp"));
}

TEST(SettingsCompaction, TemporaryFileOnAnotherFileSystem) {
  TempFolder temp;
  const auto other = nomra::testing::FolderOnSecondVolume(temp);
  if (!other) GTEST_SKIP() << nomra::testing::kNoSecondVolume;
  const auto settings = temp.WriteFile("settings.nrp", "[Main]\r\nA=<<DELETE>>\r\nB=1\r\n");
  ASSERT_TRUE(CompactIniFile(RealFiles(), settings, other->Path()));
  EXPECT_EQ(ReadWholeFile(settings), "[Main]\r\nB=1\r\n");
  EXPECT_FALSE(Exists(other->Path() + "format.tmp"));
}

}  // namespace
}  // namespace nomra::settings
