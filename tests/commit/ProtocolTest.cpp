// The rename protocol: one line per rename, appended, in the form other
// tools read it.
#include <gtest/gtest.h>

#include "base/DateText.h"
#include "commit/CommitFixture.h"
#include "commit/ProtocolWriter.h"
#include "shell/Startup.h"
#include "support/RealFiles.h"

namespace nomra::testing {
namespace {

using Names = std::vector<std::string>;
using RenameProtocol = CommitTest;

TEST(ProtocolRecordText, FieldsAreJoinedByQuotesAndEndInCrLf) {
  EXPECT_EQ(commit::ProtocolRecord(FixedLocalTime(), "/home/u/Fotos/", "img1.jpg", "Urlaub 01.jpg"),
            "20040315142305\"/home/u/Fotos/\"img1.jpg\"Urlaub 01.jpg\r\n");
}

TEST(ProtocolRecordText, NamesAreNeitherQuotedNorEscapedAndKeepTheirBytes) {
  EXPECT_EQ(commit::ProtocolRecord(FixedLocalTime(), "/d/", "a\"b", "caf\xE9 \xC3\xBF"),
            "20040315142305\"/d/\"a\"b\"caf\xE9 \xC3\xBF\r\n");
}

TEST_F(RenameProtocol, EachRenameOfABatchIsOneLineWithTheFinalName) {
  options.protocolRenames = true;
  data.WriteFile("renamed.nrp", "20000101000000\"/old/\"x\"y\r\n");
  AddRow("A");
  AddRow("B");
  Rename("A", "B");  // goes through "Bÿ"
  Rename("B", "C");

  const commit::CommitResult result = CommitAll();

  ASSERT_TRUE(result.notRenamed.empty());
  const std::string folder = files.Path();
  EXPECT_EQ(ReadWholeFile(ProtocolPath()),
            "20000101000000\"/old/\"x\"y\r\n"
            "20040315142305\"" +
                folder +
                "\"A\"B\r\n"
                "20040315142305\"" +
                folder + "\"B\"C\r\n");
}

TEST_F(RenameProtocol, FailedRenamesWriteNoLine) {
  options.protocolRenames = true;
  AddRow("a");
  AddRow("b");
  AddForeignFile("taken");
  Rename("a", "taken");
  Rename("b", "c");

  CommitAll();

  EXPECT_EQ(ReadWholeFile(ProtocolPath()), "20040315142305\"" + files.Path() + "\"b\"c\r\n");
}

TEST_F(RenameProtocol, WithoutLoggingTheFileIsOpenedButNothingWritten) {
  options.protocolRenames = false;
  AddRow("a");
  Rename("a", "x");
  ASSERT_FALSE(Exists(ProtocolPath()));

  const commit::CommitResult result = CommitAll();

  EXPECT_TRUE(result.notRenamed.empty());
  EXPECT_TRUE(Exists(ProtocolPath()));
  EXPECT_EQ(ReadWholeFile(ProtocolPath()), "");
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
}

// The journal lives in the same missing folder: its row follows the protocol's.
TEST_F(RenameProtocol, ProtocolThatCannotBeOpenedIsOneReportRowAndTheRenamesStillHappen) {
  options.protocolRenames = true;
  options.dataFolder = data.Path() + "missing/folder/";
  AddRow("a");
  Rename("a", "x");

  const commit::CommitResult result = CommitAll();

  ASSERT_EQ(TextKeys(result), (Names{"MsgText11", "MsgText06"}));
  EXPECT_EQ(result.notRenamed[0].rowKey, "");
  EXPECT_EQ(result.notRenamed[0].arguments, (Names{"\"\"", "\"\""}));
  EXPECT_EQ(result.notRenamed[0].about, "");
  EXPECT_EQ(result.notRenamed[1].about, "the commit journal");
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
  EXPECT_EQ(Row("x").key, PathOf("x"));
}

TEST_F(RenameProtocol, ListWithoutADataFolderReportsTheProtocolAndTheJournalAndWritesNoFileElsewhere) {
  options.dataFolder.clear();
  AddRow("a");
  Rename("a", "x");

  const commit::CommitResult result = CommitAll();

  EXPECT_EQ(TextKeys(result), (Names{"MsgText11", "MsgText06"}));
  EXPECT_FALSE(Exists("renamed.nrp"));
  EXPECT_FALSE(Exists("commit.journal"));
  EXPECT_EQ(NamesOnDisk(), Names{"x"});
}

TEST_F(RenameProtocol, StartUpReadsWhetherToLogAndWhereTheDataFolderIs) {
  data.WriteFile("settings.nrp", "[Settings]\r\nprotren=1\r\n");
  options.dataFolder.clear();
  const shell::StartupPaths paths = shell::PrepareStartup(RealFiles(), RealLocations(), data.Path());

  shell::LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});

  EXPECT_TRUE(options.protocolRenames);
  EXPECT_EQ(options.dataFolder, data.Path());
}

TEST_F(RenameProtocol, StartUpWithoutTheSettingDoesNotLog) {
  options.protocolRenames = true;
  shell::LoadStartupSettings(shell::PrepareStartup(RealFiles(), RealLocations(), data.Path()),
                             {fileSystem, frontEnd, options, script});
  EXPECT_FALSE(options.protocolRenames);
}

}  // namespace
}  // namespace nomra::testing
