// Writing the history back: the rewrite through "renamed.tmp" and the
// deletion of the whole history.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Fault.h"
#include "history/HistoryFixture.h"
#include "history/LoadHistory.h"
#include "history/WriteHistory.h"

namespace nomra::testing {
namespace {

using WriteHistory = HistoryTest;
using DeleteHistory = HistoryTest;

TEST_F(WriteHistory, RowsAreWrittenInTheOrderShownWithCrLf) {
  WriteProtocol({Record("b", "2"), Record("a", "1")});
  Load();
  history::ClickHistoryHead(list, 2);

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(Protocol(), Record("a", "1") + "\r\n" + Record("b", "2") + "\r\n");
}

TEST_F(WriteHistory, ReadingAndWritingKeepsASoundProtocolByteForByte) {
  CreateFiles({"caf\xE9.txt"});
  WriteProtocol({Record("a", "b"), Record("old\xE9", "caf\xE9.txt"), Record("x \xC3\xA4", "y")});
  const std::string before = Protocol();
  Load();

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(Protocol(), before);
}

TEST_F(WriteHistory, NoTemporaryFileStaysBehind) {
  WriteProtocol({Record("a", "b")});
  Load();

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_FALSE(Exists(data.Path() + "renamed.tmp"));
}

TEST_F(WriteHistory, TemporaryFileLeftByACrashAddsNothing) {
  WriteProtocol({Record("a", "b")});
  data.WriteFile("renamed.tmp", "19990101000000\"/stale/\"x\"y\r\n");
  Load();

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(Protocol(), Record("a", "b") + "\r\n");
  EXPECT_FALSE(Exists(data.Path() + "renamed.tmp"));
}

TEST_F(WriteHistory, FailedRewriteLeavesTheOldProtocolWhole) {
  WriteProtocol({Record("a", "b"), Record("c", "d")});
  const std::string before = Protocol();
  Load();
  list.rows.pop_back();
  data.MakeFolder("renamed.tmp");

  EXPECT_THROW(history::writeHistoryData(list, data.Path(), fileSystem), base::RuntimeFault);

  EXPECT_EQ(Protocol(), before);
}

TEST_F(WriteHistory, MissingDataFolderIsAFault) {
  EXPECT_THROW(history::writeHistoryData(list, data.Path() + "no/such/", fileSystem), base::RuntimeFault);
  EXPECT_THROW(history::writeHistoryData(list, "", fileSystem), base::RuntimeFault);
}

TEST_F(WriteHistory, MissingProtocolIsCreated) {
  history::HistoryRow row;
  row.time = kTime;
  row.folder = "/d/";
  row.oldName = "a";
  row.newName = "b";
  list.rows.push_back(row);

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(Protocol(), std::string(kTime) + "\"/d/\"a\"b\r\n");
}

TEST_F(WriteHistory, Windows1252LineIsWrittenBackAsUtf8) {
  WriteProtocol({Record("caf\xE9", "gone\x80")});
  Load();

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(Protocol(), Record("caf\xC3\xA9", "gone\xE2\x82\xAC") + "\r\n");
}

TEST_F(WriteHistory, LineWithoutSeparatorIsWrittenBackWithEmptyFields) {
  WriteProtocol({"garbage"});
  Load();

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(Protocol(), "garbage\"\"\"\r\n");
}

TEST_F(WriteHistory, PermissionsOfTheProtocolAreKept) {
  WriteProtocol({Record("a", "b")});
  std::filesystem::permissions(ProtocolPath(), std::filesystem::perms(0640));
  Load();

  history::writeHistoryData(list, data.Path(), fileSystem);

  EXPECT_EQ(std::filesystem::status(ProtocolPath()).permissions() & std::filesystem::perms::all,
            std::filesystem::perms(0640));
}

TEST_F(DeleteHistory, YesEmptiesListAndProtocol) {
  WriteProtocol({Record("a", "b"), Record("c", "d")});
  Load();
  frontEnd.answers.push_back(core::Answer::Yes);

  EXPECT_TRUE(history::cmdDeleteHistory(list, services));

  EXPECT_TRUE(list.rows.empty());
  EXPECT_FALSE(history::CanDelete(list));
  EXPECT_TRUE(Exists(ProtocolPath()));
  EXPECT_EQ(Protocol(), "");
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked[0].textKey, "MsgText19");
  EXPECT_EQ(frontEnd.asked[0].captionKey, "msgCapAttention");
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoWarningDefaultNo);
  EXPECT_EQ(frontEnd.asked[0].arguments, std::vector<std::string>{"\n\n"});
}

TEST_F(DeleteHistory, AnyAnswerButYesKeepsEverything) {
  WriteProtocol({Record("a", "b")});
  const std::string before = Protocol();
  Load();
  frontEnd.answers.push_back(core::Answer::Cancel);

  EXPECT_FALSE(history::cmdDeleteHistory(list, services));

  EXPECT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(Protocol(), before);
}

TEST_F(DeleteHistory, RenamedFilesKeepTheirNames) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  Load();
  frontEnd.answers.push_back(core::Answer::Yes);

  history::cmdDeleteHistory(list, services);

  EXPECT_EQ(NamesOnDisk(), std::set<std::string>{"b"});
}

}  // namespace
}  // namespace nomra::testing
