#include <gtest/gtest.h>

#include <chrono>
#include <ostream>
#include <string>

#include "base/Wildcard.h"

namespace nomra::base {
namespace {

struct WildcardCase {
  const char* text;
  const char* pattern;
  bool matches;
};

// Bytes above ASCII are written as \xNN, so test names stay plain ASCII.
std::string Escaped(const char* text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (const char* p = text; *p != '\0'; ++p) {
    const auto b = static_cast<unsigned char>(*p);
    if (b < 0x80) {
      out.push_back(*p);
    } else {
      out += "\\x";
      out.push_back(kHex[b >> 4]);
      out.push_back(kHex[b & 0x0F]);
    }
  }
  return out;
}

void PrintTo(const WildcardCase& c, std::ostream* out) {
  *out << '"' << Escaped(c.text) << "\" against \"" << Escaped(c.pattern) << "\" -> "
       << (c.matches ? "match" : "no match");
}

class BaseWildcardTable : public ::testing::TestWithParam<WildcardCase> {};

TEST_P(BaseWildcardTable, MatchesAsListed) {
  const WildcardCase& c = GetParam();
  EXPECT_EQ(MatchesWildcard(c.text, c.pattern), c.matches);
}

const WildcardCase kCases[] = {
    // Literal text, whole text only, case ignored.
    {"photo.jpg", "photo.jpg", true},
    {"photo.JPG", "*.jpg", true},
    {"PHOTO.jpg", "photo.JPG", true},
    {"photo.jpg", "photo", false},
    {"photo", "photo.jpg", false},
    {"xphoto.jpg", "photo.jpg", false},
    {"photo.jpeg", "*.jpg", false},
    {"\xC3\x84pfel", "\xC3\xA4PFEL", true},  // Äpfel / äPFEL
    {"\xC5\xB8", "\xC3\xBF", true},          // Ÿ / ÿ
    {"\xC3\x9F", "SS", false},               // ß is not "SS"
    // "*": any run, the empty one included.
    {"", "*", true},
    {"anything at all", "*", true},
    {"abc", "a*", true},
    {"abc", "*c", true},
    {"abc", "a*c", true},
    {"ac", "a*c", true},
    {"abd", "a*c", false},
    {"abc", "**", true},
    {"abc", "a**c", true},
    // Backtracking over several stars.
    {"aXbXc", "*a*b*c", true},
    {"abcabc", "*a*b*c", true},
    {"aaabbbccc", "*a*b*c", true},
    {"cba", "*a*b*c", false},
    {"abcab", "*a*b*c", false},
    {"mississippi", "m*iss*ppi", true},
    {"mississippi", "m*iss*iss*ppi", true},
    {"mississippi", "m*iss*iss*iss*ppi", false},
    {"report-final-final.doc", "*final.doc", true},
    // "?": exactly one character, a multi-byte one counting as one.
    {"a", "?", true},
    {"", "?", false},
    {"ab", "?", false},
    {"\xC3\xA9", "?", true},          // é is one character
    {"\xE2\x82\xAC", "?", true},      // € is one character
    {"\xF0\x9F\x98\x80", "?", true},  // 😀 is one character
    {"\xF0\x9F\x98\x80", "??", false},
    {"x\xC3\xA9y", "x?y", true},
    {"\xE9", "?", true},  // a stray byte is one character too
    {"bad\xE9name", "bad?name", true},
    {"file1.txt", "file?.txt", true},
    {"file12.txt", "file?.txt", false},
    // "#": one digit.
    {"IMG_0042", "IMG_####", true},
    {"IMG_004x", "IMG_####", false},
    {"0", "#", true},
    {"5", "#", true},
    {"9", "#", true},
    {"/", "#", false},  // the characters either side of 0-9
    {":", "#", false},
    {"a", "#", false},
    {"", "#", false},
    {"12", "#", false},
    {"\xD9\xA5", "#", false},  // Arabic-Indic five is not one of 0-9
    // "[...]": one of the listed characters.
    {"a", "[abc]", true},
    {"C", "[abc]", true},
    {"d", "[abc]", false},
    {"", "[abc]", false},
    {"ab", "[abc]", false},
    {"b", "[a-c]", true},
    {"B", "[a-c]", true},
    {"b", "[A-C]", true},
    {"d", "[a-c]", false},
    {"7", "[0-9]", true},
    {"x", "[0-9]", false},
    {"m", "[a-cx-z]", false},
    {"y", "[a-cx-z]", true},
    {"-", "[a-]", true},  // a "-" at the end is itself
    {"b", "[a-]", false},
    {"\xC3\xA9", "[\xC3\xA9\xC3\xA8]", true},  // é in [éè]
    {"\xC3\x89", "[\xC3\xA9\xC3\xA8]", true},  // É in [éè]
    {"e", "[\xC3\xA9\xC3\xA8]", false},
    {"file_b.txt", "file_[abc].txt", true},
    // "[!...]": none of the listed characters.
    {"d", "[!abc]", true},
    {"a", "[!abc]", false},
    {"A", "[!abc]", false},
    {"m", "[!a-c]", true},
    {"b", "[!a-c]", false},
    {"", "[!abc]", false},
    // "[" without closing "]" stands for itself.
    {"[", "[", true},
    {"[abc", "[abc", true},
    {"a", "[abc", false},
    {"x[1", "x[#", true},
    {"[x", "[*", true},
    // Empty pattern and empty text.
    {"", "", true},
    {"a", "", false},
    {"", "a", false},
    {"", "**", true},
};

INSTANTIATE_TEST_SUITE_P(Cases, BaseWildcardTable, ::testing::ValuesIn(kCases));

TEST(BaseWildcard, PathologicalPatternFinishesQuickly) {
  const std::string text(2000, 'a');
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(MatchesWildcard(text, "*a*a*a*a*a*b"));
  EXPECT_TRUE(MatchesWildcard(text + "b", "*a*a*a*a*a*b"));
  const auto elapsed = std::chrono::steady_clock::now() - start;
  EXPECT_LT(elapsed, std::chrono::seconds(2));
}

}  // namespace
}  // namespace nomra::base
