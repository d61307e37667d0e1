#include "base/NameSplit.h"

#include <gtest/gtest.h>

#include "rename/actions/PrefixSuffix.h"

namespace nomra {
namespace {

struct Split {
  std::string stem;
  std::string extension;
};

Split SplitOf(std::string_view name) {
  Split split;
  SplitNameExtension(name, split.stem, split.extension);
  return split;
}

TEST(NameSplitTest, ExtensionBeginsAtTheLastDot) {
  EXPECT_EQ(NameOnly("archive.tar.gz"), "archive.tar");
  EXPECT_EQ(ExtensionOnly("archive.tar.gz", true), ".gz");
  EXPECT_EQ(ExtensionOnly("archive.tar.gz", false), "gz");
  const Split split = SplitOf("archive.tar.gz");
  EXPECT_EQ(split.stem, "archive.tar");
  EXPECT_EQ(split.extension, ".gz");
}

TEST(NameSplitTest, NameWithoutDotIsAllStemAndTheSuffixGoesAtItsVeryEnd) {
  EXPECT_EQ(NameOnly("README"), "README");
  EXPECT_EQ(ExtensionOnly("README", true), "");
  EXPECT_EQ(ExtensionOnly("README", false), "");
  EXPECT_EQ(SplitOf("README").extension, "");
  EXPECT_EQ(AddPrefixAndSuffix("README", "", "_old"), "README_old");
}

TEST(NameSplitTest, DotProfileHasAnEmptyStemAndThePrefixGoesInFrontOfTheDot) {
  EXPECT_EQ(NameOnly(".profile"), "");
  EXPECT_EQ(ExtensionOnly(".profile", true), ".profile");
  EXPECT_EQ(SplitOf(".profile").stem, "");
  EXPECT_EQ(AddPrefixAndSuffix(".profile", "x", ""), "x.profile");
}

TEST(NameSplitTest, FinalDotIsTheWholeExtension) {
  EXPECT_EQ(NameOnly("abc."), "abc");
  EXPECT_EQ(ExtensionOnly("abc.", true), ".");
  EXPECT_EQ(ExtensionOnly("abc.", false), "");
  const Split split = SplitOf("abc.");
  EXPECT_EQ(split.stem, "abc");
  EXPECT_EQ(split.extension, ".");
}

TEST(NameSplitTest, StemAndExtensionTogetherAreAlwaysTheName) {
  for (const char* name : {"", ".", "..", "a.b.c", "ä.jpeg", "Straße.tar.gz", "no dot", "trailing.", ".hidden.txt"}) {
    const Split split = SplitOf(name);
    EXPECT_EQ(split.stem + split.extension, name) << name;
    EXPECT_EQ(split.stem, NameOnly(name)) << name;
    EXPECT_EQ(split.extension, ExtensionOnly(name, true)) << name;
  }
}

TEST(NameSplitTest, MultibyteNamesSplitAtTheirLastDot) {
  const Split split = SplitOf("Café.Übersicht.jpg");
  EXPECT_EQ(split.stem, "Café.Übersicht");
  EXPECT_EQ(split.extension, ".jpg");
  EXPECT_EQ(ExtensionOnly("Foto.jpé", false), "jpé");
}

}  // namespace
}  // namespace nomra
