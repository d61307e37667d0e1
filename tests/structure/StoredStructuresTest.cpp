#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/Utf8.h"
#include "structure/StoredStructures.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"

namespace nomra::structure {
namespace {

using testing::ReadWholeFile;
using testing::TempFolder;
using Structures = std::vector<StoredStructure>;

class StoredStructuresTest : public ::testing::Test {
 protected:
  std::string File() const { return StructuresFilePath(data.Path()); }
  Structures LoadFrom(const std::string& content) {
    data.WriteFile("structures.nrp", content);
    return LoadStoredStructures(nomra::testing::RealFiles(), File());
  }
  Structures RoundTrip(const Structures& structures) {
    EXPECT_TRUE(SaveStoredStructures(nomra::testing::RealFiles(), File(), structures));
    return LoadStoredStructures(nomra::testing::RealFiles(), File());
  }

  TempFolder data;
};

TEST_F(StoredStructuresTest, TheFileIsStructuresNrpInTheDataFolder) {
  EXPECT_EQ(StructuresFilePath("/home/me/.local/share/NR-Software/Nomra/"),
            "/home/me/.local/share/NR-Software/Nomra/structures.nrp");
}

TEST_F(StoredStructuresTest, SavedFileIsTheHeaderThenOneNameAndStructureALine) {
  ASSERT_TRUE(SaveStoredStructures(nomra::testing::RealFiles(), File(),
                                   {{"Date first", "<DT(C,\"yyyy\")>_<NAME>.<EXT>"}, {"Plain", "<NAME>"}}));
  EXPECT_EQ(ReadWholeFile(File()), "Name;Structure;\r\nDate first;<DT(C,\"yyyy\")>_<NAME>.<EXT>;\r\nPlain;<NAME>;\r\n");
}

TEST_F(StoredStructuresTest, NoStructuresLeaveTheHeaderAlone) {
  ASSERT_TRUE(SaveStoredStructures(nomra::testing::RealFiles(), File(), {}));
  EXPECT_EQ(ReadWholeFile(File()), "Name;Structure;\r\n");
  EXPECT_TRUE(LoadStoredStructures(nomra::testing::RealFiles(), File()).empty());
}

TEST_F(StoredStructuresTest, NameHoldingASemicolonIsStoredInQuotesAndRoundTrips) {
  const Structures structures{{"Artist; Title", "<ID3_Artist> - <ID3_SongTitle>"}};
  ASSERT_TRUE(SaveStoredStructures(nomra::testing::RealFiles(), File(), structures));
  EXPECT_EQ(ReadWholeFile(File()), "Name;Structure;\r\n\"Artist; Title\";<ID3_Artist> - <ID3_SongTitle>;\r\n");
  EXPECT_EQ(LoadStoredStructures(nomra::testing::RealFiles(), File()), structures);
}

TEST_F(StoredStructuresTest, StructureSplittingAtASemicolonRoundTrips) {
  const Structures structures{{"Second part", "<NAMEPART(\";\",2)>"}};
  EXPECT_EQ(RoundTrip(structures), structures);
}

TEST_F(StoredStructuresTest, MissingFileGivesNoStructures) {
  EXPECT_TRUE(LoadStoredStructures(nomra::testing::RealFiles(), File()).empty());
}

TEST_F(StoredStructuresTest, EmptyFileGivesNoStructures) { EXPECT_TRUE(LoadFrom("").empty()); }

TEST_F(StoredStructuresTest, GarbageWithoutSeparatorsGivesNoStructures) {
  using namespace std::string_literals;
  EXPECT_TRUE(LoadFrom("\x00\x01\xFF\xFE"
                       "garbage\r\n\x7F\x80\r\n"s)
                  .empty());
}

TEST_F(StoredStructuresTest, RandomBytesLoadAsTextOfOneLineEach) {
  std::mt19937 random(4711);
  std::uniform_int_distribution<int> byte(0, 255);
  std::size_t loaded = 0;
  for (int round = 0; round < 200; ++round) {
    std::string content;
    for (int line = 0; line < 6; ++line) {
      for (int i = 0; i < 12; ++i) content.push_back(static_cast<char>(byte(random)));
      content += ";\r\n";
    }
    for (const StoredStructure& stored : LoadFrom(content)) {
      ++loaded;
      EXPECT_TRUE(base::IsValidUtf8(stored.name)) << "round " << round << ": the name";
      EXPECT_TRUE(base::IsValidUtf8(stored.structure)) << "round " << round << ": the structure";
      EXPECT_EQ((stored.name + stored.structure).find('\n'), std::string::npos) << "round " << round;
    }
  }
  EXPECT_GT(loaded, 0u);
}

TEST_F(StoredStructuresTest, HeaderAloneGivesNoStructures) { EXPECT_TRUE(LoadFrom("Name;Structure;\r\n").empty()); }

TEST_F(StoredStructuresTest, NameWithItsSeparatorAloneGivesAnEmptyStructure) {
  EXPECT_EQ(LoadFrom("Name;Structure;\r\nJust a name;\r\n"), (Structures{{"Just a name", ""}}));
}

TEST_F(StoredStructuresTest, NameWithoutAnySeparatorLeavesTheWholeFileUnread) {
  // Every line must hold the separator for it to be detected at all.
  EXPECT_TRUE(LoadFrom("Name;Structure;\r\nA;<NAME>;\r\nJust a name\r\n").empty());
}

TEST_F(StoredStructuresTest, LinesWithABlankNameAreLeftOut) {
  EXPECT_EQ(LoadFrom("Name;Structure;\r\n;<NAME>;\r\n  ;<EXT>;\r\nKept;<PATH>;\r\n"), (Structures{{"Kept", "<PATH>"}}));
}

TEST_F(StoredStructuresTest, FirstLineIsAlwaysTakenAsTheHeader) {
  EXPECT_EQ(LoadFrom("A;<NAME>;\r\nB;<EXT>;\r\n"), (Structures{{"B", "<EXT>"}}));
}

TEST_F(StoredStructuresTest, FieldsBehindTheStructureAreIgnored) {
  EXPECT_EQ(LoadFrom("Name;Structure;\r\nA;<NAME>;extra;more\r\n"), (Structures{{"A", "<NAME>"}}));
}

// Names and structures made of the characters the file format has to take
// care of: the separator, quotes, the bar, blanks and letters beyond ASCII.
class StructureTextMaker {
 public:
  explicit StructureTextMaker(unsigned seed) : random_(seed) {}

