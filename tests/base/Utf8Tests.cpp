#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "base/Utf8.h"

namespace nomra::base {
namespace {

constexpr char32_t Raw(unsigned char b) { return kRawByteBase + b; }

TEST(BaseUtf8, DecodesEachLengthOfValidSequence) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";  // a é € 😀
  EXPECT_EQ(ToChars(text), (std::u32string{U'a', 0xE9, 0x20AC, 0x1F600}));
  EXPECT_EQ(CharCount(text), 4u);
  EXPECT_TRUE(IsValidUtf8(text));
}

TEST(BaseUtf8, DecodeAtGivesTheByteLengthOfTheCharacter) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
  char32_t c = 0;
  EXPECT_EQ(DecodeAt(text, 0, c), 1u);
  EXPECT_EQ(c, U'a');
  EXPECT_EQ(DecodeAt(text, 1, c), 2u);
  EXPECT_EQ(c, char32_t{0xE9});
  EXPECT_EQ(DecodeAt(text, 3, c), 3u);
  EXPECT_EQ(c, char32_t{0x20AC});
  EXPECT_EQ(DecodeAt(text, 6, c), 4u);
  EXPECT_EQ(c, char32_t{0x1F600});
}

TEST(BaseUtf8, ForEachCharReportsOffsetsThatNeverCutACharacter) {
  const std::string text = "x\xC3\xA9\xFFy\xF0\x9F\x98\x80";
  std::vector<std::tuple<char32_t, std::size_t, std::size_t>> seen;
  ForEachChar(text, [&](char32_t c, std::size_t offset, std::size_t length) { seen.emplace_back(c, offset, length); });
  const std::vector<std::tuple<char32_t, std::size_t, std::size_t>> expected = {
      {U'x', 0, 1}, {0xE9, 1, 2}, {Raw(0xFF), 3, 1}, {U'y', 4, 1}, {0x1F600, 5, 4}};
  EXPECT_EQ(seen, expected);
}

TEST(BaseUtf8, StrayByteIsOneCharacterOfItsOwn) {
  const std::string text = "bad\xE9name";
  EXPECT_FALSE(IsValidUtf8(text));
  EXPECT_EQ(CharCount(text), 8u);
  const std::u32string chars = ToChars(text);
  ASSERT_EQ(chars.size(), 8u);
  EXPECT_EQ(chars[3], Raw(0xE9));
  EXPECT_TRUE(IsRawByte(chars[3]));
  EXPECT_FALSE(IsRawByte(chars[2]));
}

TEST(BaseUtf8, RawBytesAreExactlyTheHighHalfOfTheStandInRange) {
  EXPECT_FALSE(IsRawByte(0xDC7F));
  EXPECT_TRUE(IsRawByte(0xDC80));
  EXPECT_TRUE(IsRawByte(0xDCFF));
  EXPECT_FALSE(IsRawByte(0xDD00));
  EXPECT_FALSE(IsRawByte(0xFF));
}

TEST(BaseUtf8, OverlongFormIsTwoStrayBytes) {
  const std::string text = "\xC0\xAF";  // an overlong "/"
  EXPECT_EQ(ToChars(text), (std::u32string{Raw(0xC0), Raw(0xAF)}));
  EXPECT_FALSE(IsValidUtf8(text));
}

TEST(BaseUtf8, ThreeByteOverlongFormIsStray) {
  const std::string text = "\xE0\x80\xAF";
  EXPECT_EQ(ToChars(text), (std::u32string{Raw(0xE0), Raw(0x80), Raw(0xAF)}));
}

TEST(BaseUtf8, EncodedSurrogateIsStray) {
  const std::string text = "\xED\xA0\x80";
  EXPECT_EQ(ToChars(text), (std::u32string{Raw(0xED), Raw(0xA0), Raw(0x80)}));
  EXPECT_FALSE(IsValidUtf8(text));
}

TEST(BaseUtf8, CodePointAboveUnicodeRangeIsStray) {
  const std::string text = "\xF4\x90\x80\x80";  // would be U+110000
  EXPECT_EQ(CharCount(text), 4u);
  EXPECT_FALSE(IsValidUtf8(text));
  EXPECT_TRUE(IsValidUtf8("\xF4\x8F\xBF\xBF"));  // U+10FFFF is the last valid one
}

TEST(BaseUtf8, TruncatedSequenceAtTheEndIsStray) {
  const std::string text = "ab\xE2\x82";
  EXPECT_EQ(ToChars(text), (std::u32string{U'a', U'b', Raw(0xE2), Raw(0x82)}));
  EXPECT_EQ(CharCount(text), 4u);
}

TEST(BaseUtf8, LeadByteFollowedByAsciiKeepsTheAscii) {
  const std::string text = "\xC3(x";
  EXPECT_EQ(ToChars(text), (std::u32string{Raw(0xC3), U'(', U'x'}));
}

TEST(BaseUtf8, RoundTripGivesBackTheSameBytes) {
  const std::vector<std::string> samples = {
      "",
      "plain.txt",
      "bad\xE9name",
      "\xC0\xAF",
      "\xED\xA0\x80",
      "ab\xE2\x82",
      "\xF0\x9F\x98\x80 smile",
      "\xF0\x9F\x98",
      "\xFF\xFE\x80\xBF",
      "mixed \xC3\xA9\xE9\xC3",
      "\xF4\x90\x80\x80",
  };
  for (const std::string& sample : samples) {
    EXPECT_EQ(FromChars(ToChars(sample)), sample) << "sample of " << sample.size() << " bytes";
  }
}

TEST(BaseUtf8, AppendCharWritesEachLength) {
  std::string out;
  AppendChar(out, U'A');
  AppendChar(out, 0xE9);
  AppendChar(out, 0x20AC);
  AppendChar(out, 0x1F600);
  AppendChar(out, Raw(0x90));
  EXPECT_EQ(out, "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\x90");
}

TEST(BaseUtf8, EmptyTextHasNoCharacters) {
  EXPECT_EQ(CharCount(""), 0u);
  EXPECT_TRUE(ToChars("").empty());
  EXPECT_TRUE(IsValidUtf8(""));
}

}  // namespace
}  // namespace nomra::base
