// The tags that read a row's file: the checksum and the ID3 and MPEG tags,
// on real files.
#include <cstdio>

#include "base/Fault.h"
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

}  // namespace
}  // namespace nomra::testing
