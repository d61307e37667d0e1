// The case conversions on Unicode text, with the Western code page's
// results on its own letters.
#include <gtest/gtest.h>

#include "structure/CaseConversion.h"

namespace nomra::structure {
namespace {

TEST(CaseConversion, SharpSAndMicroKeepTheirFormInUpperCase) { EXPECT_EQ(ConvertCase("UC", "straße µ"), "STRAßE µ"); }

TEST(CaseConversion, YWithDiaeresisPairsBothWays) {
  EXPECT_EQ(ConvertCase("UC", "ÿ"), "Ÿ");
  EXPECT_EQ(ConvertCase("LC", "Ÿ"), "ÿ");
}

TEST(CaseConversion, FirstCapitalLowersTheRest) { EXPECT_EQ(ConvertCase("1C", "mIXED Case"), "Mixed case"); }

TEST(CaseConversion, FirstCapitalBehindADotLiftsTheSecondCharacterToo) {
  EXPECT_EQ(ConvertCase("1C", ".JPG"), ".Jpg");
  EXPECT_EQ(ConvertCase("1C", "."), ".");
}

TEST(CaseConversion, WordCapitalsStartAfterDigitsBlanksUnderscoresAndHyphens) {
  EXPECT_EQ(ConvertCase("WC", "a1b c_d e-f"), "A1B C_D E-F");
}

TEST(CaseConversion, ApostropheAndBacktickDontStartAWord) {
  EXPECT_EQ(ConvertCase("WC", "o'neil d`arc"), "O'neil D`arc");
}

TEST(CaseConversion, LatinOneLettersContinueAWordButTimesAndDivideDont) {
  EXPECT_EQ(ConvertCase("WC", "äx öy×z ÷w"), "Äx Öy×Z ÷W");
}

TEST(CaseConversion, LettersBeyondLatinOneContinueAWord) {
  EXPECT_EQ(ConvertCase("WC", "šx ωy"), "Šx Ωy");
  EXPECT_EQ(ConvertCase("WC", "a€b"), "A€B");
}

TEST(CaseConversion, SwapTurnsEachLetter) { EXPECT_EQ(ConvertCase("SC", "aBc ÄÖ 1"), "AbC äö 1"); }

TEST(CaseConversion, UnknownCodeLeavesTheText) { EXPECT_EQ(ConvertCase("XX", "aB"), "aB"); }

TEST(CaseConversion, StrayBytesStayAsTheyAre) {
  EXPECT_EQ(ConvertCase("UC",
                        "a\xFF"
                        "b"),
            "A\xFF"
            "B");
}

TEST(CaseConversion, WordCharacterTable) {
  EXPECT_TRUE(IsWordCharacter(U'\''));
  EXPECT_TRUE(IsWordCharacter(U'`'));
  EXPECT_TRUE(IsWordCharacter(U'Z'));
  EXPECT_FALSE(IsWordCharacter(U'_'));
  EXPECT_FALSE(IsWordCharacter(U'['));
  EXPECT_FALSE(IsWordCharacter(U'7'));
  EXPECT_FALSE(IsWordCharacter(U'\u00D7'));
  EXPECT_TRUE(IsWordCharacter(U'\u00FF'));
  EXPECT_TRUE(IsWordCharacter(U'\u0161'));
  EXPECT_FALSE(IsWordCharacter(U'\u20AC'));
}

}  // namespace
}  // namespace nomra::structure
