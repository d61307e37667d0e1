#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra::base {
namespace {

TEST(BaseCaseMap, AsciiLettersChangeCaseOtherAsciiStays) {
  EXPECT_EQ(ToUpper("Hello, World 42_x.txt"), "HELLO, WORLD 42_X.TXT");
  EXPECT_EQ(ToLower("Hello, World 42_X.TXT"), "hello, world 42_x.txt");
}

TEST(BaseCaseMap, UpperCaseKeepsSharpS) {
  EXPECT_EQ(ToUpper("stra\xC3\x9F"
                    "e"),
            "STRA\xC3\x9F"
            "E");  // "straße" -> "STRAßE", not "STRAẞE"
  EXPECT_EQ(ToUpperChar(0xDF), char32_t{0xDF});
}

TEST(BaseCaseMap, LowerCaseKeepsSharpS) {
  EXPECT_EQ(ToLowerChar(0xDF), char32_t{0xDF});
  EXPECT_EQ(ToLower("\xC3\x9F"), "\xC3\x9F");
}

TEST(BaseCaseMap, UpperCaseKeepsMicroSign) {
  EXPECT_EQ(ToUpper("\xC2\xB5m"), "\xC2\xB5M");  // "µm" -> "µM", not "ΜM"
  EXPECT_EQ(ToUpperChar(0xB5), char32_t{0xB5});
}

TEST(BaseCaseMap, YWithDiaeresisPairsWithCapitalYDiaeresisBothWays) {
  EXPECT_EQ(ToUpper("\xC3\xBF"), "\xC5\xB8");  // ÿ -> Ÿ (U+0178)
  EXPECT_EQ(ToLower("\xC5\xB8"), "\xC3\xBF");
  EXPECT_EQ(ToUpperChar(0xFF), char32_t{0x178});
  EXPECT_EQ(ToLowerChar(0x178), char32_t{0xFF});
}

TEST(BaseCaseMap, CodePageLettersAboveLatin1PairUp) {
  EXPECT_EQ(ToUpper("\xC5\xA1"), "\xC5\xA0");  // š -> Š
  EXPECT_EQ(ToLower("\xC5\xA0"), "\xC5\xA1");
  EXPECT_EQ(ToUpper("\xC5\x93"), "\xC5\x92");  // œ -> Œ
  EXPECT_EQ(ToLower("\xC5\x92"), "\xC5\x93");
  EXPECT_EQ(ToUpper("\xC5\xBE"), "\xC5\xBD");  // ž -> Ž
  EXPECT_EQ(ToLower("\xC5\xBD"), "\xC5\xBE");
}

TEST(BaseCaseMap, Latin1AccentedLettersPairExceptDivisionAndMultiplication) {
  for (char32_t lower = 0xE0; lower <= 0xFE; ++lower) {
    if (lower == 0xF7) continue;
    EXPECT_EQ(ToUpperChar(lower), lower - 0x20) << "U+" << std::hex << static_cast<unsigned>(lower);
    EXPECT_EQ(ToLowerChar(lower - 0x20), lower) << "U+" << std::hex << static_cast<unsigned>(lower - 0x20);
  }
  EXPECT_EQ(ToUpperChar(0xF7), char32_t{0xF7});                // ÷
  EXPECT_EQ(ToLowerChar(0xD7), char32_t{0xD7});                // ×
  EXPECT_EQ(ToUpper("\xC3\xA0\xC3\xBE"), "\xC3\x80\xC3\x9E");  // àþ -> ÀÞ
}

TEST(BaseCaseMap, CodePageLetterWithoutCodePagePartnerKeepsItsForm) {
  EXPECT_EQ(ToUpperChar(0x192), char32_t{0x192});  // ƒ: its capital Ƒ is not in the code page
  EXPECT_EQ(ToUpperChar(0xAA), char32_t{0xAA});    // ª
}

TEST(BaseCaseMap, SymbolsOfTheCodePageStay) {
  const std::string symbols = "\xE2\x82\xAC\xE2\x80\xA0\xE2\x84\xA2\xC2\xA9";  // € † ™ ©
  EXPECT_EQ(ToUpper(symbols), symbols);
  EXPECT_EQ(ToLower(symbols), symbols);
}

TEST(BaseCaseMap, GreekAndCyrillicFollowUnicode) {
  EXPECT_EQ(ToUpper("\xD0\xB6"), "\xD0\x96");  // ж -> Ж
  EXPECT_EQ(ToLower("\xD0\x96"), "\xD0\xB6");
  EXPECT_EQ(ToUpper("\xCE\xB1\xCE\xB2\xCE\xB3"), "\xCE\x91\xCE\x92\xCE\x93");  // αβγ -> ΑΒΓ
  EXPECT_EQ(ToLower("\xCE\xA9"), "\xCF\x89");                                  // Ω -> ω
}

TEST(BaseCaseMap, LatinExtendedOutsideTheCodePageFollowsUnicode) {
  EXPECT_EQ(ToUpper("\xC4\x9F"), "\xC4\x9E");  // ğ -> Ğ
  EXPECT_EQ(ToLower("\xC5\x81"), "\xC5\x82");  // Ł -> ł
}

TEST(BaseCaseMap, StrayBytesNeverChange) {
  const std::string text =
      "ab\xE9"
      "cd\xFF\xC0\xAF";
  EXPECT_EQ(ToUpper(text),
            "AB\xE9"
            "CD\xFF\xC0\xAF");
  EXPECT_EQ(ToLower("AB\xE9"
                    "CD\xFF"),
            "ab\xE9"
            "cd\xFF");
  EXPECT_EQ(ToUpperChar(kRawByteBase + 0xE9), kRawByteBase + 0xE9);
  EXPECT_EQ(ToLowerChar(kRawByteBase + 0xC9), kRawByteBase + 0xC9);
}

TEST(BaseCaseMap, EmojiPassesThrough) {
  EXPECT_EQ(ToUpper("a\xF0\x9F\x98\x80"
                    "b"),
            "A\xF0\x9F\x98\x80"
            "B");
}

TEST(BaseCaseMap, EqualsNoCaseMatchesAcrossCase) {
  EXPECT_TRUE(
      EqualsNoCase("\xC3\x84"
                   "BC",
                   "\xC3\xA4"
                   "bc"));  // ÄBC = äbc
  EXPECT_TRUE(EqualsNoCase("Photo.JPG", "photo.jpg"));
  EXPECT_TRUE(EqualsNoCase("\xC5\xB8", "\xC3\xBF"));  // Ÿ = ÿ
  EXPECT_TRUE(EqualsNoCase("", ""));
  EXPECT_FALSE(EqualsNoCase("abc", "abd"));
  EXPECT_FALSE(EqualsNoCase("abc", "ab"));
  EXPECT_FALSE(EqualsNoCase("a", "\xC3\xA4"));  // a and ä differ
}

TEST(BaseCaseMap, SharpSIsNotEqualToDoubleS) {
  EXPECT_FALSE(
      EqualsNoCase("stra\xC3\x9F"
                   "e",
                   "STRASSE"));
}

TEST(BaseCaseMap, StrayByteEqualsOnlyItself) {
  EXPECT_TRUE(EqualsNoCase("a\xE9", "A\xE9"));
  EXPECT_FALSE(EqualsNoCase("a\xE9", "a\xC9"));
  EXPECT_FALSE(EqualsNoCase("\xE9", "\xC3\xA9"));  // the stray byte is not "é"
}

TEST(BaseCaseMap, CompareNoCaseOrdersByLowerCasedCodePoints) {
  EXPECT_EQ(CompareNoCase("abc", "ABC"), 0);
  EXPECT_LT(CompareNoCase("apple", "Banana"), 0);
  EXPECT_GT(CompareNoCase("Banana", "apple"), 0);
  EXPECT_LT(CompareNoCase("ab", "abc"), 0);
  EXPECT_GT(CompareNoCase("abc", "AB"), 0);
  // "_" (U+005F) lies between the capitals and the small letters; comparing
  // lower-cased code points puts it before every letter.
  EXPECT_LT(CompareNoCase("B_", "ba"), 0);
  EXPECT_LT(CompareNoCase("z", "\xC3\xA4"), 0);         // z (U+007A) before ä (U+00E4)
  EXPECT_LT(CompareNoCase("\xC3\x84", "\xC3\xB6"), 0);  // Ä as ä (U+00E4) before ö (U+00F6)
  EXPECT_GT(CompareNoCase("\xC3\x96", "\xC3\xA4"), 0);  // Ö as ö after ä
  EXPECT_EQ(CompareNoCase("\xD0\x96"
                          "x",
                          "\xD0\xB6"
                          "X"),
            0);  // Жx = жX
}

TEST(BaseCaseMap, CompareNoCaseSortsAMixedListConsistently) {
  std::vector<std::string> names = {"b.txt", "A.txt", "\xC3\x84.txt", "a.TXT", "C.txt", "_x"};
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& x, const std::string& y) { return CompareNoCase(x, y) < 0; });
  const std::vector<std::string> expected = {"_x", "A.txt", "a.TXT", "b.txt", "C.txt", "\xC3\x84.txt"};
  EXPECT_EQ(names, expected);
}

TEST(BaseCaseMap, StartsWithNoCase) {
  EXPECT_TRUE(StartsWithNoCase("\xC3\x84pfel.txt", "\xC3\xA4P"));  // "Äpfel" starts with "äP"
  EXPECT_TRUE(StartsWithNoCase("anything", ""));
  EXPECT_TRUE(StartsWithNoCase("IMG_0001", "img_"));
  EXPECT_FALSE(StartsWithNoCase("IMG", "img_"));
  EXPECT_FALSE(StartsWithNoCase("photo", "pi"));
  EXPECT_FALSE(StartsWithNoCase("", "a"));
}

}  // namespace
}  // namespace nomra::base
