#include <gtest/gtest.h>

#include "base/ReplaceText.h"

namespace nomra::base {
namespace {

constexpr int kExact = 0;
constexpr int kIgnoreCase = 1;

TEST(ReplaceTextTest, EmptyFindGivesTheTextUnchanged) {
  EXPECT_EQ(ReplaceText("abc", "", "x"), "abc");
  EXPECT_EQ(ReplaceText("abc", "", "x", 1, kReplaceAll, kIgnoreCase), "abc");
}

TEST(ReplaceTextTest, ReplacesEveryOccurrence) {
  EXPECT_EQ(ReplaceText("a-b-c", "-", "_"), "a_b_c");
  EXPECT_EQ(ReplaceText("abc", "abc", ""), "");
  EXPECT_EQ(ReplaceText("abc", "x", "y"), "abc");
}

TEST(ReplaceTextTest, ExactSearchHeedsCase) {
  EXPECT_EQ(ReplaceText("Abc abc ABC", "abc", "x", 1, kReplaceAll, kExact), "Abc x ABC");
}

TEST(ReplaceTextTest, SearchIgnoringCaseCopiesTheRestFromTheTextAsItStands) {
  EXPECT_EQ(ReplaceText("Abc abc ABC", "aBC", "x", 1, kReplaceAll, kIgnoreCase), "x x x");
  EXPECT_EQ(ReplaceText("HeLLo WORLD", "world", "There", 1, kReplaceAll, kIgnoreCase), "HeLLo There");
  // The replacement goes in as given, not lower-cased.
  EXPECT_EQ(ReplaceText("xAx", "a", "BB", 1, kReplaceAll, kIgnoreCase), "xBBx");
}

TEST(ReplaceTextTest, StartPositionKeepsTheTextBeforeIt) {
  EXPECT_EQ(ReplaceText("aaaa", "a", "b", 3), "aabb");
  EXPECT_EQ(ReplaceText("AaAa", "a", "b", 3, kReplaceAll, kIgnoreCase), "Aabb");
  EXPECT_EQ(ReplaceText("abc", "a", "x", 10), "abc");
}

TEST(ReplaceTextTest, SearchResumesBehindTheInsertedText) {
  EXPECT_EQ(ReplaceText("aa", "a", "aa"), "aaaa");
  EXPECT_EQ(ReplaceText("abab", "ab", "abab"), "abababab");
  EXPECT_EQ(ReplaceText("aA", "a", "Aa", 1, kReplaceAll, kIgnoreCase), "AaAa");
  // A match that would span the inserted text and the rest is not made.
  EXPECT_EQ(ReplaceText("xb", "x", "a", 1, kReplaceAll, kExact), "ab");
  EXPECT_EQ(ReplaceText("aab", "ab", "a", 1, kReplaceAll, kExact), "aa");
}

TEST(ReplaceTextTest, CountLimitsTheReplacements) {
  EXPECT_EQ(ReplaceText("aaaa", "a", "b", 1, 2), "bbaa");
  EXPECT_EQ(ReplaceText("AAAA", "a", "b", 2, 1, kIgnoreCase), "AbAA");
  EXPECT_EQ(ReplaceText("aaaa", "a", "b", 1, 0), "aaaa");
}

TEST(ReplaceTextTest, PositionsCountCharactersNotBytes) {
  EXPECT_EQ(ReplaceText("ääää", "ä", "x", 3), "ääxx");
  EXPECT_EQ(ReplaceText("€a€a", "a", "b", 3), "€a€b");
  EXPECT_EQ(ReplaceText("ÄÖÜ", "ö", "o", 1, kReplaceAll, kIgnoreCase), "ÄoÜ");
  EXPECT_EQ(ReplaceText("ÄÖÜäöü", "Ü", "-", 4, kReplaceAll, kIgnoreCase), "ÄÖÜäö-");
}

TEST(ReplaceTextTest, CaseOfMultibyteLettersFollowsTheWesternCodePage) {
  EXPECT_EQ(ReplaceText("Ÿes", "ÿ", "y", 1, kReplaceAll, kIgnoreCase), "yes");
  EXPECT_EQ(ReplaceText("STRAßE", "ß", "ss", 1, kReplaceAll, kIgnoreCase), "STRAssE");
  EXPECT_EQ(ReplaceText("ÉCOLE école", "école", "x", 1, kReplaceAll, kIgnoreCase), "x x");
}

TEST(ReplaceTextTest, BytesThatAreNoUtf8StayAsTheyAre) {
  EXPECT_EQ(ReplaceText("a\xFF"
                        "b",
                        "b", "c"),
            "a\xFF"
            "c");
  EXPECT_EQ(ReplaceText("A\xFF"
                        "B",
                        "b", "c", 1, kReplaceAll, kIgnoreCase),
            "A\xFF"
            "c");
  EXPECT_EQ(ReplaceText("\xFF"
                        "a\xFF"
                        "a",
                        "a", "b", 3),
            "\xFF"
            "a\xFF"
            "b");
}

}  // namespace
}  // namespace nomra::base
