// The named structures a first start copies into the data folder: each
// loads with its name and is well formed for the editor's check.
#include <gtest/gtest.h>

#include <string>

#include "structure/StoredStructures.h"
#include "structure/SyntaxCheck.h"
#include "support/ListFixture.h"

namespace nomra::structure {
namespace {

const SyntaxTexts kTexts{"Check your input.", "Tags are closed."};

class ShippedStructuresTest : public testing::ListTest {
 protected:
  std::vector<StoredStructure> Shipped() {
    return LoadStoredStructures(fileSystem, std::string(NOMRA_DEFAULTS_DIR) + "/structures.nrp");
  }
};

TEST_F(ShippedStructuresTest, EachHasANameAndPassesTheBracketChecks) {
  const std::vector<StoredStructure> structures = Shipped();
  ASSERT_GE(structures.size(), 5u);
  // An empty list: the tags of readers still to come would stay as text in
  // a test evaluation, so only the brackets and case marks are checked.
  for (const StoredStructure& stored : structures) {
    EXPECT_FALSE(stored.name.empty());
    EXPECT_EQ(CheckStructureSyntax(state.list, stored.structure, kTexts), std::nullopt) << stored.structure;
    EXPECT_TRUE(stored.structure.ends_with("<.EXT>")) << stored.name << " keeps the extension";
  }
}

TEST_F(ShippedStructuresTest, MusicAndPhotosAreAmongThem) {
  bool music = false;
  bool photos = false;
  for (const StoredStructure& stored : Shipped()) {
    music = music || stored.structure == "<ID3_Artist> - <ID3_SongTitle><.EXT>";
    photos = photos || stored.structure == "<DT(E,\"yyyy-mm-dd hh.nn.ss\")>_<EXIF_Model><.EXT>";
  }
  EXPECT_TRUE(music);
  EXPECT_TRUE(photos);
}

}  // namespace
}  // namespace nomra::structure
