#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Cp1252.h"
#include "media/ExifBytes.h"
#include "media/ExifInfos.h"
#include "platform/MemoryInputFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

// The EXIF reader on files built byte by byte, in Intel and Motorola order:
// where it finds the segment, the directories it walks, the form it gives
// each type's value, and the values of the name structures. The reader is
// the old program's small, trusting one; its odd results are meant.

namespace nomra::media {
namespace {

using namespace std::string_literals;
using testing::ExifBytes;
using Directory = ExifBytes::Directory;
using namespace nomra::testing;  // the TIFF type names

ExifInfos ReadBytes(const std::string& bytes, bool* loaded = nullptr) {
  platform::MemoryInputFile file(bytes);
  ExifInfos infos;
  const bool result = infos.Read(file);
  if (loaded != nullptr) *loaded = result;
  return infos;
}

class ExifOrder : public ::testing::TestWithParam<bool> {
 protected:
  ExifBytes b{GetParam()};

  // IFD0 with `ifd0` and a pointer to an Exif IFD with `exif`.
  std::string JpegWith(std::vector<ExifBytes::Entry> ifd0, std::vector<ExifBytes::Entry> exif) const {
    ifd0.push_back(b.Pointer(34665, 1));
    return ExifBytes::Jpeg(b.Tiff({Directory{ifd0}, Directory{exif}}));
  }
};

INSTANTIATE_TEST_SUITE_P(BothByteOrders, ExifOrder, ::testing::Values(true, false),
                         [](const auto& info) { return info.param ? "Intel"s : "Motorola"s; });

// ---- The segment and the header -----------------------------------------------

TEST_P(ExifOrder, ReadsTheByteOrderOfTheHeader) {
  bool loaded = false;
  ExifInfos infos = ReadBytes(JpegWith({b.Ascii(271, "Maker"), b.Short(274, 6)}, {}), &loaded);
  EXPECT_TRUE(loaded);
  EXPECT_TRUE(infos.Loaded());
  EXPECT_EQ(infos.Intel(), GetParam());
  EXPECT_EQ(infos.Tag(271), "Maker\0"s);
  EXPECT_EQ(infos.Tag(274), "6");
}

TEST(Exif, AFirstApp1OfAnotherKindIsTakenAndRefusedThoughASecondHoldsExif) {
  const ExifBytes b(true);
  const std::string xmp = ExifBytes::Segment(0xE1, "http://ns.adobe.com/xap/1.0/\0<x:xmpmeta/>"s);
  const std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "Maker")}}}), xmp);
  bool loaded = true;
  ExifInfos infos = ReadBytes(jpeg, &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_FALSE(infos.Loaded());
  EXPECT_EQ(infos.Tag(271), "");
  EXPECT_EQ(infos.Tag(0), "0");
}

TEST(Exif, AnFfE1PairInsideOtherDataIsTakenAsTheSegment) {
  const ExifBytes b(true);
  const std::string comment = ExifBytes::Segment(0xFE, "comment \xFF\xE1 inside");
  bool loaded = true;
  ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "Maker")}}}), comment), &loaded);
  EXPECT_FALSE(loaded);
}

TEST(Exif, AStartOfFf00IsAccepted) {
  const ExifBytes b(true);
  std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "Maker")}}}));
  jpeg[1] = '\x00';
  bool loaded = false;
  EXPECT_EQ(ReadBytes(jpeg, &loaded).Tag(271), "Maker\0"s);
  EXPECT_TRUE(loaded);
}

TEST(Exif, AStartOf00D8IsAccepted) {
  const ExifBytes b(false);
  std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "Maker")}}}));
  jpeg[0] = '\x00';
  bool loaded = false;
  EXPECT_EQ(ReadBytes(jpeg, &loaded).Tag(271), "Maker\0"s);
  EXPECT_TRUE(loaded);
}

TEST(Exif, AStartWithNeitherFfNorD8IsRefused) {
  const ExifBytes b(true);
  std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "Maker")}}}));
  jpeg[0] = '\x00';
  jpeg[1] = '\xD9';
  bool loaded = true;
  EXPECT_EQ(ReadBytes(jpeg, &loaded).Tag(0), "0");
  EXPECT_FALSE(loaded);
}

