// A record of the protocol: its four fields and the date as the window shows it.
#include <gtest/gtest.h>

#include "history/HistoryRecord.h"

namespace nomra::history {
namespace {

TEST(FormatHistoryDate, StoredTimeIsShownWithDashesCommaAndColons) {
  EXPECT_EQ(FormatHistoryDate("20040315142305"), "2004-03-15, 14:23:05");
}

TEST(FormatHistoryDate, ShortTextGivesItsPiecesAndEmptyOnesBeyondItsEnd) {
  EXPECT_EQ(FormatHistoryDate("2004031"), "2004-03-1, ::");
  EXPECT_EQ(FormatHistoryDate(""), "--, ::");
}

TEST(FormatHistoryDate, OnlyTheFirstFourteenCharactersAreShown) {
  EXPECT_EQ(FormatHistoryDate("20040315142305999" + std::string(100000, 'x')), "2004-03-15, 14:23:05");
}

TEST(FormatHistoryDate, PiecesAreCutByCharacterNotByByte) {
  const std::string umlauts = "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F";  // four characters, eight bytes
  EXPECT_EQ(FormatHistoryDate(umlauts + "abcdefghij"), umlauts + "-ab-cd, ef:gh:ij");
}

TEST(FormatHistoryDate, StrayBytesCountAsOneCharacterEachAndKeepTheirValue) {
  EXPECT_EQ(FormatHistoryDate("\xFF\xFE"
                              "2003"),
            "\xFF\xFE"
            "20-03-, ::");
}

TEST(ParseHistoryRecord, FourFieldsAreSplitAtTheDoubleQuotes) {
  const auto row = ParseHistoryRecord("20040315142305\"/home/u/Fotos/\"img1.jpg\"Urlaub 01.jpg");
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->time, "20040315142305");
  EXPECT_EQ(row->folder, "/home/u/Fotos/");
  EXPECT_EQ(row->oldName, "img1.jpg");
  EXPECT_EQ(row->newName, "Urlaub 01.jpg");
  EXPECT_FALSE(row->selected);
}

TEST(ParseHistoryRecord, FieldsBeyondTheFourthAreDropped) {
  const auto row = ParseHistoryRecord("t\"/d/\"a\"b\"c\"d");
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->newName, "b");
  EXPECT_EQ(HistoryRecordLine(*row), "t\"/d/\"a\"b");
}

TEST(ParseHistoryRecord, LineWithoutSeparatorIsATimeAlone) {
  const auto row = ParseHistoryRecord("no separator here");
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->time, "no separator here");
  EXPECT_EQ(row->folder, "");
  EXPECT_EQ(row->oldName, "");
  EXPECT_EQ(row->newName, "");
}

TEST(ParseHistoryRecord, EmptyLineHoldsNoRecord) { EXPECT_FALSE(ParseHistoryRecord("").has_value()); }

TEST(ParseHistoryRecord, LineOfSeparatorsOnlyGivesEmptyFields) {
  const auto row = ParseHistoryRecord("\"\"\"");
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(HistoryRecordLine(*row), "\"\"\"");
}

TEST(HistoryRow, ColumnsShowTheDateInDisplayFormAndTheFields) {
  HistoryRow row;
  row.time = "19991231235959";
  row.folder = "/f/";
  row.oldName = "a";
  row.newName = "b";
  EXPECT_EQ(row.ColumnText(0), "1999-12-31, 23:59:59");
  EXPECT_EQ(row.ColumnText(1), "/f/");
  EXPECT_EQ(row.ColumnText(2), "a");
  EXPECT_EQ(row.ColumnText(3), "b");
  EXPECT_EQ(row.ColumnText(4), "");
}

TEST(HistoryRecordLine, StoredTimeIsWrittenAsItWasRead) {
  const auto row = ParseHistoryRecord("2004-garbage\"/d/\"a\"b");
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(HistoryRecordLine(*row), "2004-garbage\"/d/\"a\"b");
}

}  // namespace
}  // namespace nomra::history
