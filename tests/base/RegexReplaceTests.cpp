#include <gtest/gtest.h>

#include <string>

#include "base/Fault.h"
#include "base/RegexReplace.h"

namespace nomra::base {
namespace {

RegexReplace Compiled(const std::string& pattern, const std::string& replacement) {
  RegexProblem problem;
  auto regex = RegexReplace::Compile(pattern, replacement, problem);
  EXPECT_TRUE(regex.has_value()) << problem.reason;
  return *regex;
}

TEST(BaseRegexReplace, ReplacesEveryMatch) { EXPECT_EQ(Compiled("[0-9]+", "#").ReplaceAll("a1b22c333"), "a#b#c#"); }

TEST(BaseRegexReplace, GroupsAreNamedByNumberInBracesOrByName) {
  EXPECT_EQ(Compiled("(\\w+) - (\\w+)", "$2 - $1").ReplaceAll("Artist - Title"), "Title - Artist");
  EXPECT_EQ(Compiled("(\\d)(\\d)", "${2}0${1}").ReplaceAll("12"), "201");
  EXPECT_EQ(Compiled("(?<year>\\d{4})", "[${year}]").ReplaceAll("song 1999"), "song [1999]");
}

TEST(BaseRegexReplace, DoubleDollarIsADollar) { EXPECT_EQ(Compiled("USD", "$$").ReplaceAll("5 USD"), "5 $"); }

TEST(BaseRegexReplace, MatchIsCaseSensitive) { EXPECT_EQ(Compiled("ab", "X").ReplaceAll("abAB"), "XAB"); }

TEST(BaseRegexReplace, CharactersAreWholeInUtf8Mode) {
  EXPECT_EQ(Compiled("^.", "_").ReplaceAll("\xC3\xA4pfel"), "_pfel");
  EXPECT_EQ(Compiled("\\w+", "w").ReplaceAll("\xC3\xA4\xC3\xB6 x"), "\xC3\xA4\xC3\xB6 w");
}

TEST(BaseRegexReplace, StrayBytesOfANameAreKeptAndDontStopTheSearch) {
  EXPECT_EQ(Compiled("a", "b").ReplaceAll("caf\xE9 a"), "cbf\xE9 b");
}

TEST(BaseRegexReplace, NoMatchGivesTheTextBack) { EXPECT_EQ(Compiled("z", "y").ReplaceAll("abc"), "abc"); }

TEST(BaseRegexReplace, LongResultsGrowTheBuffer) {
  EXPECT_EQ(Compiled("a", "0123456789").ReplaceAll(std::string(100, 'a')).size(), 1000u);
}

TEST(BaseRegexReplace, PatternThatDoesNotCompileSaysWhereInCharacters) {
  RegexProblem problem;
  EXPECT_FALSE(RegexReplace::Compile("\xC3\xA4(b", "x", problem).has_value());
  EXPECT_FALSE(problem.inReplacement);
  EXPECT_EQ(problem.position, 4u);
  EXPECT_NE(problem.reason.find("parenthesis"), std::string::npos) << problem.reason;
}

TEST(BaseRegexReplace, ReferenceToAMissingGroupIsAProblemOfTheReplacement) {
  RegexProblem problem;
  EXPECT_FALSE(RegexReplace::Compile("(a)", "x$2", problem).has_value());
  EXPECT_TRUE(problem.inReplacement);
  EXPECT_EQ(problem.position, 2u);
  EXPECT_NE(problem.reason.find("no group 2"), std::string::npos) << problem.reason;
}

TEST(BaseRegexReplace, MissingNamedGroupUnclosedBraceAndLoneDollarAreProblems) {
  RegexProblem problem;
  EXPECT_FALSE(RegexReplace::Compile("(a)", "${x}", problem).has_value());
  EXPECT_NE(problem.reason.find("named"), std::string::npos) << problem.reason;
  EXPECT_FALSE(RegexReplace::Compile("(a)", "${1", problem).has_value());
  EXPECT_NE(problem.reason.find("not closed"), std::string::npos) << problem.reason;
  EXPECT_FALSE(RegexReplace::Compile("(a)", "cost $", problem).has_value());
  EXPECT_EQ(problem.position, 6u);
}

TEST(BaseRegexReplace, CatastrophicPatternIsAFaultNotAHang) {
  // No required character lets PCRE2 give up early: only its match limit ends this.
  const RegexReplace regex = Compiled("^(\\w+\\s?)*$", "x");
  EXPECT_THROW(regex.ReplaceAll(std::string(40, 'a') + "!"), RuntimeFault);
}

}  // namespace
}  // namespace nomra::base
