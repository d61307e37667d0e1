#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "settings/UpdateMerge.h"
#include "support/FaultyFileSystem.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::settings {
namespace {

using nomra::testing::Ini;

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;
using nomra::testing::TempFolder;

// An application folder with an update file and a data folder with the
// user's settings.
struct MergeFolders {
  TempFolder temp;
  std::string app = temp.MakeFolder("app");
  std::string data = temp.MakeFolder("data");
  std::string update = app + "update.nrp";
  std::string settings = data + "settings.nrp";

  MergeOutcome Merge() const { return MergeUpdateInstructions(Ini(update), Ini(settings), data); }
  void WriteUpdate(const std::string& text) const { temp.WriteFile("app/update.nrp", text); }
  void WriteSettings(const std::string& text) const { temp.WriteFile("data/settings.nrp", text); }
};

TEST(SettingsUpdateMerge, WithoutAnUpdateFileNothingChanges) {
  MergeFolders f;
  const std::string text = "[Main]\r\nVersion=1\r\nOld=<<DELETE>>\r\n";
  f.WriteSettings(text);
  EXPECT_EQ(f.Merge(), MergeOutcome::NoInstructions);
  EXPECT_EQ(ReadWholeFile(f.settings), text);
}

TEST(SettingsUpdateMerge, AddWritesAKeyOnlyWhenItIsMissing) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n[View]\r\nZoom=150\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Add]\r\nA1=View|Zoom|100\r\nA2=View|Grid|1\r\nA3=Fresh|Key|a b\r\n");
  EXPECT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(Ini(f.settings).ReadString("View", "Zoom"), "150");
  EXPECT_EQ(Ini(f.settings).ReadString("View", "Grid"), "1");
  EXPECT_EQ(Ini(f.settings).ReadString("Fresh", "Key"), "a b");
}

TEST(SettingsUpdateMerge, CopyMovesTheValueAndTheOldKeyIsGoneFromTheFile) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n[Old]\r\nColour=&H80C0FF\r\nKeep=1\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Copy]\r\nC1=Old|Colour|New|BackColour\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(Ini(f.settings).ReadString("New", "BackColour"), "&H80C0FF");
  EXPECT_EQ(ReadWholeFile(f.settings),
            "[Main]\r\nVersion=2\r\n\r\n[Old]\r\nKeep=1\r\n\r\n[New]\r\nBackColour=&H80C0FF\r\n");
}

TEST(SettingsUpdateMerge, CopyOfAMissingValueWritesNothing) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n[New]\r\nTarget=mine\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Copy]\r\nC1=Old|Absent|New|Target\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(Ini(f.settings).ReadString("New", "Target"), "mine");
  EXPECT_EQ(ReadWholeFile(f.settings).find("[Old]"), std::string::npos);
}

TEST(SettingsUpdateMerge, DelRemovesAKey) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n[View]\r\nObsolete=5\r\nZoom=100\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Del]\r\nD1=view|OBSOLETE\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(ReadWholeFile(f.settings), "[Main]\r\nVersion=2\r\n\r\n[View]\r\nZoom=100\r\n");
}

TEST(SettingsUpdateMerge, VersionIsWrittenIntoTheSettings) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1.4\r\n");
  f.WriteUpdate("[Main]\r\nVersion=1.5\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(Ini(f.settings).ReadString("Main", "Version"), "1.5");
}

TEST(SettingsUpdateMerge, UpdateFileIsDeletedAfterTheMerge) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Add]\r\nA1=View|Grid|1\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_FALSE(Exists(f.update));
  EXPECT_FALSE(Exists(f.data + "format.tmp"));
}

TEST(SettingsUpdateMerge, InstructionsStopAtTheFirstMissingNumber) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Add]\r\nA1=S|One|1\r\nA3=S|Three|3\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(Ini(f.settings).ReadString("S", "One"), "1");
  EXPECT_EQ(Ini(f.settings).ReadString("S", "Three"), "");
}

