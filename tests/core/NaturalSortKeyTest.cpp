#include <gtest/gtest.h>

#include "core/NaturalSortKey.h"

namespace nomra::core {
namespace {

TEST(NaturalSortKey, PadsEachRunOfDigitsToFifteen) {
  EXPECT_EQ(NaturalSortKey("track9.txt"), "track000000000000009.txt");
  EXPECT_EQ(NaturalSortKey("a1b22"), "a000000000000001b000000000000022");
}

TEST(NaturalSortKey, NineSortsBeforeTen) { EXPECT_LT(NaturalSortKey("file 9.txt"), NaturalSortKey("file 10.txt")); }

TEST(NaturalSortKey, KeepsTextWithoutDigits) { EXPECT_EQ(NaturalSortKey("abc.txt"), "abc.txt"); }

TEST(NaturalSortKey, CountsOnlyAsciiDigitsAsDigits) {
  // Arabic-Indic digit one (U+0661) is no digit by its code.
  EXPECT_EQ(NaturalSortKey("x\xD9\xA1"), "x\xD9\xA1");
  EXPECT_EQ(NaturalSortKey("\xC2\xB2"), "\xC2\xB2");  // superscript two
}

TEST(NaturalSortKey, LeadingZerosDoNotChangeTheValue) { EXPECT_EQ(NaturalSortKey("007"), NaturalSortKey("7")); }

TEST(NaturalSortKey, EmptyTextGivesEmptyKey) { EXPECT_EQ(NaturalSortKey(""), ""); }

}  // namespace
}  // namespace nomra::core
