// The small routines under the bracket tags.
#include <gtest/gtest.h>

#include "base/Fault.h"
#include "structure/LanguageNumber.h"
#include "structure/TagArguments.h"

namespace nomra::structure {
namespace {

using Args = std::vector<std::string>;

TEST(SplitArguments, EmptyTextGivesNone) { EXPECT_EQ(SplitArguments(""), Args{}); }

TEST(SplitArguments, FinalCommaAddsNoElementButALeadingOneDoes) {
  EXPECT_EQ(SplitArguments("1,"), Args{"1"});
  EXPECT_EQ(SplitArguments(",2"), (Args{"", "2"}));
}

TEST(SplitArguments, CommasInQuotesAndBracketsStayAndQuotesAreKept) {
  EXPECT_EQ(SplitArguments(" \",\" , find(\"a\",2) ,x(1,2)"), (Args{"\",\"", "find(\"a\",2)", "x(1,2)"}));
}

TEST(ParseTagArguments, TextUpToTheFirstClosingMark) {
  EXPECT_EQ(ParseTagArguments("x<name_m(1, 2)>y)>", "<NAME_M("), (Args{"1", "2"}));
  EXPECT_EQ(ParseTagArguments("<NAME_M(1,2", "<NAME_M("), Args{});
  EXPECT_EQ(ParseTagArguments("<NAME>", "<NAME_M("), Args{});
}

TEST(StripQuotes, OneEachSideWherePresent) {
  EXPECT_EQ(StripQuotes("\"a\""), "a");
  EXPECT_EQ(StripQuotes("\"a"), "a");
  EXPECT_EQ(StripQuotes("\"\"a\"\""), "\"a\"");
  EXPECT_EQ(StripQuotes("\""), "");
}

TEST(NthPosition, OccurrencesMayOverlapAndCountCharacters) {
  EXPECT_EQ(NthPosition("aaaa", "aa", 3), 3);
  EXPECT_EQ(NthPosition("äb-c", "-", 1), 3);
  EXPECT_EQ(NthPosition("abc", "b", 0), 0);
  EXPECT_EQ(NthPosition("abc", "B", 1), 0);
  EXPECT_EQ(NthPosition("abc", "b", 2), 0);
}

TEST(ResolveFind, ReplacesEachFindByItsPosition) {
  EXPECT_EQ(ResolveFind("find(\"-\",2,1)", "a-b-c"), "5");
  EXPECT_EQ(ResolveFind("x find(\"-\") y FIND(\"c\")", "a-b-c"), "x 2 y 5");
  EXPECT_EQ(ResolveFind("find(,2)", "a-b-c"), "<ERROR>");
  EXPECT_EQ(ResolveFind("find(\"-\"", "a-b-c"), "2");
}

TEST(NamePart, FieldsCountFromOne) {
  EXPECT_EQ(NamePart("a - b", "-", 2, 1), "b");
  EXPECT_EQ(NamePart("a - b", "-", 2, 0), " b");
  EXPECT_EQ(NamePart("a - b", "-", 3, 1), "");
  EXPECT_THROW(NamePart("a - b", "-", 0, 1), base::RuntimeFault);
  EXPECT_THROW(NamePart("a - b", "-", 1, 5), base::RuntimeFault);
}

TEST(LanguageNumber, SignDigitsAndFraction) {
  EXPECT_EQ(ParseLanguageNumber("-12"), -12.0);
  EXPECT_EQ(ParseLanguageNumber("+.5"), 0.5);
  EXPECT_EQ(ParseLanguageNumber("3."), 3.0);
  EXPECT_FALSE(ParseLanguageNumber(""));
  EXPECT_FALSE(ParseLanguageNumber("."));
  EXPECT_FALSE(ParseLanguageNumber("1e3"));
  EXPECT_FALSE(ParseLanguageNumber(" 1"));
  EXPECT_FALSE(ParseLanguageNumber("&H10"));
}

TEST(LanguageNumber, HalvesRoundToTheEvenNeighbour) {
  EXPECT_EQ(ToWholeNumber(2.5), 2);
  EXPECT_EQ(ToWholeNumber(3.5), 4);
  EXPECT_EQ(ToWholeNumber(-2.5), -2);
  EXPECT_FALSE(ToWholeNumber(2147483648.0));
  EXPECT_EQ(ToWholeNumber(-2147483648.0), -2147483648L);
}

}  // namespace
}  // namespace nomra::structure
