#include <gtest/gtest.h>

#include <string>

#include "base/Cp1252.h"
#include "base/Utf8.h"

namespace nomra::base {
namespace {

std::string Byte(unsigned char b) { return std::string(1, static_cast<char>(b)); }

std::string Utf8Of(char32_t c) {
  std::string out;
  AppendChar(out, c);
  return out;
}

TEST(BaseCp1252, AsciiDecodesUnchanged) {
  EXPECT_EQ(DecodeCp1252("Plain name_01.txt"), "Plain name_01.txt");
  EXPECT_EQ(DecodeCp1252(""), "");
}

TEST(BaseCp1252, HighControlRangeDecodesByTheCodePage) {
  EXPECT_EQ(DecodeCp1252(Byte(0x80)), "\xE2\x82\xAC");  // €
  EXPECT_EQ(DecodeCp1252(Byte(0x9F)), "\xC5\xB8");      // Ÿ
  EXPECT_EQ(DecodeCp1252(Byte(0x8A)), "\xC5\xA0");      // Š
  EXPECT_EQ(DecodeCp1252(Byte(0x9C)), "\xC5\x93");      // œ
  EXPECT_EQ(DecodeCp1252(Byte(0x85)), "\xE2\x80\xA6");  // …
  EXPECT_EQ(DecodeCp1252(Byte(0x99)), "\xE2\x84\xA2");  // ™
  EXPECT_EQ(DecodeCp1252(Byte(0x96)), "\xE2\x80\x93");  // –
}

TEST(BaseCp1252, UndefinedBytesDecodeToTheMatchingControlCharacters) {
  for (unsigned char b : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(DecodeCp1252(Byte(b)), Utf8Of(b)) << "byte 0x" << std::hex << static_cast<int>(b);
  }
}

TEST(BaseCp1252, Latin1HalfDecodesToTheSameCodePoints) {
  EXPECT_EQ(DecodeCp1252(Byte(0xA0)), "\xC2\xA0");
  EXPECT_EQ(DecodeCp1252(Byte(0xE9)), "\xC3\xA9");  // é
  EXPECT_EQ(DecodeCp1252(Byte(0xDF)), "\xC3\x9F");  // ß
  EXPECT_EQ(DecodeCp1252(Byte(0xFF)), "\xC3\xBF");  // ÿ
  EXPECT_EQ(DecodeCp1252("caf\xE9"), "caf\xC3\xA9");
}

TEST(BaseCp1252, EveryByteSurvivesDecodeAndEncode) {
  for (int b = 0; b < 256; ++b) {
    const std::string original = Byte(static_cast<unsigned char>(b));
    const std::string decoded = DecodeCp1252(original);
    EXPECT_TRUE(IsValidUtf8(decoded)) << "byte " << b;
    EXPECT_EQ(EncodeCp1252(decoded), original) << "byte " << b;
  }
}

TEST(BaseCp1252, StoredBlankStandInSurvives) {
  const std::string stored =
      "a\x90"
      "b";
  EXPECT_EQ(DecodeCp1252(stored),
            "a\xC2\x90"
            "b");
  EXPECT_EQ(EncodeCp1252(DecodeCp1252(stored)), stored);
}

TEST(BaseCp1252, EncodesCodePageCharacters) {
  EXPECT_EQ(EncodeCp1252("\xE2\x82\xAC"
                         "5"),
            "\x80"
            "5");
  EXPECT_EQ(EncodeCp1252("\xC5\xB8"), Byte(0x9F));
  EXPECT_EQ(EncodeCp1252("caf\xC3\xA9"), "caf\xE9");
  EXPECT_EQ(EncodeCp1252("ab"), "ab");
}

TEST(BaseCp1252, EncodingWritesQuestionMarkForMissingCharacters) {
  EXPECT_EQ(EncodeCp1252("\xD0\x96"), "?");  // Ж
  EXPECT_EQ(EncodeCp1252("a\xF0\x9F\x98\x80"
                         "b"),
            "a?b");  // emoji
  EXPECT_EQ(EncodeCp1252("\xC4\x9F"
                         "x"),
            "?x");                           // ğ
  EXPECT_EQ(EncodeCp1252("\xC2\x80"), "?");  // U+0080 has no byte: 0x80 is €
  EXPECT_EQ(EncodeCp1252("\xC2\x9F"), "?");  // U+009F neither: 0x9F is Ÿ
}

TEST(BaseCp1252, EncodingWritesStrayBytesBackAsTheyWere) { EXPECT_EQ(EncodeCp1252("bad\xE9name"), "bad\xE9name"); }

TEST(BaseCp1252, TextFileThatIsUtf8PassesUnchanged) {
  EXPECT_EQ(DecodeTextFile("caf\xC3\xA9\r\nline"), "caf\xC3\xA9\r\nline");
  EXPECT_EQ(DecodeTextFile(""), "");
}

TEST(BaseCp1252, TextFileDropsALeadingByteOrderMark) {
  EXPECT_EQ(DecodeTextFile("\xEF\xBB\xBF"
                           "abc"),
            "abc");
  EXPECT_EQ(DecodeTextFile("\xEF\xBB\xBF"), "");
}

TEST(BaseCp1252, TextFileKeepsAByteOrderMarkThatIsNotLeading) {
  EXPECT_EQ(DecodeTextFile("a\xEF\xBB\xBF"), "a\xEF\xBB\xBF");
}

TEST(BaseCp1252, TextFileThatIsNotUtf8IsReadAsWindows1252) {
  EXPECT_EQ(DecodeTextFile("caf\xE9 \x80"), "caf\xC3\xA9 \xE2\x82\xAC");
  // One stray byte is enough: the valid-looking "é" is read byte by byte too.
  EXPECT_EQ(DecodeTextFile("\xC3\xA9\xFF"), "\xC3\x83\xC2\xA9\xC3\xBF");
}

}  // namespace
}  // namespace nomra::base
