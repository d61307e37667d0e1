#include <gtest/gtest.h>

#include "open/FilterList.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::open {
namespace {

using nomra::testing::Ini;

class FilterListTest : public ::testing::Test {
 protected:
  std::vector<FilterRow> Build(const std::string& filterSection) {
    const std::string file =
        temp.WriteFile("settings.nrp", "[Settings]\r\nlastfilter=2\r\n[Filter]\r\n" + filterSection);
    return BuildFilterList(Ini(file), "All files");
  }

  testing::TempFolder temp;
};

TEST_F(FilterListTest, FirstRowTakesEveryFile) {
  const std::vector<FilterRow> rows = BuildFilterList(Ini(temp.Path() + "none.nrp"), "Alle Dateien");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].text, "Alle Dateien");
  EXPECT_EQ(rows[0].pattern, "*.*");
}

TEST_F(FilterListTest, EachFilterKeyAddsARowInOrder) {
  const std::vector<FilterRow> rows = Build("f1=Music|*.mp3;*.ogg\r\nf2=Pictures|*.jpg\r\n");
  EXPECT_EQ(rows, (std::vector<FilterRow>{
                      {"All files", "*.*"}, {"Music (*.mp3;*.ogg)", "*.mp3;*.ogg"}, {"Pictures (*.jpg)", "*.jpg"}}));
}

TEST_F(FilterListTest, EveryBarOfTheTextOpensAParenthesis) {
  const std::vector<FilterRow> rows = Build("f1=Odd|*.a|*.b\r\n");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].text, "Odd (*.a (*.b)");
  EXPECT_EQ(rows[1].pattern, "*.a|*.b");
}

TEST_F(FilterListTest, ListEndsAtTheFirstEmptyKey) {
  EXPECT_EQ(Build("f1=Music|*.mp3\r\nf2=\r\nf3=Pictures|*.jpg\r\n").size(), 2u);
  EXPECT_EQ(Build("f1=Music|*.mp3\r\nf3=Pictures|*.jpg\r\n").size(), 2u);
}

TEST_F(FilterListTest, ListEndsAtTheFirstKeyWithoutBar) {
  EXPECT_EQ(Build("f1=Music|*.mp3\r\nf2=Pictures\r\nf3=Texts|*.txt\r\n").size(), 2u);
}

TEST_F(FilterListTest, SystemDialogFilterJoinsTextsAndPatterns) {
  EXPECT_EQ(SystemDialogFilter(Build("f1=Music|*.mp3\r\nf2=Pictures|*.jpg;*.png\r\n")),
            "All files|*.*|Music (*.mp3)|*.mp3|Pictures (*.jpg;*.png)|*.jpg;*.png");
}

TEST_F(FilterListTest, PassesFilterIgnoresCase) {
  EXPECT_TRUE(PassesFilter("SONG.MP3", "*.mp3"));
  EXPECT_TRUE(PassesFilter("song.mp3", "*.MP3"));
  EXPECT_FALSE(PassesFilter("song.mp4", "*.mp3"));
}

TEST_F(FilterListTest, PassesFilterKnowsTheListWildcards) {
  EXPECT_TRUE(PassesFilter("img7.jpg", "img#.jpg"));
  EXPECT_FALSE(PassesFilter("imgx.jpg", "img#.jpg"));
  EXPECT_TRUE(PassesFilter("b1.txt", "[a-c]?.txt"));
  EXPECT_FALSE(PassesFilter("d1.txt", "[a-c]?.txt"));
  EXPECT_FALSE(PassesFilter("a1.txt", "[!a]?.txt"));
}

TEST_F(FilterListTest, SeveralPatternsNeverMatchAsSuch) {
  EXPECT_FALSE(PassesFilter("a.mp3", "*.mp3;*.ogg"));
  EXPECT_FALSE(PassesFilter("b.ogg", "*.mp3;*.ogg"));
}

TEST_F(FilterListTest, AllFilesPatternTakesOnlyNamesWithADot) {
  EXPECT_TRUE(PassesFilter("a.mp3", "*.*"));
  EXPECT_FALSE(PassesFilter("README", "*.*"));
}

}  // namespace
}  // namespace nomra::open
