#include <gtest/gtest.h>

#include "core/CharacterSets.h"

namespace nomra::core {
namespace {

TEST(CharacterSets, EmptySettingGivesTheDefaultLetters) {
  const CharacterSets sets = BuildCharacterSets("   ");
  EXPECT_EQ(sets.letterSetLower, "abcdefghijklmnopqrstuvwxyzäöüß");
}

TEST(CharacterSets, UpperSetLeavesOutSharpS) {
  const CharacterSets sets = BuildCharacterSets("");
  EXPECT_EQ(sets.letterSetUpper, "ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÜ");
}

TEST(CharacterSets, SettingIsLowerCased) {
  const CharacterSets sets = BuildCharacterSets("ABCÉ");
  EXPECT_EQ(sets.letterSetLower, "abcé");
  EXPECT_EQ(sets.letterSetUpper, "ABCÉ");
}

TEST(CharacterSets, DashSetsHoldTheFirstTwentySixLetters) {
  const CharacterSets sets = BuildCharacterSets("");
  EXPECT_EQ(sets.upperWithDash, "-ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  EXPECT_EQ(sets.lowerWithDash, "-abcdefghijklmnopqrstuvwxyz");
  const CharacterSets shortSets = BuildCharacterSets("xyß");
  EXPECT_EQ(shortSets.upperWithDash, "-XYß");
}

TEST(CharacterSets, DigitSetsAreFixed) {
  const CharacterSets sets = BuildCharacterSets("");
  EXPECT_EQ(sets.digitSet, "0123456789");
  EXPECT_EQ(sets.signedDigitSet, "-0123456789");
  EXPECT_EQ(sets.hexDigitSet, "0123456789abcdefABCDEF");
}

}  // namespace
}  // namespace nomra::core
