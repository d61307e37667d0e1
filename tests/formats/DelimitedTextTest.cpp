#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/DelimitedText.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::formats {
namespace {

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;
using nomra::testing::RealFiles;
using nomra::testing::TempFolder;
using Fields = std::vector<std::string>;

class DelimitedTextTest : public ::testing::Test {
 protected:
  std::string Write(const std::string& content) { return temp.WriteFile("list.csv", content); }

  DelimitedList Load(const std::string& content, bool firstLineIsData = false, int columns = 0) {
    DelimitedList list{columns, {}};
    LoadListFromFile(RealFiles(), Write(content), firstLineIsData, list);
    return list;
  }

  static std::vector<std::string> Texts(const DelimitedList& list) {
    std::vector<std::string> texts;
    for (const DelimitedRow& row : list.rows) texts.push_back(row.text);
    return texts;
  }

  TempFolder temp;
};

TEST_F(DelimitedTextTest, TabWhenEveryLineHoldsOneAndNotEveryLineACommaOrSemicolon) {
  EXPECT_EQ(DetectSeparator(RealFiles(), Write("a\tb,c\r\nd\te;f\r\n")), "\t");
}

TEST_F(DelimitedTextTest, TabLosesWhenEveryLineAlsoHoldsASemicolon) {
  EXPECT_EQ(DetectSeparator(RealFiles(), Write("a\tb;c\r\nd\te;f\r\n")), ";");
}

TEST_F(DelimitedTextTest, CommaWhenEveryLineHoldsOneAndNotEveryLineASemicolon) {
  EXPECT_EQ(DetectSeparator(RealFiles(), Write("a,b;c\r\nd,e\r\n")), ",");
}

TEST_F(DelimitedTextTest, SemicolonWinsOverCommasWhenEveryLineHoldsBoth) {
  EXPECT_EQ(DetectSeparator(RealFiles(), Write("a,b;c\r\nd;e,f\r\n")), ";");
}

TEST_F(DelimitedTextTest, NoSeparatorWhenOneLineLacksEveryCandidate) {
  EXPECT_EQ(DetectSeparator(RealFiles(), Write("a;b\r\nplain\r\nc;d\r\n")), "");
}

TEST_F(DelimitedTextTest, MissingOrEmptyFileHasNoSeparator) {
  EXPECT_EQ(DetectSeparator(RealFiles(), temp.Path() + "none.csv"), "");
  EXPECT_EQ(DetectSeparator(RealFiles(), Write("")), "");
}

TEST_F(DelimitedTextTest, FieldsCountFromZeroAndAFinalSeparatorAddsAnEmptyOne) {
  EXPECT_EQ(SplitDelimitedLine("a;b;", ";"), (Fields{"a", "b", ""}));
  EXPECT_EQ(SplitDelimitedLine("a;b", ";"), (Fields{"a", "b"}));
  EXPECT_EQ(SplitDelimitedLine(";", ";"), (Fields{"", ""}));
}

TEST_F(DelimitedTextTest, BlanksBeforeAFieldAreSkippedAndBlanksBehindItKept) {
  EXPECT_EQ(SplitDelimitedLine("  a ;   b", ";"), (Fields{"a ", "b"}));
}

TEST_F(DelimitedTextTest, QuotedFieldRunsToTheQuoteBeforeTheSeparator) {
  EXPECT_EQ(SplitDelimitedLine("\"a;b\";c;", ";"), (Fields{"a;b", "c", ""}));
}

TEST_F(DelimitedTextTest, QuoteInsideAQuotedFieldStaysWhenNoSeparatorFollowsIt) {
  EXPECT_EQ(SplitDelimitedLine("\"say \"hi\" ;x\";y", ";"), (Fields{"say \"hi\" ;x", "y"}));
}

TEST_F(DelimitedTextTest, TwoQuotesInARowInsideAQuotedFieldAreOne) {
  EXPECT_EQ(SplitDelimitedLine("\"a\"\";b\";c", ";"), (Fields{"a\";b", "c"}));
}

TEST_F(DelimitedTextTest, QuotedFieldWithoutAQuoteBeforeASeparatorEndsAtTheNextQuote) {
  EXPECT_EQ(SplitDelimitedLine("\"ab\"cd;e", ";"), (Fields{"ab", "e"}));
}

TEST_F(DelimitedTextTest, UnclosedQuoteRunsToTheEndOfTheLine) {
  EXPECT_EQ(SplitDelimitedLine("x;\"ab;c", ";"), (Fields{"x", "ab;c"}));
}

TEST_F(DelimitedTextTest, TheHeaderLineIsLeftOutUnlessTheFirstLineIsData) {
  const std::string content = "Name;Value;\r\nA;1x;\r\nB;2x;\r\n";
  EXPECT_EQ(Texts(Load(content)), (std::vector<std::string>{"A", "B"}));
  EXPECT_EQ(Texts(Load(content, true)), (std::vector<std::string>{"Name", "A", "B"}));
}

TEST_F(DelimitedTextTest, EachRowIsKeyedByKAndItsLineNumber) {
  const DelimitedList list = Load("Head;\r\nA;\r\n ;\r\nC;\r\n");
  ASSERT_EQ(list.rows.size(), 2u);
  EXPECT_EQ(list.rows[0].key, "K2");
  EXPECT_EQ(list.rows[1].key, "K4");
}

TEST_F(DelimitedTextTest, RowsWhoseFirstFieldIsBlankAreLeftOut) {
  EXPECT_EQ(Texts(Load("H;\r\n;x;\r\n   ;y;\r\nZ;z;\r\n")), (std::vector<std::string>{"Z"}));
}

TEST_F(DelimitedTextTest, RowTextIsTheFirstFieldFromBehindItsFirstBar) {
  EXPECT_EQ(Texts(Load("H;\r\n3|Pictures|Rome;x;\r\n")), (std::vector<std::string>{"Pictures|Rome"}));
}

TEST_F(DelimitedTextTest, FieldsBehindTheFirstBecomeSubItems) {
  const DelimitedList list = Load("H;\r\nA;b;c\r\n");
  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(list.rows[0].subItems, (Fields{"b", "c"}));
}

TEST_F(DelimitedTextTest, AListWithColumnsTakesThatManyFieldsAndPadsShortLines) {
  const DelimitedList list = Load("H;\r\nA;b;c;d\r\nE;\r\n", false, 2);
  ASSERT_EQ(list.rows.size(), 2u);
  EXPECT_EQ(list.rows[0].subItems, (Fields{"b"}));
  EXPECT_EQ(list.rows[1].subItems, (Fields{""}));
}

TEST_F(DelimitedTextTest, NumbersTakeTheDecimalSeparatorOfTheLocale) {
  // Tests run in the C locale, whose decimal separator is ".".
  const DelimitedList list = Load("H;\r\nA;1,5;-2.25;1,5x;1,2,3;\r\n");
  ASSERT_EQ(list.rows.size(), 1u);
  EXPECT_EQ(list.rows[0].subItems, (Fields{"1.5", "-2.25", "1,5x", "1,2,3", ""}));
}

TEST_F(DelimitedTextTest, ListStaysAsItIsWhenNoSeparatorCanBeDetected) {
  DelimitedList list{0, {{"K1", "kept", {}}}};
  LoadListFromFile(RealFiles(), Write("no separator here\r\n"), true, list);
  EXPECT_EQ(Texts(list), (std::vector<std::string>{"kept"}));
}

TEST_F(DelimitedTextTest, ListIsClearedBeforeAFileWithASeparatorIsRead) {
  DelimitedList list{0, {{"K1", "old", {}}}};
  LoadListFromFile(RealFiles(), Write("H;\r\nnew;\r\n"), false, list);
  EXPECT_EQ(Texts(list), (std::vector<std::string>{"new"}));
}

TEST_F(DelimitedTextTest, LinesEndedByLineFeedAloneAreReadToo) {
  EXPECT_EQ(Texts(Load("H;\nA;\nB;")), (std::vector<std::string>{"A", "B"}));
}

TEST_F(DelimitedTextTest, FileThatIsNotUtf8IsReadAsWindows1252) {
  EXPECT_EQ(Texts(Load("H;\r\nM\xFC"
                       "ller;\r\n")),
            (std::vector<std::string>{"M\xC3\xBCller"}));
}

TEST_F(DelimitedTextTest, SavedListIsTheHeaderThenEachRowWithCrLf) {
  const std::string file = temp.Path() + "out.csv";
  const DelimitedList list{2, {{"", "A", {"x"}}, {"", "B", {""}}}};
  ASSERT_TRUE(SaveListToFile(RealFiles(), file, ";", "Name;Value;", list));
  EXPECT_EQ(ReadWholeFile(file), "Name;Value;\r\nA;x;\r\nB;;\r\n");
}

TEST_F(DelimitedTextTest, EmptyHeaderIsNotWritten) {
  const std::string file = temp.Path() + "out.csv";
  ASSERT_TRUE(SaveListToFile(RealFiles(), file, ",", "", DelimitedList{0, {{"", "A", {"b"}}}}));
  EXPECT_EQ(ReadWholeFile(file), "A,b,\r\n");
}

TEST_F(DelimitedTextTest, FieldHoldingTheSeparatorIsWrittenInQuotes) {
  const std::string file = temp.Path() + "out.csv";
  ASSERT_TRUE(SaveListToFile(RealFiles(), file, ";", "", DelimitedList{0, {{"", "a;b", {"c,d"}}}}));
  EXPECT_EQ(ReadWholeFile(file), "\"a;b\";c,d;\r\n");
}

TEST_F(DelimitedTextTest, FieldsThatWouldBeMisreadAreQuotedWithTheirQuotesDoubled) {
  const std::string file = temp.Path() + "out.csv";
  ASSERT_TRUE(SaveListToFile(RealFiles(), file, ";", "", DelimitedList{0, {{"", " lead", {"\"q\"", "x\";y"}}}}));
  EXPECT_EQ(ReadWholeFile(file), "\" lead\";\"\"\"q\"\"\";\"x\"\";y\";\r\n");
}

TEST_F(DelimitedTextTest, RowTextHoldingABarIsWrittenSoThatItLoadsWhole) {
  const std::string file = temp.Path() + "out.csv";
  ASSERT_TRUE(SaveListToFile(RealFiles(), file, ";", "H;", DelimitedList{0, {{"", "a|b", {}}}}));
  DelimitedList list;
  LoadListFromFile(RealFiles(), file, false, list);
  EXPECT_EQ(Texts(list), (std::vector<std::string>{"a|b"}));
}

TEST_F(DelimitedTextTest, SavingReplacesTheOldFileAndLeavesNoTemporaryFile) {
  const std::string file = Write("old content\r\n");
  ASSERT_TRUE(SaveListToFile(RealFiles(), file, ";", "H;", DelimitedList{}));
  EXPECT_EQ(ReadWholeFile(file), "H;\r\n");
  EXPECT_FALSE(Exists(file + ".tmp"));
}

TEST_F(DelimitedTextTest, FailedSaveLeavesTheOldFileWhole) {
  const std::string file = Write("old content\r\n");
  // A folder where the temporary file must go makes the write fail.
  temp.MakeFolder("list.csv.tmp");
  EXPECT_FALSE(SaveListToFile(RealFiles(), file, ";", "H;", DelimitedList{0, {{"", "A", {}}}}));
  EXPECT_EQ(ReadWholeFile(file), "old content\r\n");
}

TEST_F(DelimitedTextTest, SavedLineIsOneRowOfValues) {
  const std::string file = Write("old\r\nlines\r\n");
  ASSERT_TRUE(SaveLineToFile(RealFiles(), file, ";", {"a", "b;c", ""}));
  EXPECT_EQ(ReadWholeFile(file), "a;\"b;c\";;\r\n");
  EXPECT_FALSE(Exists(file + ".tmp"));
}

}  // namespace
}  // namespace nomra::formats