TEST(Exif, AHeaderOf4D4DIsMotorolaOrder) {
  const ExifBytes b(false);
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{{b.Short(274, 3)}}}, "MM\0*"s)));
  EXPECT_FALSE(infos.Intel());
  EXPECT_EQ(infos.Tag(274), "3");
}

TEST(Exif, AnyFirstHeaderByteButHex49IsMotorolaOrder) {
  const ExifBytes b(false);
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{{b.Short(274, 3)}}}, "ii\0*"s)));
  EXPECT_FALSE(infos.Intel());
  EXPECT_EQ(infos.Tag(274), "3");
}

TEST(Exif, TheSecondHeaderByteAndThe42AreNotLookedAt) {
  const ExifBytes b(true);
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{{b.Short(274, 3)}}}, "IM\x07\x07")));
  EXPECT_TRUE(infos.Intel());
  EXPECT_EQ(infos.Tag(274), "3");
}

TEST(Exif, TheExifMarkIsCaseSensitive) {
  const ExifBytes b(true);
  std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Short(274, 3)}}}));
  jpeg.replace(jpeg.find("Exif"), 4, "EXIF");
  bool loaded = true;
  EXPECT_EQ(ReadBytes(jpeg, &loaded).Tag(274), "");
  EXPECT_FALSE(loaded);
}

TEST(Exif, WithoutAnFfE1PairTheMarkIsLookedForAtTheFileStart) {
  // No FF E1 anywhere: the segment position counts as 0, so "Exif" is
  // looked for at byte 4 and the TIFF header at byte 10.
  const ExifBytes b(true);
  const std::string file = "\xFF\xD8\x00\x00"s + "Exif\0\0"s + b.Tiff({Directory{{b.Short(274, 8)}}});
  bool loaded = false;
  EXPECT_EQ(ReadBytes(file, &loaded).Tag(274), "8");
  EXPECT_TRUE(loaded);
  const std::string plain = ExifBytes::Segment(0xE0, "JFIF\0"s + std::string(20, '\x01'));
  EXPECT_EQ(ReadBytes("\xFF\xD8"s + plain + "\xFF\xD9").Tag(0), "0");
}

TEST(Exif, ASegmentBeyondTheFirst64KibIsFound) {
  const ExifBytes b(false);
  std::string before;
  for (int k = 0; k < 3; ++k) before += ExifBytes::Segment(0xE2, std::string(30000, '\x20'));
  const std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(272, "Far")}}}), before);
  ASSERT_GT(jpeg.find("Exif"), 65536u);
  EXPECT_EQ(ReadBytes(jpeg).Tag(272), "Far\0"s);
}

TEST(Exif, AnFfE1PairAcrossThe64KibMarkIsFound) {
  const ExifBytes b(true);
  // Two segments that end one byte before 64 KiB, so the marker's FF is
  // the last byte of the first read and E1 the first of the next.
  const std::size_t first = 65535 - 2 - 4;
  std::string before = ExifBytes::Segment(0xE2, std::string(first, ' '));
  const std::string jpeg = ExifBytes::Jpeg(b.Tiff({Directory{{b.Short(274, 5)}}}), before);
  ASSERT_EQ(jpeg.find("\xFF\xE1"), 65535u);
  EXPECT_EQ(ReadBytes(jpeg).Tag(274), "5");
}

// ---- The directory walk -------------------------------------------------------

