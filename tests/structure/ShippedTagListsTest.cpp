// The tags the shipped language files offer in the structure editor.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lang/MessageCatalog.h"
#include "structure/FileTagSteps.h"
#include "structure/SyntaxCheck.h"
#include "structure/TagChoices.h"
#include "support/ListFixture.h"
#include "support/RealFiles.h"

namespace nomra::structure {
namespace {

const std::vector<std::string> kLanguageFiles{"English.lng", "Deutsch.lng"};
const std::vector<std::string> kLists{"cmbElements", "cmbExif", "cmbMP3Tag", "cmbDOSTag", "cmbFunctions"};

lang::MessageCatalog Shipped(const std::string& file) {
  return lang::MessageCatalog(nomra::testing::RealFiles(), std::string(NOMRA_LANG_DIR) + "/" + file);
}

std::vector<std::string> TagsOf(const std::vector<TagChoice>& choices) {
  std::vector<std::string> tags;
  for (const TagChoice& choice : choices) tags.push_back(choice.tag);
  return tags;
}

class ShippedTagListsTest : public testing::ListTest {};

TEST_F(ShippedTagListsTest, EveryListOffersLabelledTags) {
  for (const std::string& file : kLanguageFiles) {
    const lang::MessageCatalog catalog = Shipped(file);
    for (const std::string& list : kLists) {
      const std::vector<TagChoice> choices = ReadTagChoices(catalog, list);
      EXPECT_FALSE(choices.empty()) << file << " " << list;
      for (const TagChoice& choice : choices) {
        EXPECT_NE(choice.label, choice.tag) << file << " " << list;
        EXPECT_TRUE(choice.tag.starts_with("<")) << file << " " << choice.tag;
        EXPECT_TRUE(choice.tag.ends_with(">")) << file << " " << choice.tag;
      }
    }
  }
}

TEST_F(ShippedTagListsTest, EveryLanguageOffersTheSameTagsInTheSameOrder) {
  const lang::MessageCatalog english = Shipped(kLanguageFiles[0]);
  for (const std::string& file : kLanguageFiles) {
    const lang::MessageCatalog catalog = Shipped(file);
    EXPECT_EQ(TagsOf(ElementChoices(catalog)), TagsOf(ElementChoices(english))) << file;
    EXPECT_EQ(TagsOf(FunctionChoices(catalog)), TagsOf(FunctionChoices(english))) << file;
  }
}

TEST_F(ShippedTagListsTest, EveryOfferedTagPassesTheBracketChecks) {
  const lang::MessageCatalog catalog = Shipped(kLanguageFiles[0]);
  std::vector<TagChoice> choices = ElementChoices(catalog);
  const std::vector<TagChoice> functions = FunctionChoices(catalog);
  choices.insert(choices.end(), functions.begin(), functions.end());
  for (const TagChoice& choice : choices) {
    // Without a row to test on, the check is that of the brackets alone.
    EXPECT_EQ(CheckStructureSyntax(state.list, choice.tag, {}), std::nullopt) << choice.tag;
  }
}

TEST_F(ShippedTagListsTest, NameAndFunctionTagsResolveOnARealFile) {
  AddFiles({"Music/Rock/first-song.mp3"});
  const lang::MessageCatalog catalog = Shipped(kLanguageFiles[0]);
  for (const std::string tag : {"<NAME>", "<EXT>", "<.EXT>", "<PATH>", "<BLANK>"}) {
    const std::vector<std::string> tags = TagsOf(ElementChoices(catalog));
    EXPECT_NE(std::find(tags.begin(), tags.end(), tag), tags.end()) << tag;
    EXPECT_EQ(CheckStructureSyntax(state.list, tag, {}), std::nullopt) << tag;
  }
  for (const std::string& tag : TagsOf(FunctionChoices(catalog))) {
    if (tag.starts_with("<DT(")) continue;  // the dates come with their reader
    EXPECT_EQ(CheckStructureSyntax(state.list, tag, {}), std::nullopt) << tag;
  }
}

TEST_F(ShippedTagListsTest, EveryMp3AndChecksumTagOfferedResolvesOnARealFile) {
  AddFiles({"Music/Rock/first-song.mp3"});
  const FileTagSteps readers(fileSystem);
  int checked = 0;
  for (const std::string list : {"cmbMP3Tag", "cmbDOSTag"}) {
    for (const TagChoice& choice : ReadTagChoices(Shipped(kLanguageFiles[0]), list)) {
      if (choice.tag.starts_with("<DOSNAME")) continue;  // the short names come with their reader
      EXPECT_EQ(CheckStructureSyntax(state.list, choice.tag, {}, readers), std::nullopt) << choice.tag;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 17);
}

}  // namespace
}  // namespace nomra::structure
