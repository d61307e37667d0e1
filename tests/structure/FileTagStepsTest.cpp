// The tags that read a row's file: the checksum and the ID3 and MPEG tags,
// on real files.
#include <cstdio>

#include "base/Fault.h"
#include "media/ExifBytes.h"
#include "media/Mp3Bytes.h"
#include "structure/FileTagSteps.h"
#include "structure/StructureFixture.h"

namespace nomra::testing {
namespace {

using namespace std::string_literals;

// Counts the files opened for reading parts of them.
class CountingFileSystem final : public ForwardingFileSystem {
 public:
  std::unique_ptr<platform::InputFile> OpenForReading(const std::string& path, int& error) override {
    ++opened;
    return ForwardingFileSystem::OpenForReading(path, error);
  }
  int opened = 0;
};

class FileTagStepsTest : public StructureTest {
 protected:
  // A row over a file of these bytes.
  core::FileEntry& Row(const std::string& name, const std::string& bytes) {
    state.list.Clear();
    std::string path = temp.WriteFile(name, bytes);
    core::AddFile(load, path);
    return state.list.Item(1);
  }
  std::string Evaluate(core::FileEntry& row, const std::string& structure) {
    return structure::EvaluateStructure(row, structure, structure::FileTagSteps(counting));
  }

  static std::string TaggedSong() {
    const std::string body = Frame23("TIT2", "\0Song"s) + Frame23("TPE1", "\0Band"s) + Frame23("TALB", "\0Record"s);
    return Id3v2Tag(3, body) + AudioBytes(kFrame128, 480000) + Id3v1("Song v1", "Band v1", "", "1999", "", 17);
  }