TEST(SettingsUpdateMerge, InstructionWithTooFewPartsIsSkipped) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n[S]\r\nA=1\r\nB=2\r\n");
  f.WriteUpdate(
      "[Main]\r\nVersion=2\r\n[Add]\r\nA1=S|Short\r\nA2=S|Added|yes\r\n"
      "[Copy]\r\nC1=S|A|T\r\nC2=S|B|T|B\r\n[Del]\r\nD1=nothing to split\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(Ini(f.settings).ReadString("S", "Short"), "");
  EXPECT_EQ(Ini(f.settings).ReadString("S", "Added"), "yes");
  EXPECT_EQ(Ini(f.settings).ReadString("S", "A"), "1");
  EXPECT_EQ(Ini(f.settings).ReadString("T", "B"), "2");
  EXPECT_EQ(Ini(f.settings).ReadString("Main", "Version"), "2");
}

TEST(SettingsUpdateMerge, EqualVersionsOnlyCompactAndDelete) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=7\r\nLeft=<<DELETE>>\r\n[View]\r\nObsolete=5\r\n");
  f.WriteUpdate("[Main]\r\nVersion=7\r\n[Add]\r\nA1=View|Grid|1\r\n[Del]\r\nD1=View|Obsolete\r\n");
  EXPECT_EQ(f.Merge(), MergeOutcome::AlreadyApplied);
  EXPECT_EQ(ReadWholeFile(f.settings), "[Main]\r\nVersion=7\r\n\r\n[View]\r\nObsolete=5\r\n");
  EXPECT_FALSE(Exists(f.update));
}

TEST(SettingsUpdateMerge, SameInstructionsAgainChangeNothing) {
  MergeFolders f;
  const std::string instructions = "[Main]\r\nVersion=2\r\n[Add]\r\nA1=View|Grid|1\r\n[Del]\r\nD1=View|Obsolete\r\n";
  f.WriteSettings("[Main]\r\nVersion=1\r\n[View]\r\nObsolete=5\r\n");
  f.WriteUpdate(instructions);
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  // The user sets both keys again by hand; the same instructions come back.
  ASSERT_TRUE(Ini(f.settings).Write("View", "Obsolete", "6"));
  ASSERT_TRUE(Ini(f.settings).Write("View", "Grid", "0"));
  const std::string byHand = ReadWholeFile(f.settings);
  f.WriteUpdate(instructions);
  EXPECT_EQ(f.Merge(), MergeOutcome::AlreadyApplied);
  EXPECT_EQ(ReadWholeFile(f.settings), byHand);
}

TEST(SettingsUpdateMerge, VersionTestPreventsASecondRunWhenTheDeleteFailed) {
  MergeFolders f;
  f.WriteSettings("[Main]\r\nVersion=1\r\n[View]\r\nObsolete=5\r\n");
  f.WriteUpdate("[Main]\r\nVersion=2\r\n[Del]\r\nD1=View|Obsolete\r\n");
  nomra::testing::FaultyFileSystem files;
  files.MakeFolderReadOnly(f.app);
  ASSERT_EQ(MergeUpdateInstructions(formats::IniFile(files, f.update), Ini(f.settings), f.data), MergeOutcome::Applied);
  EXPECT_EQ(files.refused, 1);
  ASSERT_TRUE(Exists(f.update));
  EXPECT_EQ(Ini(f.settings).ReadString("View", "Obsolete"), "");
  ASSERT_TRUE(Ini(f.settings).Write("View", "Obsolete", "6"));
  EXPECT_EQ(f.Merge(), MergeOutcome::AlreadyApplied);
  EXPECT_EQ(Ini(f.settings).ReadString("View", "Obsolete"), "6");
}

TEST(SettingsUpdateMerge, MissingSettingsFileIsCreatedFromTheInstructions) {
  MergeFolders f;
  f.WriteUpdate("[Main]\r\nVersion=3\r\n[Add]\r\nA1=View|Grid|1\r\n");
  ASSERT_EQ(f.Merge(), MergeOutcome::Applied);
  EXPECT_EQ(ReadWholeFile(f.settings), "[View]\r\nGrid=1\r\n\r\n[Main]\r\nVersion=3\r\n");
}

}  // namespace
}  // namespace nomra::settings
