// Filters holding ";", brackets, "!" and characters beyond ASCII: matched by
// the wildcard rule, never a crash.
#include <gtest/gtest.h>

#include <random>

#include "OpenFixture.h"
#include "base/Utf8.h"
#include "open/FilterList.h"
#include "open/OpenCommand.h"
#include "open/PowerFilters.h"
#include "support/RealFiles.h"

namespace nomra::open {
namespace {

using nomra::testing::Ini;

TEST(FilterOddCharactersTest, SemicolonIsAnOrdinaryCharacterOfTheSystemDialogsPattern) {
  EXPECT_FALSE(PassesFilter("a.mp3", "*.mp3;*.ogg"));
  EXPECT_FALSE(PassesFilter("b.ogg", "*.mp3;*.ogg"));
  EXPECT_TRUE(PassesFilter("x.mp3;y.ogg", "*.mp3;*.ogg"));
  EXPECT_TRUE(PassesFilter("a;b.txt", "a;b.txt"));
  EXPECT_TRUE(PassesFilter(";", ";"));
  EXPECT_FALSE(PassesFilter("a", ";"));
}

TEST(FilterOddCharactersTest, SemicolonSeparatesThePatternsOfTheOwnDialog) {
  EXPECT_FALSE(PassesAnyPattern("a;b.txt", "a;b.txt"));
  EXPECT_TRUE(PassesAnyPattern("b.txt", "a;b.txt"));
  EXPECT_TRUE(PassesAnyPattern("a", "a;b.txt"));
  EXPECT_FALSE(PassesAnyPattern("a.txt", ";;;"));
  EXPECT_TRUE(PassesAnyPattern("a.txt", ";*.txt;"));
}

TEST(FilterOddCharactersTest, OpeningBracketWithoutItsCloseStandsForItself) {
  EXPECT_TRUE(PassesFilter("[draft.txt", "[draft*"));
  EXPECT_FALSE(PassesFilter("draft.txt", "[draft*"));
  EXPECT_TRUE(PassesFilter("a[", "*["));
  EXPECT_TRUE(PassesAnyPattern("[x", "[*;*.mp3"));
}

TEST(FilterOddCharactersTest, BracketsListCharactersAndAreNoLiterals) {
  EXPECT_TRUE(PassesFilter("b.txt", "[abc].txt"));
  EXPECT_FALSE(PassesFilter("[abc].txt", "[abc].txt"));
  EXPECT_TRUE(PassesFilter("[draft].txt", "[[]draft].txt"));
  EXPECT_TRUE(PassesFilter("x].txt", "x].txt"));
  EXPECT_TRUE(PassesFilter("m", "[a-z]"));
  EXPECT_FALSE(PassesFilter("-", "[a-z]"));
}

TEST(FilterOddCharactersTest, ExclamationMarkNegatesOnlyAtTheStartOfAList) {
  EXPECT_TRUE(PassesFilter("x.txt", "[!0-9].txt"));
  EXPECT_FALSE(PassesFilter("1.txt", "[!0-9].txt"));
  EXPECT_TRUE(PassesFilter("!", "[a!]"));
  EXPECT_TRUE(PassesFilter("wow!.txt", "*!.txt"));
  EXPECT_FALSE(PassesFilter("wow.txt", "*!.txt"));
}

TEST(FilterOddCharactersTest, UnicodeNamesMatchCharacterByCharacterWithoutRegardToCase) {
  EXPECT_TRUE(PassesFilter("\xC3\x84rger.MP3", "\xC3\xA4*.mp3"));       // Ärger, ä
  EXPECT_TRUE(PassesFilter("\xC3\xA9.txt", "?.txt"));                   // é is one character
  EXPECT_TRUE(PassesFilter("\xE6\x97\xA5\xE6\x9C\xAC.txt", "??.txt"));  // two CJK characters
  EXPECT_FALSE(PassesFilter("\xE6\x97\xA5\xE6\x9C\xAC.txt", "?.txt"));
  EXPECT_TRUE(PassesFilter("\xF0\x9F\x8E\xB5.mp3", "?.mp3"));              // a note outside the BMP
  EXPECT_TRUE(PassesFilter("\xC3\x96lfass.txt", "[\xC3\x96-\xC3\x9C]*"));  // Ö in [Ö-Ü]
  EXPECT_TRUE(
      PassesFilter("STRA\xC3\x9F"
                   "E.txt",
                   "stra\xC3\x9F"
                   "e.txt"));  // ß stays ß
  EXPECT_FALSE(
      PassesFilter("stra\xC3\x9F"
                   "e.txt",
                   "STRASSE.txt"));
  EXPECT_TRUE(PassesAnyPattern("\xC3\xA9t\xC3\xA9.txt", "*.mp3;\xC3\x89*"));  // été through É*
}

TEST(FilterOddCharactersTest, ByteThatIsNoUtf8CountsAsOneCharacter) {
  EXPECT_TRUE(PassesFilter("caf\xE9.txt", "caf?.txt"));
  EXPECT_FALSE(PassesFilter("caf\xE9.txt", "caf??.txt"));
  EXPECT_TRUE(PassesFilter("caf\xE9.txt", "caf\xE9.txt"));
}

// Random names and patterns of the characters that mean something to the
// rule: nothing may crash, and what must match does.
TEST(FilterOddCharactersTest, RandomPatternsNeverCrashAndKeepTheRule) {
  const std::vector<std::string> pieces{"*",
                                        "?",
                                        "#",
                                        "[",
                                        "]",
                                        "!",
                                        "-",
                                        ";",
                                        ".",
                                        "a",
                                        "Z",
                                        "0",
                                        "9",
                                        "\xC3\xA4",
                                        "\xE6\x97\xA5",
                                        "\xF0\x9F\x8E\xB5",
                                        "\xE9",
                                        " "};
  std::mt19937 random(7);
  const auto randomText = [&] {
    std::string text;
    const std::size_t length = random() % 12;
    for (std::size_t i = 0; i < length; ++i) text += pieces[random() % pieces.size()];
    return text;
  };
  int matched = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string name = randomText();
    const std::string pattern = randomText();
    const bool passes = PassesFilter(name, pattern);
    matched += passes ? 1 : 0;
    // The own dialog's list takes one pattern the same way, "*.*" aside.
    if (pattern.find(';') == std::string::npos && !pattern.empty() && pattern != "*.*") {
      ASSERT_EQ(PassesAnyPattern(name, pattern), passes) << name << " / " << pattern;
    }

    ASSERT_TRUE(PassesFilter(name, "*")) << name;
    const std::size_t characters = base::ToChars(name).size();
    ASSERT_TRUE(PassesFilter(name, std::string(characters, '?'))) << name;
    ASSERT_FALSE(PassesFilter(name, std::string(characters + 1, '?'))) << name;
  }
  // The patterns were not all of a kind that matches nothing.
  EXPECT_GT(matched, 0);
}

class FilterRowsWithOddCharactersTest : public testing::OpenTest {
 protected:
  void TakeAllFilesThrough(int filterIndex) {
    OpenChoice choice;
    choice.paths = {temp.Path() + "files"};
    choice.allFiles = true;
    choice.filterIndex = filterIndex;
    RunOpenChoice(load, preview, choice, filters, Ini(settingsFile), false);
  }

  std::vector<FilterRow> filters;
};

TEST_F(FilterRowsWithOddCharactersTest, AllFilesTakeWhatTheRowsPatternSays) {
  const std::string settings = temp.WriteFile(
      "filters.nrp", "[Filter]\r\nf1=Sound|*.mp3;*.ogg\r\nf2=Drafts|[[]*\r\nf3=\xC3\x84pfel|\xC3\xA4*\r\n");
  filters = BuildFilterList(Ini(settings), "All files");
  ASSERT_EQ(filters.size(), 4u);
  temp.WriteFile("files/a.mp3");
  temp.WriteFile("files/b.ogg");
  const std::string both = temp.WriteFile("files/c.mp3;d.ogg");
  const std::string draft = temp.WriteFile("files/[draft].txt");
  const std::string apples = temp.WriteFile("files/\xC3\x84pfel.txt");
  temp.WriteFile("files/apfel.txt");

  TakeAllFilesThrough(2);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{both}));
  TakeAllFilesThrough(3);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{both, draft}));
  TakeAllFilesThrough(4);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{both, draft, apples}));
}

}  // namespace
}  // namespace nomra::open
