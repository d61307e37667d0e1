#include <gtest/gtest.h>

#include "open/PowerFilters.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

using nomra::testing::Ini;

namespace nomra::open {
namespace {

using Filters = std::vector<PowerFilter>;

class PowerFiltersTest : public ::testing::Test {
 protected:
  Filters Read(const std::string& section) {
    return ReadPowerFilters(Ini(temp.WriteFile("settings.nrp", "[PowerFilter]\r\n" + section)));
  }
  std::string Key(const char* key) { return Ini(file).ReadString("PowerFilter", key); }

  testing::TempFolder temp;
  const std::string file = temp.Path() + "settings.nrp";
};

TEST_F(PowerFiltersTest, FirstDigitTellsWhetherAnEntryIsChecked) {
  EXPECT_EQ(Read("f1=0*.*\r\nf2=1*.mp3\r\nf3=0*.jpg;*.png\r\n"),
            (Filters{{false, "*.*"}, {true, "*.mp3"}, {false, "*.jpg;*.png"}}));
}

TEST_F(PowerFiltersTest, ListEndsAtTheFirstEmptyKey) {
  EXPECT_EQ(Read("f1=1*.*\r\nf2=\r\nf3=1*.mp3\r\n"), (Filters{{true, "*.*"}}));
}

TEST_F(PowerFiltersTest, NoEntriesGiveAllFilesChecked) {
  EXPECT_EQ(ReadPowerFilters(Ini(temp.Path() + "none.nrp")), (Filters{{true, "*.*"}}));
}

TEST_F(PowerFiltersTest, WriteRewritesTheKeysAndClosesTheList) {
  temp.WriteFile("settings.nrp", "[PowerFilter]\r\nf1=1*.*\r\nf2=1*.doc\r\nf3=1*.txt\r\n");
  WritePowerFilters({{false, "*.*"}, {true, "*.mp3"}}, Ini(file));
  EXPECT_EQ(Key("f1"), "0*.*");
  EXPECT_EQ(Key("f2"), "1*.mp3");
  EXPECT_EQ(Key("f3"), "");
  EXPECT_EQ(ReadPowerFilters(Ini(file)), (Filters{{false, "*.*"}, {true, "*.mp3"}}));
}

TEST_F(PowerFiltersTest, CheckingTheFirstEntryClearsAllOthers) {
  Filters filters{{false, "*.*"}, {true, "*.mp3"}, {true, "*.jpg"}};
  SetFilterChecked(filters, 0, true);
  EXPECT_EQ(filters, (Filters{{true, "*.*"}, {false, "*.mp3"}, {false, "*.jpg"}}));
}

TEST_F(PowerFiltersTest, CheckingAnotherEntryClearsTheFirst) {
  Filters filters{{true, "*.*"}, {false, "*.mp3"}, {true, "*.jpg"}};
  SetFilterChecked(filters, 1, true);
  EXPECT_EQ(filters, (Filters{{false, "*.*"}, {true, "*.mp3"}, {true, "*.jpg"}}));
}

TEST_F(PowerFiltersTest, ClearingTheLastCheckedEntryChecksTheFirstAgain) {
  Filters filters{{false, "*.*"}, {true, "*.mp3"}, {false, "*.jpg"}};
  SetFilterChecked(filters, 1, false);
  EXPECT_EQ(filters, (Filters{{true, "*.*"}, {false, "*.mp3"}, {false, "*.jpg"}}));
}

TEST_F(PowerFiltersTest, ClearingTheFirstEntryAloneKeepsItChecked) {
  Filters filters{{true, "*.*"}, {false, "*.mp3"}};
  SetFilterChecked(filters, 0, false);
  EXPECT_EQ(filters, (Filters{{true, "*.*"}, {false, "*.mp3"}}));
}

TEST_F(PowerFiltersTest, ClearingOneOfSeveralLeavesTheOthers) {
  Filters filters{{false, "*.*"}, {true, "*.mp3"}, {true, "*.jpg"}};
  SetFilterChecked(filters, 2, false);
  EXPECT_EQ(filters, (Filters{{false, "*.*"}, {true, "*.mp3"}, {false, "*.jpg"}}));
}

TEST_F(PowerFiltersTest, ClickOutsideTheListChangesNothing) {
  Filters filters{{false, "*.*"}, {true, "*.mp3"}};
  SetFilterChecked(filters, 2, true);
  SetFilterChecked(filters, -1, true);
  EXPECT_EQ(filters, (Filters{{false, "*.*"}, {true, "*.mp3"}}));
}

TEST_F(PowerFiltersTest, CheckedPatternJoinsTheCheckedEntries) {
  EXPECT_EQ(CheckedPattern({{false, "*.*"}, {true, "*.mp3"}, {false, "*.doc"}, {true, "*.jpg"}}), "*.mp3;*.jpg");
  EXPECT_EQ(CheckedPattern({{true, "*.*"}, {false, "*.mp3"}}), "*.*");
}

TEST_F(PowerFiltersTest, CleanFilterTextRemovesTheSevenCharacters) {
  EXPECT_EQ(CleanFilterText("a\"b/c:d<e>f\\g|h*?.x;y"), "abcdefgh*?.x;y");
  EXPECT_EQ(CleanFilterText("\\|/"), "");
}

TEST_F(PowerFiltersTest, AnyOfSeveralPatternsLetsANameThrough) {
  EXPECT_TRUE(PassesAnyPattern("a.mp3", "*.mp3;*.ogg"));
  EXPECT_TRUE(PassesAnyPattern("b.OGG", "*.mp3;*.ogg"));
  EXPECT_FALSE(PassesAnyPattern("c.wav", "*.mp3;*.ogg"));
}

TEST_F(PowerFiltersTest, PatternsIgnoreCaseAndKnowTheWildcards) {
  EXPECT_TRUE(PassesAnyPattern("IMG7.JPG", "img#.jpg"));
  EXPECT_FALSE(PassesAnyPattern("imgx.jpg", "img#.jpg"));
}

TEST_F(PowerFiltersTest, AllFilesPatternTakesNamesWithoutADot) {
  EXPECT_TRUE(PassesAnyPattern("README", "*.*"));
  EXPECT_TRUE(PassesAnyPattern("README", "*.mp3;*.*"));
  EXPECT_FALSE(PassesAnyPattern("README", "*.mp3"));
}

TEST_F(PowerFiltersTest, EmptyPatternLetsNothingThrough) {
  EXPECT_FALSE(PassesAnyPattern("a.mp3", ""));
  EXPECT_FALSE(PassesAnyPattern("a.ogg", "*.mp3;"));
}

}  // namespace
}  // namespace nomra::open
