// Reading the protocol into the history window: rows, colours and every kind
// of damaged file.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Fault.h"
#include "history/HistoryFixture.h"
#include "history/LoadHistory.h"

namespace nomra::testing {
namespace {

using Texts = std::vector<std::string>;
using Colours = std::vector<bool>;
using LoadHistory = HistoryTest;

TEST_F(LoadHistory, RowsComeInFileOrderWithDateFolderOldAndNewName) {
  CreateFiles({"b", "d"});
  WriteProtocol({Record("a", "b", "20040315142305"), Record("c", "d", "20040101000000")});

  Load();

  EXPECT_EQ(Column(0), (Texts{"2004-03-15, 14:23:05", "2004-01-01, 00:00:00"}));
  EXPECT_EQ(Column(1), (Texts{files.Path(), files.Path()}));
  EXPECT_EQ(Column(2), (Texts{"a", "c"}));
  EXPECT_EQ(Column(3), (Texts{"b", "d"}));
  EXPECT_EQ(list.rows[0].time, "20040315142305");
}

TEST_F(LoadHistory, RowIsBlackWhenItsNewNameExistsAndRedWhenNot) {
  CreateFiles({"here"});
  WriteProtocol({Record("a", "here"), Record("b", "gone")});

  Load();

  EXPECT_EQ(Black(), (Colours{true, false}));
}

TEST_F(LoadHistory, FileRenamedTwiceShowsOnlyItsLastRecordBlack) {
  CreateFiles({"C"});
  WriteProtocol({Record("A", "B"), Record("B", "C")});

  Load();

  EXPECT_EQ(Black(), (Colours{false, true}));
}

TEST_F(LoadHistory, EveryRowStartsUnselected) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  list.rows.push_back({});
  list.rows.back().selected = true;