TEST_P(ExifOrder, WalksIfd0ThenIfd1ThenTheExifIfd) {
  // IFD0 -> IFD1 by the chain, then the Exif IFD by tag 34665; the first
  // entry with a tag wins, so IFD1's 274 hides the Exif IFD's.
  const std::string tiff =
      b.Tiff({Directory{{b.Short(274, 1), b.Pointer(34665, 2)}, 1}, Directory{{b.Short(259, 6), b.Short(40961, 7)}},
              Directory{{b.Short(40961, 9), b.Ascii(36867, "2005:01:02 12:30:00")}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.Tag(259), "6");
  EXPECT_EQ(infos.Tag(40961), "7");
  EXPECT_EQ(infos.Tag(36867), "2005:01:02 12:30:00\0"s);
  EXPECT_EQ(infos.Tag(0), "6");
  std::vector<std::int32_t> order;
  for (const ExifEntry& e : infos.Entries()) order.push_back(e.tag);
  EXPECT_EQ(order, (std::vector<std::int32_t>{274, 34665, 259, 40961, 40961, 36867}));
}

TEST_P(ExifOrder, TheExifIfdsNextDirectoryIsNotRead) {
  const std::string tiff =
      b.Tiff({Directory{{b.Pointer(34665, 1)}}, Directory{{b.Short(40961, 1)}, 2}, Directory{{b.Short(33434, 4)}}});
  bool loaded = false;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_TRUE(loaded);
  EXPECT_EQ(infos.Tag(40961), "1");
  EXPECT_EQ(infos.Tag(33434), "");
}

TEST_P(ExifOrder, WithoutAnExifPointerTheWalkEndsWithTheChain) {
  const std::string tiff = b.Tiff({Directory{{b.Short(274, 1)}}, Directory{{b.Ascii(36867, "2005:01:02 12:30:00")}}});
  bool loaded = false;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_TRUE(loaded);
  EXPECT_EQ(infos.Tag(0), "1");
  EXPECT_EQ(infos.ExifDate(), "");
}

TEST_P(ExifOrder, AChainThatComesBackEndsThereAndTheExifIfdIsStillRead) {
  // IFD1 points back at IFD0. The old program went round for ever; the
  // reader ends the chain at a directory it read and goes on as at 0.
  const std::string tiff = b.Tiff({Directory{{b.Short(274, 1), b.Pointer(34665, 2)}, 1},
                                   Directory{{b.Short(259, 6)}, 0}, Directory{{b.Short(40961, 1)}}});
  bool loaded = false;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_TRUE(loaded);
  EXPECT_EQ(infos.Tag(0), "4");
  EXPECT_EQ(infos.Tag(40961), "1");
}

TEST_P(ExifOrder, AnExifPointerToIfd0ReadsIfd0OnceMore) {
  const std::string tiff = b.Tiff({Directory{{b.Short(274, 1), b.Pointer(34665, 0)}}});
  bool loaded = false;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_TRUE(loaded);
  EXPECT_EQ(infos.Tag(0), "4");
}

TEST(Exif, DirectoriesThatOverlapSoTheyOutgrowTheFileEndTheWalk) {
  // Empty directories four bytes apart, each one's next field running into
  // the next one's count: no directory comes twice, yet together they are
  // half as large again as their bytes. The old program read them all;
  // the reader stops once they outgrow the file, so a made chain can't run
  // on for each of its bytes.
  const ExifBytes b(true);
  std::string tiff = "II*\0"s + b.U32(8);
  for (std::uint32_t p = 8; p < 8 + 4 * 400; p += 4) tiff += b.U16(0) + b.U16(p + 4);
  tiff += b.U16(0) + b.U16(0) + b.U16(0);
  bool loaded = true;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_TRUE(infos.Loaded());
  EXPECT_FALSE(loaded);
  // Directories side by side are read to the end of the chain.
  std::string sideBySide = "II*\0"s + b.U32(8);
  for (std::uint32_t p = 8; p < 8 + 6 * 400; p += 6) sideBySide += b.U16(0) + b.U32(p + 6);
  sideBySide += b.U16(0) + b.U32(0);
  EXPECT_TRUE(ReadBytes(ExifBytes::Jpeg(sideBySide), &loaded).Loaded());
  EXPECT_TRUE(loaded);
}

TEST_P(ExifOrder, ValuesThatShareMoreBytesThanTheFileHoldsEndTheWalk) {
  // Entries whose values all lie on the same 1,000 bytes: the reader takes
  // no more value bytes than the file holds, so a made directory can't ask
  // for gigabytes; real files don't share value bytes.
  std::vector<ExifBytes::Entry> entries = {{700, kUndefined, 1000, std::string(1000, 'v')}};
  for (std::uint16_t k = 1; k < 40; ++k) {
    ExifBytes::Entry shared{static_cast<std::uint16_t>(700 + k), kUndefined, 1000, ""};
    shared.rawField = 8 + 2 + 12 * 40 + 4;
    entries.push_back(shared);
  }
  bool loaded = true;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{entries}})), &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_EQ(infos.Tag(700), std::string(1000, 'v'));
  // The file is some 1,600 bytes: the second 1,000 are more than it holds.
  EXPECT_EQ(infos.Tag(701), "");
  EXPECT_EQ(infos.Entries()[1].count, 1000);
}

