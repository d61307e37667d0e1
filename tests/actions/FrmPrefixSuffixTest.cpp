#include <gtest/gtest.h>

#include <vector>

#include "actions/FrmPrefixSuffix.h"
#include "base/FileNames.h"
#include "rename/ActionFixture.h"

namespace nomra::actions {
namespace {

class PrefixSuffixTest : public testing::ActionTest {
 protected:
  void Run(const std::string& prefix, const std::string& suffix) {
    dialog.Model().SetText("txtPr", prefix);
    dialog.Model().SetText("txtSu", suffix);
    dialog.Run(Actions());
  }

  FrmPrefixSuffix dialog;
};

TEST_F(PrefixSuffixTest, PrefixGoesInFrontAndSuffixBeforeTheExtension) {
  AddFiles({"archive.tar.gz", "photo.jpg", "README", ".profile", "abc."});
  Run("new_", "_1");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"new_archive.tar_1.gz", "new_photo_1.jpg", "new_README_1",
                                                      "new__1.profile", "new_abc_1."}));
  // The files themselves are untouched.
  EXPECT_EQ(Column(core::kColOldName),
            (std::vector<std::string>{"archive.tar.gz", "photo.jpg", "README", ".profile", "abc."}));
  EXPECT_TRUE(testing::Exists(temp.Path() + "photo.jpg"));
}

TEST_F(PrefixSuffixTest, BothEmptyRewritesEachNameToItself) {
  AddFiles({"a.txt", "b"});
  frontEnd.statusTexts.clear();
  Run("", "");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.txt", "b"}));
  EXPECT_EQ(state.changedCount, 0);
  EXPECT_EQ(frontEnd.statusTexts.front(), "File 1 of 2");
}

TEST_F(PrefixSuffixTest, WorksOnThePendingNameSoTwoRunsStack) {
  AddFiles({"a.txt"});
  Run("x", "");
  Run("y", "z");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"yxaz.txt"}));
}

TEST_F(PrefixSuffixTest, TagsAreNotEvaluated) {
  AddFiles({"a.txt"});
  Run("<NAME>_", "<EXT>");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"<NAME>_a<EXT>.txt"}));
}

TEST_F(PrefixSuffixTest, ChangesOnlyTheRowsInScope) {
  AddFiles({"a.txt", "b.txt"});
  state.list.Item(2).selected = true;
  state.applyScope = 1;
  Run("p", "s");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.txt", "pbs.txt"}));
  EXPECT_EQ(state.list.Item(2).colour, core::RowColour::DarkRed);
}

TEST_F(PrefixSuffixTest, MultibytePrefixAndSuffix) {
  AddFiles({"Straße.jpg"});
  Run("Zürich ", " €");
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"Zürich Straße €.jpg"}));
}

TEST_F(PrefixSuffixTest, KeepsItsInputsUnderTheirNamesAndUsesTheOddSharedSection) {
  EXPECT_EQ(dialog.Model().Name(), "frmPrefixSuffix");
  EXPECT_NE(dialog.Model().Find("txtPr"), nullptr);
  EXPECT_NE(dialog.Model().Find("txtSu"), nullptr);
  const rename::ActionTraits& traits = dialog.Traits();
  EXPECT_EQ(traits.storeSection, "FrmPS");
  EXPECT_EQ(traits.restoreSection, "FrmPS");
  EXPECT_EQ(traits.stepType, 5);
  EXPECT_FALSE(traits.disablesButtonsWhileRunning);
  EXPECT_EQ(traits.restoreMoment, rename::RestoreMoment::OnLoad);
}

TEST(PrefixSuffixKeysTest, NameFieldsSwallowTheNineForbiddenCharacters) {
  for (char32_t c : std::u32string(U"\\/:?*<>|\""))
    EXPECT_TRUE(base::IsForbiddenNameCharacter(c)) << static_cast<int>(c);
  for (char32_t c : std::u32string(U".aZ0 _-äß€ÿ"))
    EXPECT_FALSE(base::IsForbiddenNameCharacter(c)) << static_cast<int>(c);
}

TEST(PrefixSuffixLabelsTest, LabelsComeFromTheCaptionAroundItsSlash) {
  const auto labels = PrefixSuffixLabels("Prefix/Suffix (all files)");
  ASSERT_TRUE(labels);
  EXPECT_EQ(labels->first, "Prefix:");
  EXPECT_EQ(labels->second, "Suffix:");
}

TEST(PrefixSuffixLabelsTest, SuffixLabelRunsToTheEndWhenNoBlankFollows) {
  const auto labels = PrefixSuffixLabels("Präfix/Suffix");
  ASSERT_TRUE(labels);
  EXPECT_EQ(labels->first, "Präfix:");
  EXPECT_EQ(labels->second, "Suffix:");
}

TEST(PrefixSuffixLabelsTest, CaptionWithoutSlashLeavesTheLabelsAlone) {
  EXPECT_FALSE(PrefixSuffixLabels("Prefix and suffix"));
}

}  // namespace
}  // namespace nomra::actions
