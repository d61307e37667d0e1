#include <gtest/gtest.h>

#include "media/Id3Text.h"

namespace nomra::media {
namespace {

using namespace std::string_literals;

TEST(StripNuls, TrimsBlanksBeforeItRemovesNulsSoBlanksBeforeNulsStay) {
  EXPECT_EQ(StripNuls("Rock  "s + std::string(24, '\0')), "Rock  ");
  EXPECT_EQ(StripNuls("  Rock  "), "Rock");
  EXPECT_EQ(StripNuls("a\0b"s), "ab");
}

TEST(CleanFrameText, DropsTheEncodingByteAndTrailingNuls) {
  EXPECT_EQ(CleanFrameText("\0Title\0"s), "Title");
  EXPECT_EQ(CleanFrameText("\x01Title\x01"s), "Title");
}

TEST(CleanFrameText, DropsALanguageCodeWithAnEmptyDescription) { EXPECT_EQ(CleanFrameText("\0eng\0Text"s), "Text"); }

TEST(CleanFrameText, KeepsADescriptionThatIsNotEmpty) { EXPECT_EQ(CleanFrameText("\0engd\0Text"s), "engd\0Text"s); }

TEST(CleanFrameText, Utf16LosesItsMarkAndEveryNulInEitherByteOrder) {
  EXPECT_EQ(CleanFrameText("\x01\xFF\xFET\0i\0\0\0"s), "Ti");
  EXPECT_EQ(CleanFrameText("\x01\xFE\xFF\0T\0i\0\0"s), "Ti");
}

TEST(CleanFrameText, AMarkAloneIsNotText) { EXPECT_EQ(CleanFrameText("\x01\xFF\xFE"s), "\xFF\xFE"); }

TEST(CleanFrameText, EmptyDataStaysEmpty) { EXPECT_EQ(CleanFrameText(""), ""); }

}  // namespace
}  // namespace nomra::media