TEST_P(ExifOrder, AnOffsetOutsideTheFileEndsTheWalkAndKeepsWhatWasRead) {
  ExifBytes::Entry far = b.Ascii(272, "a model name");
  far.rawField = 0x100000;
  const std::string tiff = b.Tiff({Directory{{b.Ascii(271, "Maker"), far, b.Short(274, 1)}}});
  bool loaded = true;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_TRUE(infos.Loaded());
  EXPECT_EQ(infos.Tag(271), "Maker\0"s);
  EXPECT_EQ(infos.Tag(274), "");
  // The directory's count made room for three entries; the third stays blank.
  EXPECT_EQ(infos.Tag(0), "3");
  EXPECT_EQ(infos.Entries()[2].tag, 0);
}

TEST_P(ExifOrder, ADirectoryThatRunsPastTheFilesEndKeepsItsCountOfEntries) {
  const std::string tiff = b.Tiff({Directory{{b.Short(274, 1), b.Short(296, 2), b.Short(531, 1)}}});
  std::string jpeg = ExifBytes::Jpeg(tiff);
  // The file ends inside the second entry.
  jpeg.resize(jpeg.find("Exif") + 6 + 8 + 2 + 12 + 6);
  bool loaded = true;
  ExifInfos infos = ReadBytes(jpeg, &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_EQ(infos.Tag(274), "1");
  EXPECT_EQ(infos.Tag(0), "3");
  EXPECT_EQ(infos.Entries()[1].tag, 296);
  EXPECT_EQ(infos.Entries()[1].kind, ExifEntry::Kind::Empty);
}

TEST_P(ExifOrder, ALongOf2To31OrMoreEndsTheWalk) {
  const std::string tiff = b.Tiff({Directory{{b.Long(256, 0x7FFFFFFF), b.Long(257, 0x80000000), b.Short(274, 1)}}});
  bool loaded = true;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff), &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_EQ(infos.Tag(256), "2147483647");
  EXPECT_EQ(infos.Tag(257), "");
  EXPECT_EQ(infos.Tag(274), "");
}

TEST_P(ExifOrder, ANegativeSignedRationalEndsTheWalkAsItIsReadUnsigned) {
  const std::string exif = JpegWith(
      {},
      {b.Ascii(36867, "2005:01:02 12:30:00"), {37380, kSRational, 1, b.Rational(0xFFFFFFFF, 3)}, b.Long(37393, 12)});
  bool loaded = true;
  ExifInfos infos = ReadBytes(exif, &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_EQ(infos.ExifDate(), "2005-01-02 12:30:00\0"s);
  EXPECT_EQ(infos.Tag(37380), "");
  EXPECT_EQ(infos.ExifImageNumber(), "");
}

TEST_P(ExifOrder, ACountOfMoreThan2To31BytesEndsTheWalk) {
  ExifBytes::Entry huge{273, kLong, 0x20000000, ""};
  huge.rawField = 8;
  bool loaded = true;
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{{b.Short(274, 2), huge, b.Short(296, 2)}}})), &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_EQ(infos.Tag(274), "2");
  EXPECT_EQ(infos.Tag(296), "");
}