  std::string Make(std::size_t maxLength) {
    std::u32string text;
    const std::size_t length = std::uniform_int_distribution<std::size_t>(0, maxLength)(random_);
    for (std::size_t i = 0; i < length; ++i) text.push_back(Pick(kAny));
    // One character that is neither a blank nor part of a number, so the
    // text is never blank and never read as a number.
    const std::size_t at = std::uniform_int_distribution<std::size_t>(0, text.size())(random_);
    text.insert(text.begin() + static_cast<std::ptrdiff_t>(at), Pick(kSolid));
    return base::FromChars(text);
  }

 private:
  static constexpr std::u32string_view kAny = U";\"|  \t<>(),.-+19aZ\u00E4\u00DF\u20AC\u65E5\U0001F600";
  static constexpr std::u32string_view kSolid = U";\"|<>()aZ\u00E4\u20AC\u65E5";

  char32_t Pick(std::u32string_view from) {
    return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random_)];
  }

  std::mt19937 random_;
};

TEST_F(StoredStructuresTest, AnyNameAndStructureRoundTripThroughTheFile) {
  StructureTextMaker maker(20261122);
  for (int round = 0; round < 300; ++round) {
    Structures structures;
    for (int n = 0; n < 4; ++n) structures.push_back({maker.Make(12), maker.Make(24)});
    ASSERT_EQ(RoundTrip(structures), structures) << "round " << round << ":\n" << ReadWholeFile(File());
  }
}

TEST_F(StoredStructuresTest, SavingWhatWasLoadedWritesTheSameFile) {
  StructureTextMaker maker(7);
  Structures structures;
  for (int n = 0; n < 50; ++n) structures.push_back({maker.Make(16), maker.Make(32)});
  ASSERT_TRUE(SaveStoredStructures(nomra::testing::RealFiles(), File(), structures));
  const std::string first = ReadWholeFile(File());
  ASSERT_TRUE(SaveStoredStructures(nomra::testing::RealFiles(), File(),
                                   LoadStoredStructures(nomra::testing::RealFiles(), File())));
  EXPECT_EQ(ReadWholeFile(File()), first);
}

}  // namespace
}  // namespace nomra::structure
