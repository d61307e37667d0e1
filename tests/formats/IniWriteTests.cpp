#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "support/FaultyFileSystem.h"
#include "support/PermissionCases.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::formats {
namespace {

using nomra::testing::Ini;

using nomra::testing::Exists;
using nomra::testing::FaultyFileSystem;
using nomra::testing::PermissionBits;
using nomra::testing::ReadWholeFile;
using nomra::testing::TempFolder;

int EntriesIn(const std::string& folder) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    (void)entry;
    ++count;
  }
  return count;
}

TEST(SettingsWrite, CreatesAMissingFile) {
  TempFolder temp;
  const std::string file = temp.Path() + "settings.nrp";
  ASSERT_TRUE(Ini(file).Write("Main", "Key", "value"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nKey=value\r\n");
  EXPECT_EQ(Ini(file).ReadString("Main", "Key"), "value");
}

TEST(SettingsWrite, DoesNotCreateAMissingFolder) {
  TempFolder temp;
  const std::string file = temp.Path() + "absent/settings.nrp";
  EXPECT_FALSE(Ini(file).Write("Main", "Key", "value"));
  EXPECT_FALSE(Exists(temp.Path() + "absent"));
}

TEST(SettingsWrite, ReplacesAValueInPlaceKeepingEveryOtherLineByteForByte) {
  TempFolder temp;
  const std::string before =
      "; a note\r\nloose line\r\n[Main]\r\n  Left = 10\r\n!!garbage!!\r\nTop=20\r\n\r\n[Other]\r\nLeft=30\r\n";
  const auto file = temp.WriteFile("s.nrp", before);
  ASSERT_TRUE(Ini(file).Write("main", "LEFT", "99"));
  EXPECT_EQ(ReadWholeFile(file),
            "; a note\r\nloose line\r\n[Main]\r\nLeft=99\r\n!!garbage!!\r\nTop=20\r\n\r\n[Other]\r\nLeft=30\r\n");
}

TEST(SettingsWrite, ReplacesOnlyTheFirstOfTwoEqualKeysInTheFirstSection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nKey=1\r\nkey=2\r\n[MAIN]\r\nKey=3\r\n");
  ASSERT_TRUE(Ini(file).Write("Main", "Key", "new"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nKey=new\r\nkey=2\r\n[MAIN]\r\nKey=3\r\n");
}

TEST(SettingsWrite, AppendsANewKeyAtTheEndOfItsSection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\nB=2\r\n\r\n[Other]\r\nC=3\r\n");
  ASSERT_TRUE(Ini(file).Write("Main", "New", "x"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\nB=2\r\nNew=x\r\n\r\n[Other]\r\nC=3\r\n");
}

TEST(SettingsWrite, AppendsANewKeyRightAfterTheHeaderOfAnEmptySection) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Empty]\r\n\r\n[Other]\r\nC=3\r\n");
  ASSERT_TRUE(Ini(file).Write("Empty", "New", "x"));
  EXPECT_EQ(ReadWholeFile(file), "[Empty]\r\nNew=x\r\n\r\n[Other]\r\nC=3\r\n");
}

TEST(SettingsWrite, AppendsANewSectionAfterAnEmptyLine) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  ASSERT_TRUE(Ini(file).Write("Added", "Key", "v"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n\r\n[Added]\r\nKey=v\r\n");
}

TEST(SettingsWrite, NewSectionAfterAFinalEmptyLineGetsNoSecondOne) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n\r\n");
  ASSERT_TRUE(Ini(file).Write("Added", "Key", "v"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n\r\n[Added]\r\nKey=v\r\n");
}

TEST(SettingsWrite, NewSectionInAnEmptyFileStartsAtTheTop) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "");
  ASSERT_TRUE(Ini(file).Write("Main", "Key", "v"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nKey=v\r\n");
}

TEST(SettingsWrite, WritesCrLfLineEnds) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\nA=1\nB=2");
  ASSERT_TRUE(Ini(file).Write("Main", "C", "3"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\nB=2\r\nC=3\r\n");
}

TEST(SettingsWrite, NumberOverloadWritesDecimalText) {
  TempFolder temp;
  const std::string file = temp.Path() + "s.nrp";
  ASSERT_TRUE(Ini(file).Write("Main", "Neg", -42L));
  ASSERT_TRUE(Ini(file).Write("Main", "Pos", 8438015L));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nNeg=-42\r\nPos=8438015\r\n");
  EXPECT_EQ(Ini(file).ReadInt("Main", "Pos"), 8438015);
}

TEST(SettingsWrite, Windows1252FileIsRewrittenAsUtf8) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nOld=K\xE4se\r\n");
  ASSERT_TRUE(Ini(file).Write("Main", "New", "Bär"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nOld=Käse\r\nNew=Bär\r\n");
}

TEST(SettingsWrite, ValueWithALineBreakKeepsOnlyItsFirstLine) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  ASSERT_TRUE(Ini(file).Write("Main", "A", "first\r\n[Injected]\nx=y"));
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=first\r\n");
}

TEST(SettingsWrite, LeavesNoTemporaryFileBehind) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  ASSERT_TRUE(Ini(file).Write("Main", "A", "2"));
  ASSERT_TRUE(Ini(file).Write("Main", "B", "3"));
  EXPECT_EQ(EntriesIn(temp.Path()), 1);
}

TEST(SettingsWrite, KeepsTheFilesPermissions) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  ASSERT_EQ(chmod(file.c_str(), 0640), 0);
  ASSERT_TRUE(Ini(file).Write("Main", "A", "2"));
  EXPECT_EQ(PermissionBits(file), 0640u);
}

TEST(SettingsWrite, WritesThroughASymbolicLink) {
  TempFolder temp;
  const auto real = temp.WriteFile("real/s.nrp", "[Main]\r\nA=1\r\n");
  const std::string link = temp.Path() + "link.nrp";
  ASSERT_EQ(symlink(real.c_str(), link.c_str()), 0);
  ASSERT_TRUE(Ini(link).Write("Main", "A", "2"));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(ReadWholeFile(real), "[Main]\r\nA=2\r\n");
}

TEST(SettingsWrite, PathUnderARegularFileReturnsFalse) {
  TempFolder temp;
  const auto plain = temp.WriteFile("plain", "not a folder");
  EXPECT_FALSE(Ini(plain + "/s.nrp").Write("Main", "Key", "v"));
  EXPECT_FALSE(Ini(plain + "/s.nrp").Write("Main", "Key", 1L));
  EXPECT_EQ(ReadWholeFile(plain), "not a folder");
}

TEST(SettingsWrite, FolderInPlaceOfTheFileReturnsFalse) {
  TempFolder temp;
  const std::string folder = temp.MakeFolder("s.nrp");
  EXPECT_FALSE(Ini(folder.substr(0, folder.size() - 1)).Write("Main", "Key", "v"));
  EXPECT_EQ(EntriesIn(folder), 0);
}

TEST(SettingsWrite, ReadOnlyFolderReturnsFalseAndLeavesTheFile) {
  TempFolder temp;
  const std::string folder = temp.MakeFolder("locked");
  const auto file = temp.WriteFile("locked/s.nrp", "[Main]\r\nA=1\r\n");
  FaultyFileSystem files;
  files.MakeFolderReadOnly(folder);
  EXPECT_FALSE(IniFile(files, file).Write("Main", "A", "2"));
  EXPECT_FALSE(IniFile(files, file).Write("Main", "B", "3"));
  EXPECT_GT(files.refused, 0);
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n");
  EXPECT_EQ(EntriesIn(folder), 1);
}

TEST(SettingsWrite, ReadOnlyFileReturnsFalseAndStaysUnchanged) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  FaultyFileSystem files;
  files.MakeFileReadOnly(file);
  EXPECT_FALSE(IniFile(files, file).Write("Main", "A", "2"));
  EXPECT_GT(files.refused, 0);
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n");
  EXPECT_EQ(EntriesIn(temp.Path()), 1);
}

TEST(SettingsWrite, UnreadableFileIsNotReplaced) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  FaultyFileSystem files;
  files.MakeFileUnreadable(file);
  EXPECT_FALSE(IniFile(files, file).Write("Main", "B", "2"));
  EXPECT_GT(files.refused, 0);
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n");
}

TEST(SettingsWrite, FullDiskReturnsFalseAndLeavesTheFile) {
  TempFolder temp;
  const auto file = temp.WriteFile("s.nrp", "[Main]\r\nA=1\r\n");
  FaultyFileSystem files;
  files.FillDisk();
  EXPECT_FALSE(IniFile(files, file).Write("Main", "A", "2"));
  EXPECT_GT(files.refused, 0);
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=1\r\n");
  EXPECT_EQ(EntriesIn(temp.Path()), 1);
}

}  // namespace
}  // namespace nomra::formats