  Load();

  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_FALSE(list.rows[0].selected);
}

TEST_F(LoadHistory, EmptyFileShowsAnEmptyListWithBothActionButtonsDisabled) {
  WriteProtocol({});

  Load();

  EXPECT_TRUE(list.rows.empty());
  EXPECT_FALSE(history::CanUndo(list));
  EXPECT_FALSE(history::CanDelete(list));
}

TEST_F(LoadHistory, MissingFileShowsAnEmptyList) {
  Load();
  EXPECT_TRUE(list.rows.empty());
}

TEST_F(LoadHistory, MissingDataFolderShowsAnEmptyList) {
  history::LoadHistory(list, data.Path() + "no/such/folder/", fileSystem);
  EXPECT_TRUE(list.rows.empty());
  history::LoadHistory(list, "", fileSystem);
  EXPECT_TRUE(list.rows.empty());
}

TEST_F(LoadHistory, ProtocolThatCantBeReadIsAFaultAndLeavesTheListEmpty) {
  data.MakeFolder("renamed.nrp");
  list.rows.push_back({});
  EXPECT_THROW(Load(), base::RuntimeFault);
  EXPECT_TRUE(list.rows.empty());
}

TEST_F(LoadHistory, LineWithoutSeparatorGivesARowWithOnlyADateTextThatStaysRed) {
  WriteProtocol({"20040315142305"});

  Load();

  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(Column(0), (Texts{"2004-03-15, 14:23:05"}));
  EXPECT_EQ(Column(1), (Texts{""}));
  EXPECT_EQ(Column(3), (Texts{""}));
  EXPECT_EQ(Black(), (Colours{false}));
}

TEST_F(LoadHistory, GarbageLinesBecomeRedRowsBesideTheSoundOnes) {
  CreateFiles({"b"});
  std::string binary("\x00\x01\x02\x7F\xFF\"\x00\"\x80", 9);
  WriteProtocol({"garbage", binary, Record("a", "b"), "\"\"\"\"\"\""});

  Load();

  ASSERT_EQ(list.rows.size(), 4u);
  EXPECT_EQ(Black(), (Colours{false, false, true, false}));
}

TEST_F(LoadHistory, VeryLongLineBecomesOneRedRow) {
  const std::string longName(1 << 20, 'n');
  CreateFiles({"b"});
  WriteProtocol({Record("a", longName), Record("a", "b")});

  Load();

  ASSERT_EQ(list.rows.size(), 2u);
  EXPECT_EQ(list.rows[0].newName, longName);
  EXPECT_EQ(Black(), (Colours{false, true}));
}

TEST_F(LoadHistory, BlankLinesHoldNoRecord) {
  CreateFiles({"b", "d"});
  data.WriteFile("renamed.nrp", "\r\n" + Record("a", "b") + "\r\n\r\n\r\n" + Record("c", "d") + "\r\n\r\n");

  Load();

  EXPECT_EQ(Column(2), (Texts{"a", "c"}));
}

TEST_F(LoadHistory, LineFeedsAndCarriageReturnsAloneEndLinesToo) {
  data.WriteFile("renamed.nrp", Record("a", "b") + "\n" + Record("c", "d") + "\r" + Record("e", "f"));

  Load();

  EXPECT_EQ(Column(2), (Texts{"a", "c", "e"}));
  EXPECT_EQ(Column(3), (Texts{"b", "d", "f"}));
}

TEST_F(LoadHistory, ByteOrderMarkInFrontIsNotPartOfTheFirstDate) {
  data.WriteFile("renamed.nrp", "\xEF\xBB\xBF" + Record("a", "b") + "\r\n");

  Load();

  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(list.rows[0].time, kTime);
}

TEST_F(LoadHistory, LineInTheWesternCodePageIsReadAsWindows1252) {
  CreateFiles({"Caf\xC3\xA9 \xE2\x82\xAC.txt"});
  WriteProtocol({Record("caf\xE9.txt", "Caf\xE9 \x80.txt")});

  Load();

  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(list.rows[0].oldName, "caf\xC3\xA9.txt");
  EXPECT_EQ(list.rows[0].newName, "Caf\xC3\xA9 \xE2\x82\xAC.txt");
  EXPECT_EQ(Black(), (Colours{true}));
}

TEST_F(LoadHistory, NameThatIsntUtf8OnDiskKeepsItsBytes) {
  CreateFiles({"caf\xE9.txt"});
  WriteProtocol({Record("old\xE9.txt", "caf\xE9.txt")});

  Load();

  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(list.rows[0].oldName, "old\xE9.txt");
  EXPECT_EQ(list.rows[0].newName, "caf\xE9.txt");
  EXPECT_EQ(Black(), (Colours{true}));
}

TEST_F(LoadHistory, OneWindows1252LineLeavesTheUtf8LinesAsTheyAre) {
  CreateFiles(
      {"\xC3\xBC"
       "ber.txt"});
  WriteProtocol({Record("x\xFC.txt", "y\xFC.txt"), Record("alt.txt",
                                                          "\xC3\xBC"
                                                          "ber.txt")});

  Load();

  ASSERT_EQ(list.rows.size(), 2u);
  EXPECT_EQ(list.rows[0].newName, "y\xC3\xBC.txt");
  EXPECT_EQ(list.rows[1].newName,
            "\xC3\xBC"
            "ber.txt");
  EXPECT_EQ(Black(), (Colours{false, true}));
}

TEST_F(LoadHistory, NewNameReachingIntoAnotherFolderIsRed) {
  files.WriteFile("sub/inner", "x");
  CreateFiles({"plain"});
  const std::string folderName = std::filesystem::path(files.Path()).parent_path().filename().string();
  WriteProtocol({Record("a", "sub/inner"), Record("b", "../" + folderName + "/plain")});

  Load();

  EXPECT_EQ(Black(), (Colours{false, false}));
}

TEST_F(LoadHistory, FolderThatIsNoAbsolutePathIsRed) {
  CreateFiles({"b"});
  // The file is there when the folder is taken from the working folder.
  const std::string relative = std::filesystem::relative(files.Path()).string() + "/";
  ASSERT_TRUE(Exists(relative + "b"));
  WriteProtocol({std::string(kTime) + "\"" + relative + "\"a\"b", std::string(kTime) + "\"C:\\Fotos\\\"a\"b"});

  Load();

  EXPECT_EQ(Black(), (Colours{false, false}));
}

TEST_F(LoadHistory, NewNameThatIsAFolderIsRed) {
  files.MakeFolder("folder");
  WriteProtocol({Record("a", "folder")});

  Load();

  EXPECT_EQ(Black(), (Colours{false}));
}

TEST_F(LoadHistory, FolderWithoutItsLastSeparatorStillFindsTheFile) {
  CreateFiles({"b"});
  std::string folder = files.Path();
  folder.pop_back();
  WriteProtocol({std::string(kTime) + "\"" + folder + "\"a\"b"});

  Load();

  EXPECT_EQ(Black(), (Colours{true}));
}

TEST_F(LoadHistory, LoadingAgainShowsWhatTheDiskHoldsNow) {
  CreateFiles({"b"});
  WriteProtocol({Record("a", "b")});
  Load();
  ASSERT_EQ(Black(), (Colours{true}));

  std::filesystem::rename(files.Path() + "b", files.Path() + "elsewhere");
  Load();

  EXPECT_EQ(Black(), (Colours{false}));
}

}  // namespace
}  // namespace nomra::testing
