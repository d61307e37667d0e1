#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/FileNames.h"
#include "base/Flags.h"
#include "base/MessageText.h"
#include "base/Paths.h"
#include "base/Quoting.h"
#include "base/Trim.h"

namespace nomra::base {
namespace {

TEST(BaseHelpers, AddBackslashAppendsTheSeparatorWhenMissing) {
  EXPECT_EQ(AddBackslash("/home/user"), "/home/user/");
  EXPECT_EQ(AddBackslash("folder"), "folder/");
}

TEST(BaseHelpers, AddBackslashLeavesAnEndingSeparatorAlone) {
  EXPECT_EQ(AddBackslash("/home/user/"), "/home/user/");
  EXPECT_EQ(AddBackslash("/"), "/");
}

TEST(BaseHelpers, AddBackslashTurnsEmptyIntoTheSeparator) { EXPECT_EQ(AddBackslash(""), "/"); }

TEST(BaseHelpers, FormatMessageReplacesMarkersInOrder) {
  EXPECT_EQ(FormatMessage("%1 of %2", {"3", "10"}), "3 of 10");
  EXPECT_EQ(FormatMessage("%2 before %1", {"one", "two"}), "two before one");
  EXPECT_EQ(FormatMessage("Cannot rename \"%1\".", {"a.txt"}), "Cannot rename \"a.txt\".");
}

TEST(BaseHelpers, FormatMessageReplacesEveryOccurrenceOfAMarker) {
  EXPECT_EQ(FormatMessage("%1 and %1", {"x"}), "x and x");
}

TEST(BaseHelpers, FormatMessageWithNoValuesLeavesTheText) { EXPECT_EQ(FormatMessage("%1 of %2", {}), "%1 of %2"); }

TEST(BaseHelpers, FormatMessageLeavesMarkersWithoutValue) { EXPECT_EQ(FormatMessage("%1 of %2", {"3"}), "3 of %2"); }

TEST(BaseHelpers, FormatMessageTakesPercentTenAsMarkerOneAndADigit) {
  EXPECT_EQ(FormatMessage("%10", {"v"}), "v0");
  const std::vector<std::string> ten = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
  EXPECT_EQ(FormatMessage("%10", ten), "a0");
}

TEST(BaseHelpers, FormatMessageReplacesSequentiallySoAValueCanFeedTheNextMarker) {
  EXPECT_EQ(FormatMessage("%1", {"%2", "two"}), "two");
  EXPECT_EQ(FormatMessage("%2", {"one", "%1"}), "%1");
}

TEST(BaseHelpers, CleanFileNameRemovesTheNineForbiddenCharacters) {
  EXPECT_EQ(CleanFileName("a\\b/c:d?e*f<g>h|i\"j"), "abcdefghij");
  EXPECT_EQ(CleanFileName("\\/:?*<>|\""), "");
  EXPECT_EQ(kForbiddenNameCharacters.size(), 9u);
}

TEST(BaseHelpers, CleanFileNameKeepsEverythingElse) {
  std::string others;
  for (int c = 1; c < 256; ++c) {
    if (std::string_view("\\/:?*<>|\"").find(static_cast<char>(c)) == std::string_view::npos) {
      others.push_back(static_cast<char>(c));
    }
  }
  ASSERT_EQ(others.size(), 255u - 9u);
  EXPECT_EQ(CleanFileName(others), others);
  EXPECT_EQ(CleanFileName("caf\xC3\xA9 [1] #2 %3 ~.txt"), "caf\xC3\xA9 [1] #2 %3 ~.txt");
}

TEST(BaseHelpers, ToBooleanReadsStoredFlags) {
  EXPECT_TRUE(ToBoolean(1, false));
  EXPECT_FALSE(ToBoolean(0, true));
  EXPECT_TRUE(ToBoolean(2, false));
  EXPECT_TRUE(ToBoolean(100, false));
}

TEST(BaseHelpers, ToBooleanGivesTheDefaultBelowZero) {
  EXPECT_TRUE(ToBoolean(-1, true));
  EXPECT_FALSE(ToBoolean(-1, false));
  EXPECT_TRUE(ToBoolean(-50, true));
}

TEST(BaseHelpers, FromBooleanWritesOneOrZero) {
  EXPECT_EQ(FromBoolean(true), 1);
  EXPECT_EQ(FromBoolean(false), 0);
  EXPECT_TRUE(ToBoolean(FromBoolean(true), false));
  EXPECT_FALSE(ToBoolean(FromBoolean(false), true));
}

TEST(Helpers, WithoutDoubleQuotesTakesOutEveryQuote) {
  EXPECT_EQ(WithoutDoubleQuotes("\"a\"b\"\""), "ab");
  EXPECT_EQ(WithoutDoubleQuotes("plain"), "plain");
}

TEST(Helpers, TrimSpacesLeavesTabsAndInnerBlanks) {
  EXPECT_EQ(TrimSpaces("  a b  "), "a b");
  EXPECT_EQ(TrimSpaces("\ta "), "\ta");
  EXPECT_EQ(TrimSpaces("   "), "");
}

}  // namespace
}  // namespace nomra::base
