#include <gtest/gtest.h>

#include "actions/FrmPrefixSuffix.h"
#include "base/NameSplit.h"

namespace nomra::actions {
namespace {

struct Split {
  std::string stem;
  std::string extension;
};

Split SplitOf(std::string_view name) {
  Split split;
  base::SplitNameExtension(name, split.stem, split.extension);
  return split;
}

TEST(NameSplitTest, ExtensionBeginsAtTheLastDot) {
  EXPECT_EQ(base::NameOnly("archive.tar.gz"), "archive.tar");
  EXPECT_EQ(base::ExtensionOnly("archive.tar.gz", true), ".gz");
  EXPECT_EQ(base::ExtensionOnly("archive.tar.gz", false), "gz");
  const Split split = SplitOf("archive.tar.gz");
  EXPECT_EQ(split.stem, "archive.tar");
  EXPECT_EQ(split.extension, ".gz");
}

TEST(NameSplitTest, NameWithoutDotIsAllStemAndTheSuffixGoesAtItsVeryEnd) {
  EXPECT_EQ(base::NameOnly("README"), "README");
  EXPECT_EQ(base::ExtensionOnly("README", true), "");
  EXPECT_EQ(base::ExtensionOnly("README", false), "");
  EXPECT_EQ(SplitOf("README").extension, "");
  EXPECT_EQ(AddPrefixAndSuffix("README", "", "_old"), "README_old");
}

TEST(NameSplitTest, DotProfileHasAnEmptyStemAndThePrefixGoesInFrontOfTheDot) {
  EXPECT_EQ(base::NameOnly(".profile"), "");
  EXPECT_EQ(base::ExtensionOnly(".profile", true), ".profile");
  EXPECT_EQ(SplitOf(".profile").stem, "");
  EXPECT_EQ(AddPrefixAndSuffix(".profile", "x", ""), "x.profile");
}

TEST(NameSplitTest, FinalDotIsTheWholeExtension) {
  EXPECT_EQ(base::NameOnly("abc."), "abc");
  EXPECT_EQ(base::ExtensionOnly("abc.", true), ".");
  EXPECT_EQ(base::ExtensionOnly("abc.", false), "");
  const Split split = SplitOf("abc.");
  EXPECT_EQ(split.stem, "abc");
  EXPECT_EQ(split.extension, ".");
}

TEST(NameSplitTest, StemAndExtensionTogetherAreAlwaysTheName) {
  for (const char* name : {"", ".", "..", "a.b.c", "ä.jpeg", "Straße.tar.gz", "no dot", "trailing.", ".hidden.txt"}) {
    const Split split = SplitOf(name);
    EXPECT_EQ(split.stem + split.extension, name) << name;
    EXPECT_EQ(split.stem, base::NameOnly(name)) << name;
    EXPECT_EQ(split.extension, base::ExtensionOnly(name, true)) << name;
  }
}

TEST(NameSplitTest, MultibyteNamesSplitAtTheirLastDot) {
  const Split split = SplitOf("Café.Übersicht.jpg");
  EXPECT_EQ(split.stem, "Café.Übersicht");
  EXPECT_EQ(split.extension, ".jpg");
  EXPECT_EQ(base::ExtensionOnly("Foto.jpé", false), "jpé");
}

}  // namespace
}  // namespace nomra::actions