TEST_P(ExifOrder, ATypeOutsideOneToTenLeavesTheValueEmptyAndTheWalkGoesOn) {
  const std::string tiff = b.Tiff({Directory{{{700, 0, 1, "abcd"}, {701, 11, 1, "abcd"}, b.Short(274, 2)}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.Tag(700), "");
  EXPECT_EQ(infos.Tag(701), "");
  EXPECT_EQ(infos.Entries()[1].dataType, 11);
  EXPECT_EQ(infos.Tag(274), "2");
}

// ---- The forms of the values --------------------------------------------------

TEST_P(ExifOrder, AnInlineByteValueIsTheFourFieldBytesInHex) {
  const std::string tiff =
      b.Tiff({Directory{{{0, kByte, 4, "\x02\x03\xA0\xFF"}, {1, kByte, 1, "\x07"}, {2, kSByte, 2, "\x80\x01"}}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  ASSERT_EQ(infos.Entries().size(), 3u);
  EXPECT_EQ(infos.Entries()[0].Value(), "0203A0FF");
  EXPECT_EQ(infos.Tag(1), "07000000");
  EXPECT_EQ(infos.Tag(2), "80010000");
}

TEST_P(ExifOrder, AByteValueAtAnOffsetIsEachBytesDecimalText) {
  const std::string tiff = b.Tiff({Directory{{{700, kByte, 5, "\x01\x02\x03\x0A\xFF"}}}});
  EXPECT_EQ(ReadBytes(ExifBytes::Jpeg(tiff)).Tag(700), "12310255");
}

TEST_P(ExifOrder, AnInlineTextIsTheFourFieldBytesWhateverItsCount) {
  const std::string tiff = b.Tiff({Directory{{{271, kAscii, 2, "abcd"}, {272, kAscii, 3, "ab\0"s}}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.Tag(271), "abcd");
  EXPECT_EQ(infos.Tag(272), "ab\0\0"s);
}

TEST_P(ExifOrder, ATextAtAnOffsetIsCountBytesWithItsNul) {
  const std::string tiff = b.Tiff({Directory{{b.Ascii(271, "  Maker  "), {272, kAscii, 6, "ab\0cdefgh"s}}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.ExifMake(), "  Maker  \0"s);
  EXPECT_EQ(infos.ExifModel(), "ab\0cde"s);
  EXPECT_EQ(infos.Entries()[1].count, 6);
  EXPECT_GT(infos.Entries()[1].offset, 0);
}

TEST_P(ExifOrder, TextIsWindows1252) {
  const std::string tiff = b.Tiff({Directory{{b.Ascii(270, "Caf\xE9 \x80 \x90")}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.ExifImageDescription(), "Caf\xC3\xA9 \xE2\x82\xAC \xC2\x90\0"s);
  EXPECT_EQ(infos.Entries()[0].bytes, "Caf\xE9 \x80 \x90\0"s);
}

TEST_P(ExifOrder, AnInlineShortValueAddsTheFieldsTwoHalves) {
  const std::string tiff =
      b.Tiff({Directory{{b.Short(274, 6), {530, kShort, 2, b.U16(2) + b.U16(1)}, {700, kSShort, 1, b.U16(0xFFFF)}}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.Tag(274), "6");
  EXPECT_EQ(infos.Tag(530), "3");
  EXPECT_EQ(infos.Tag(700), "65535");
}

TEST_P(ExifOrder, AShortArrayAtAnOffsetIsTheDecimalTextOfCountBytes) {
  // Three shorts 8, 8, 8: one byte per component, Count of them.
  const std::string tiff = b.Tiff({Directory{{{258, kShort, 3, b.U16(8) + b.U16(8) + b.U16(8)}}}});
  EXPECT_EQ(ReadBytes(ExifBytes::Jpeg(tiff)).Tag(258), GetParam() ? "808" : "080");
}

TEST_P(ExifOrder, ALongArrayAtAnOffsetIsTheDecimalTextOfCountBytes) {
  const std::string tiff = b.Tiff({Directory{{{273, kLong, 2, b.U32(0x01020304) + b.U32(5)}}}});
  EXPECT_EQ(ReadBytes(ExifBytes::Jpeg(tiff)).Tag(273), GetParam() ? "43" : "12");
}

TEST_P(ExifOrder, ARationalIsItsFirstNumeratorAndDenominator) {
  const std::string tiff = b.Tiff({Directory{{b.Rat(282, 300, 1),
                                              {700, kRational, 2, b.Rational(1, 2) + b.Rational(3, 4)},
                                              {701, kSRational, 1, b.Rational(5, 7)}}}});
  ExifInfos infos = ReadBytes(ExifBytes::Jpeg(tiff));
  EXPECT_EQ(infos.Tag(282), "300/1");
  EXPECT_EQ(infos.Tag(700), "1/2");
  EXPECT_EQ(infos.Tag(701), "5/7");
}

// ---- The values of the name structures ----------------------------------------

TEST_P(ExifOrder, ADateTimeOriginalOfZerosGivesNoDate) {
  ExifInfos infos = ReadBytes(JpegWith({}, {b.Ascii(36867, "0000:00:00 00:00:00")}));
  EXPECT_EQ(infos.Tag(36867), "0000:00:00 00:00:00\0"s);
  EXPECT_EQ(infos.ExifDate(), "");
}

TEST_P(ExifOrder, TheDateHasItsFirstTwoColonsMadeDashesAndKeepsItsNul) {
  ExifInfos infos = ReadBytes(JpegWith({}, {b.Ascii(36867, "2005:01:02 12:30:00")}));
  EXPECT_EQ(infos.ExifDate(), "2005-01-02 12:30:00\0"s);
}

TEST_P(ExifOrder, OnlyDateTimeOriginalIsADate) {
  ExifInfos infos = ReadBytes(JpegWith({b.Ascii(306, "2005:01:02 12:30:00")}, {}));
  EXPECT_EQ(infos.Tag(306), "2005:01:02 12:30:00\0"s);
  EXPECT_EQ(infos.ExifDate(), "");
}

TEST(Exif, TheDateParserStopsAtTheNulAndWantsARealDay) {
  EXPECT_EQ(ExifInfos::DateOf("2005:01:02 12:30:00\0junk"s), "2005-01-02 12:30:00\0junk"s);
  EXPECT_EQ(ExifInfos::DateOf("2004:02:29 23:59:59"), "2004-02-29 23:59:59");
  EXPECT_EQ(ExifInfos::DateOf("2005:02:29 12:00:00"), "");
  EXPECT_EQ(ExifInfos::DateOf("2005:13:02 12:00:00"), "");
  EXPECT_EQ(ExifInfos::DateOf("2005:01:02 24:00:00"), "");
  EXPECT_EQ(ExifInfos::DateOf("2005:01:02"), "2005-01-02");
  EXPECT_EQ(ExifInfos::DateOf("    :  :     :  :  "), "");
  EXPECT_EQ(ExifInfos::DateOf(""), "");
}

TEST_P(ExifOrder, ResolutionsAreDividedAndRoundedHalfToEven) {
  struct Case {
    std::uint32_t n, d;
    const char* expected;
  };
  for (const Case& c : {Case{72, 1, "72"}, Case{300, 2, "150"}, Case{5, 2, "2"}, Case{7, 2, "4"}, Case{1, 3, "0"},
                        Case{2, 3, "1"}, Case{1, 0, ""}}) {
    ExifInfos infos = ReadBytes(ExifBytes::Jpeg(b.Tiff({Directory{{b.Rat(282, c.n, c.d), b.Rat(283, 72, 1)}}})));
    EXPECT_EQ(infos.ExifXResolution(), c.expected) << c.n << "/" << c.d;
    EXPECT_EQ(infos.ExifXYResolution(), c.expected + " x 72"s) << c.n << "/" << c.d;
  }
}

TEST(Exif, AResolutionWithoutASlashIsGivenAsItStands) {
  EXPECT_EQ(ExifInfos::Resolution("96"), "96");
  EXPECT_EQ(ExifInfos::Resolution(""), "");
  EXPECT_EQ(ExifInfos::Resolution("a/b"), "");
}

TEST_P(ExifOrder, TheSizeMakeModelNumberAndDescriptionAreTheirTagsText) {
  ExifInfos infos = ReadBytes(JpegWith({b.Ascii(270, "A view"), b.Ascii(271, "Maker"), b.Ascii(272, "Model 5")},
                                       {b.Long(37393, 1234), b.Short(40962, 640), b.Long(40963, 480)}));
  EXPECT_EQ(infos.ExifImageDescription(), "A view\0"s);
  EXPECT_EQ(infos.ExifMake(), "Maker\0"s);
  EXPECT_EQ(infos.ExifModel(), "Model 5\0"s);
  EXPECT_EQ(infos.ExifImageNumber(), "1234");
  EXPECT_EQ(infos.ExifImageW(), "640");
  EXPECT_EQ(infos.ExifImageH(), "480");
  EXPECT_EQ(infos.ExifImageWH(), "640 x 480");
}

TEST(Exif, Tag0OnAFileWithoutExifIsZeroAndNoFailureShows) {
  ExifInfos infos = ReadBytes("\xFF\xD8\xFF\xD9"s);
  EXPECT_EQ(infos.Tag(0), "0");
  EXPECT_EQ(infos.ExifDate(), "");
  EXPECT_EQ(infos.ExifImageWH(), " x ");
  EXPECT_EQ(ReadBytes("").Tag(0), "0");
  EXPECT_EQ(ReadBytes("\xFF").Tag(0), "0");
}

// ---- Files --------------------------------------------------------------------

TEST(Exif, ASecondLoadWithAnotherPathReadsTheFirstFileAgain) {
  const testing::TempFolder folder;
  const ExifBytes b(true);
  const std::string first = folder.WriteFile("first.jpg", ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "One")}}})));
  const std::string second =
      folder.WriteFile("second.jpg", ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(271, "Two")}}})));
  platform::PosixFileSystem files;
  ExifInfos infos;
  EXPECT_TRUE(infos.Load(files, first));
  EXPECT_EQ(infos.ExifMake(), "One\0"s);
  EXPECT_TRUE(infos.Load(files, second));
  EXPECT_EQ(infos.ExifMake(), "One\0"s);
  EXPECT_EQ(infos.Tag(0), "1");
}

TEST(Exif, TagLoadsTheBoundFileWhenNothingIsLoaded) {
  const testing::TempFolder folder;
  const ExifBytes b(false);
  const std::string path = folder.WriteFile("a.jpg", ExifBytes::Jpeg(b.Tiff({Directory{{b.Ascii(272, "Lazy")}}})));
  platform::PosixFileSystem files;
  ExifInfos infos;
  infos.SetPicFile(files, path);
  EXPECT_FALSE(infos.Loaded());
  EXPECT_EQ(infos.MakerNoteTag(272), "");
  EXPECT_FALSE(infos.Loaded());
  EXPECT_EQ(infos.ExifModel(), "Lazy\0"s);
  EXPECT_TRUE(infos.Loaded());
}

TEST(Exif, AFileThatIsMissingOrAFolderLoadsNothing) {
  const testing::TempFolder folder;
  platform::PosixFileSystem files;
  ExifInfos missing;
  EXPECT_FALSE(missing.Load(files, folder.Path() + "none.jpg"));
  EXPECT_EQ(missing.Tag(0), "0");
  ExifInfos directory;
  EXPECT_FALSE(directory.Load(files, folder.MakeFolder("sub")));
  EXPECT_EQ(directory.Tag(271), "");
}

// ---- Maker notes --------------------------------------------------------------

// A maker note that is a plain directory: 0x0001 a short, 0x0002 text at
// an offset, 0x0003 a long, 0x0004 a rational, 0x0005 an inline text.
std::string NoteDirectory(const ExifBytes& b, std::uint32_t valuesAt) {
  std::string note = b.U16(5);
  note += b.U16(1) + b.U16(kShort) + b.U32(2) + b.U16(42) + b.U16(7);
  note += b.U16(2) + b.U16(kAscii) + b.U32(8) + b.U32(valuesAt);
  note += b.U16(3) + b.U16(kLong) + b.U32(1) + b.U32(99);
  note += b.U16(4) + b.U16(kRational) + b.U32(1) + b.U32(valuesAt + 8);
  note += b.U16(5) + b.U16(kUndefined) + b.U32(3) + "xyz\0"s;
  return note;
}

class ExifMakerNote : public ExifOrder {
 protected:
  // The Exif IFD holds the note as undefined bytes; the file and where the
  // note starts in it.
  std::pair<std::string, std::int64_t> FileWithNote() const {
    // Lay the file out once to learn where the note's bytes land, then
    // again with the values' offset inside it.
    const auto build = [this](std::uint32_t valuesAt) {
      const std::string values = "Private\0"s + b.Rational(3, 4);
      const std::string note = NoteDirectory(b, valuesAt) + values;
      return JpegWith({b.Ascii(271, "Maker")}, {b.Ascii(36867, "2005:01:02 12:30:00"),
                                                {37500, kUndefined, static_cast<std::uint32_t>(note.size()), note}});
    };
    const std::string probe = build(0);
    const std::int64_t noteAt = static_cast<std::int64_t>(probe.find(NoteDirectory(b, 0)));
    const std::int64_t base = static_cast<std::int64_t>(probe.find("Exif")) + 6;
    const auto valuesAt = static_cast<std::uint32_t>(noteAt - base + 2 + 12 * 5);
    return {build(valuesAt), noteAt};
  }
};

INSTANTIATE_TEST_SUITE_P(BothByteOrders, ExifMakerNote, ::testing::Values(true, false),
                         [](const auto& info) { return info.param ? "Intel"s : "Motorola"s; });

TEST_P(ExifMakerNote, AfterLoadMakerNoteTagIsEmptyForEveryNumberThoughTheFileHasANote) {
  const auto [file, noteAt] = FileWithNote();
  bool loaded = false;
  ExifInfos infos = ReadBytes(file, &loaded);
  ASSERT_TRUE(loaded);
  ASSERT_NE(infos.MakerNoteOffset(), -1);
  EXPECT_EQ(infos.TiffBase() + infos.MakerNoteOffset(), noteAt);
  for (std::int32_t id = 0; id <= 65535; ++id) ASSERT_EQ(infos.MakerNoteTag(id), "") << id;
  for (const ExifEntry& e : infos.Entries()) EXPECT_FALSE(e.makerNote);
}

TEST_P(ExifMakerNote, Tag37500GivesTheNotesRawCharactersAsAnUndefinedValue) {
  const auto [file, noteAt] = FileWithNote();
  ExifInfos infos = ReadBytes(file);
  const std::string raw = file.substr(static_cast<std::size_t>(noteAt), 2 + 12 * 5 + 8 + 8);
  EXPECT_EQ(infos.Tag(37500), base::DecodeCp1252(raw));
  const ExifEntry* note = nullptr;
  for (const ExifEntry& e : infos.Entries()) {
    if (e.tag == 37500) note = &e;
  }
  ASSERT_NE(note, nullptr);
  EXPECT_EQ(note->dataType, kUndefined);
  EXPECT_EQ(note->bytes, raw);
}

TEST_P(ExifMakerNote, ProcessMakerNoteReadsThePlainDirectoryWithItsOwnTypeRules) {
  const auto [file, noteAt] = FileWithNote();
  platform::MemoryInputFile bytes(file);
  ExifInfos infos;
  ASSERT_TRUE(infos.Read(bytes));
  const std::string before = infos.Tag(0);
  infos.ProcessMakerNote(bytes, noteAt);
  EXPECT_EQ(std::stoi(infos.Tag(0)), std::stoi(before) + 5);
  EXPECT_EQ(infos.MakerNoteTag(1), "42");       // the first of two shorts, not their sum
  EXPECT_EQ(infos.MakerNoteTag(2), "Private");  // Count - 1 characters: no NUL
  EXPECT_EQ(infos.MakerNoteTag(3), "99");
  EXPECT_EQ(infos.MakerNoteTag(4), "3/4");
  EXPECT_EQ(infos.MakerNoteTag(5), "xy");
  EXPECT_EQ(infos.MakerNoteTag(271), "");
  EXPECT_EQ(infos.Tag(271), "Maker\0"s);  // either kind: the IFD0 entry came first
  EXPECT_EQ(infos.Tag(3), "99");
}

TEST_P(ExifMakerNote, ANoteWithAHeaderOfItsOwnGivesAGarbageCountAndEndsThere) {
  const auto [file, noteAt] = FileWithNote();
  std::string withHeader = file;
  withHeader.replace(static_cast<std::size_t>(noteAt), 2, "\x7F\x7F");
  platform::MemoryInputFile bytes(withHeader);
  ExifInfos infos;
  infos.Read(bytes);
  const std::string before = infos.Tag(0);
  infos.ProcessMakerNote(bytes, noteAt);
  EXPECT_EQ(infos.Tag(0), before);
  infos.ProcessMakerNote(bytes, static_cast<std::int64_t>(withHeader.size()) - 1);
  EXPECT_EQ(infos.Tag(0), before);
}

TEST(Exif, MakerNoteTagOnAnObjectThatLoadedNothingIsEmpty) {
  ExifInfos infos;
  EXPECT_EQ(infos.MakerNoteTag(1), "");
  platform::MemoryInputFile bytes("\xFF\xD8\x00\x02\x00\x01\x00\x03\x00\x00\x00\x01\x00\x05\x00\x00"s);
  infos.ProcessMakerNote(bytes, 2);
  EXPECT_EQ(infos.Tag(0), "0");
}

}  // namespace
}  // namespace nomra::media