  CountingFileSystem counting;
};

TEST_F(FileTagStepsTest, ArtistAndTitleComeFromTheTags) {
  core::FileEntry& row = Row("track01.mp3", TaggedSong());
  EXPECT_EQ(Evaluate(row, "<ID3_Artist> - <ID3_SongTitle><.EXT>"), "Band - Song.mp3");
  EXPECT_EQ(Evaluate(row, "<ID3_Artist_v1>|<ID3_Artist_v2>|<ID3_Year>|<ID3_Album>"), "Band v1|Band|1999|Record");
  EXPECT_EQ(Evaluate(row, "<MP3_Length>"), "30");
}

TEST_F(FileTagStepsTest, TheFileIsReadOncePerEvaluationAndOnlyForItsTags) {
  core::FileEntry& row = Row("track01.mp3", TaggedSong());
  Evaluate(row, "<ID3_Artist><ID3_SongTitle><ID3_Track><MP3_Length>");
  EXPECT_EQ(counting.opened, 1);
  Evaluate(row, "<NAME>-<EXT>");
  EXPECT_EQ(counting.opened, 1);
}

TEST_F(FileTagStepsTest, Id3TagsAreMatchedExactlyAsWritten) {
  core::FileEntry& row = Row("track01.mp3", TaggedSong());
  EXPECT_EQ(Evaluate(row, "<id3_artist>"), "<id3_artist>");
  EXPECT_EQ(counting.opened, 0);
}

TEST_F(FileTagStepsTest, ATitleHoldingCaseBracketsIsCaseConverted) {
  core::FileEntry& row =
      Row("a.mp3", Id3v2Tag(3, Frame23("TIT2", "\0<UC>loud</UC> song"s)) + AudioBytes(kFrame128, 20000));
  EXPECT_EQ(Evaluate(row, "<ID3_SongTitle>"), "LOUD song");
}

TEST_F(FileTagStepsTest, AFileWithoutTagsGivesEmptyValues) {
  core::FileEntry& row = Row("notes.txt", "just text");
  EXPECT_EQ(Evaluate(row, "[<ID3_Artist>][<MP3_Length>]"), "[][]");
}

TEST_F(FileTagStepsTest, TheChecksumOfTheCheckTextInBothForms) {
  core::FileEntry& row = Row("check.txt", "123456789");
  EXPECT_EQ(Evaluate(row, "<CRC32> <crc32_d>"), "CBF43926 -873187034");
}

TEST_F(FileTagStepsTest, AnEmptyFileHasTheChecksumZero) {
  core::FileEntry& row = Row("empty.txt", "");
  EXPECT_EQ(Evaluate(row, "<CRC32>|<CRC32_D>"), "0|0");
}

TEST_F(FileTagStepsTest, AChecksumWithLeadingZerosHasFewerThanEightDigits) {
  core::FileEntry& row = Row("n.txt", "n165");  // CRC-32 00BB85DD
  EXPECT_EQ(Evaluate(row, "<CRC32>|<CRC32_D>"), "BB85DD|12289501");
}

TEST_F(FileTagStepsTest, AChecksumOfAFileThatIsGoneIsAFaultAtItsRow) {
  core::FileEntry& row = Row("gone.txt", "x");
  std::remove(row.key.c_str());
  EXPECT_THROW(Evaluate(row, "<CRC32>"), nomra::base::RuntimeFault);
}

std::string CameraJpeg(bool intel) {
  const ExifBytes b(intel);
  return ExifBytes::Jpeg(b.Tiff({
      {{b.Ascii(270, "Harbour"), b.Ascii(271, "Canon"), b.Ascii(272, "EOS 5D"), b.Rat(282, 300, 2), b.Rat(283, 72, 0),
        b.Pointer(34665, 1)}},
      {{b.Long(40962, 4000), b.Long(40963, 3000), b.Long(37393, 17)}},
  }));
}

// A text entry keeps the NUL that ends it, as the reader hands it out; the
// commit refuses a name holding one.
TEST_F(FileTagStepsTest, ExifTagsComeFromAJpegInEitherByteOrder) {
  for (const bool intel : {true, false}) {
    core::FileEntry& row = Row("IMG_0001.JPG", CameraJpeg(intel));
    EXPECT_EQ(Evaluate(row, "<EXIF_Make> <exif_model> <EXIF_ImageWH> #<EXIF_ImageNumber> <EXIF_ImageDescription>"),
              "Canon\0 EOS 5D\0 4000 x 3000 #17 Harbour\0"s)
        << (intel ? "II" : "MM");
  }
}

TEST_F(FileTagStepsTest, AResolutionIsDividedOutAndAZeroDenominatorLeavesTheStoredText) {
  core::FileEntry& row = Row("a.jpg", CameraJpeg(true));
  EXPECT_EQ(Evaluate(row, "<EXIF_XYResolution>"), "150 x 72/0");
}

TEST_F(FileTagStepsTest, ExifTagsOfAFileNotNamedAsAJpegAreEmpty) {
  core::FileEntry& row = Row("picture.png", CameraJpeg(true));
  EXPECT_EQ(Evaluate(row, "[<EXIF_Make>]"), "[]");
  EXPECT_EQ(counting.opened, 0);
}

TEST_F(FileTagStepsTest, TheLoadGoesByThePendingExtensionNotTheFileOnDisk) {
  core::FileEntry& row = Row("picture.png", CameraJpeg(true));
  row[core::kColNewName] = "picture.jpeg";
  EXPECT_EQ(Evaluate(row, "<EXIF_Make>"), "Canon\0"s);
}

TEST_F(FileTagStepsTest, WidthAndHeightOfAFileWithoutThemLeaveTheSeparatorAlone) {
  core::FileEntry& row = Row("plain.jpg", "\xFF\xD8\xFF\xD9"s);
  EXPECT_EQ(Evaluate(row, "<EXIF_ImageWH>"), " x ");
}

TEST_F(FileTagStepsTest, AnUnknownExifNameStaysAsText) {
  core::FileEntry& row = Row("a.jpg", CameraJpeg(true));
  EXPECT_EQ(Evaluate(row, "<EXIF_Lens>"), "<EXIF_Lens>");
}

}  // namespace
}  // namespace nomra::testing
