// nomra-cli tags: what the readers find in a file, and what the file tags
// of a structure give for it, run as a user runs the program.
#include "cli/CliTestFixture.h"
#include "media/ExifBytes.h"
#include "media/Mp3Bytes.h"

namespace nomra::testing {
namespace {

using namespace std::string_literals;

class CliTags : public CliTest {
 protected:
  std::string Song() const {
    const std::string body = Frame23("TIT2", "\0Song"s) + Frame23("TPE1", "\0Band"s) + Frame23("TCON", "\0(17)Rock"s);
    return files.WriteFile(
        "song.mp3", Id3v2Tag(3, body, 1000) + AudioBytes(kFrame128, 480000) +
                        Id3v1("Song v1", "Band v1", "", "1999", "Comment"s + std::string(22, '\0') + "\x05"s, 17));
  }
};

TEST_F(CliTags, ShowsTheHeaderBothTagsAndWhatEachStructureTagGives) {
  const CliResult result = Run({"tags", Song()});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  for (const std::string line :
       {"    position            1011", "    bitrate             128 kbit/s", "    frequency           44100 Hz",
        "    seconds             30", "    track               5", "    genre               17 (Rock)",
        "    TIT2                Song", "    <ID3_Artist>        Band", "    <ID3_Artist_v1>     Band v1",
        "    <MP3_Length>        30"}) {
    EXPECT_NE(result.out.find(line + "\n"), std::string::npos) << line << "\n" << result.out;
  }
}

TEST_F(CliTags, JsonGivesTheSameFieldsByName) {
  const std::string path = Song();
  const JsonValue document = ParseJson(Run({"tags", "--json", path}).out);
  ASSERT_EQ(document.items.size(), 1u);
  const JsonValue& file = document.items[0];
  EXPECT_EQ(file["path"].text, path);
  EXPECT_EQ(file["mpeg"]["version"].text, "MPEG 1.0");
  EXPECT_EQ(file["mpeg"]["frame size"].text, "417");
  EXPECT_EQ(file["id3v1"]["title"].text, "Song v1");
  EXPECT_EQ(file["id3v2"]["TCON"].text, "(17)Rock");
  EXPECT_EQ(file["id3v2"]["genre"].text, "17");
  EXPECT_EQ(file["tags"]["<ID3_SongTitle>"].text, "Song");
  EXPECT_EQ(file["tags"]["<ID3_Year>"].text, "1999");
}

TEST_F(CliTags, TheChecksumInBothFormsMatchesTheStructure) {
  const std::string path = files.WriteFile("check.txt", "123456789");
  const JsonValue document = ParseJson(Run({"tags", "--json", path}).out);
  const JsonValue& file = document.items[0];
  EXPECT_EQ(file["tags"]["<CRC32>"].text, "CBF43926");
  EXPECT_EQ(file["tags"]["<CRC32_D>"].text, "-873187034");
  EXPECT_EQ(file["mpeg"].kind, JsonValue::Kind::Null);
  EXPECT_EQ(file["id3v1"].kind, JsonValue::Kind::Null);
  EXPECT_EQ(file["id3v2"].kind, JsonValue::Kind::Null);
  EXPECT_EQ(Run({"eval", "<CRC32>_<CRC32_D>", path}).out, "CBF43926_-873187034\n");
}

TEST_F(CliTags, ANulInsideATagIsShownAsAnEscape) {
  const std::string path =
      files.WriteFile("c.mp3", Id3v2Tag(3, Frame23("COMM", "\0engd\0Nice"s)) + AudioBytes(kFrame128, 20000));
  const CliResult result = Run({"tags", path});
  EXPECT_NE(result.out.find("    <ID3_Comment>       engd\\x00Nice\n"), std::string::npos) << result.out;
}

TEST_F(CliTags, AMissingFileAndAFolderAreToldAndTheOthersStillShown) {
  const std::string good = files.WriteFile("check.txt", "123456789");
  const CliResult result = Run({"tags", files.Path() + "missing.mp3", files.MakeFolder("sub"), good});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("missing.mp3: No such file or directory"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("sub/: a folder, not a file"), std::string::npos) << result.err;
  EXPECT_NE(result.out.find("CBF43926"), std::string::npos) << result.out;
}

TEST_F(CliTags, AJpegShowsEveryExifEntryAndWhatTheExifTagsGive) {
  const ExifBytes b(false);
  const std::string path = files.WriteFile(
      "IMG_0001.JPG", ExifBytes::Jpeg(b.Tiff({{{b.Ascii(271, "Nikon"), b.Rat(282, 300, 1), b.Short(274, 1)}}})));
  const JsonValue document = ParseJson(Run({"tags", "--json", path}).out);
  const JsonValue& file = document.items[0];
  EXPECT_EQ(file["exif"]["271"].text, "type 2, count 6: Nikon"s + '\0');
  EXPECT_EQ(file["exif"]["282"].text, "type 5, count 1: 300/1");
  EXPECT_EQ(file["tags"]["<EXIF_Make>"].text, "Nikon"s + '\0');
  EXPECT_EQ(file["tags"]["<EXIF_XResolution>"].text, "300");
  EXPECT_EQ(file["mpeg"].kind, JsonValue::Kind::Null);
}

TEST_F(CliTags, WithoutAFileItIsAUsageFault) {
  const CliResult result = Run({"tags"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_NE(result.err.find("no FILE given"), std::string::npos) << result.err;
}

TEST_F(CliTags, TheHelpTellsTheCommand) {
  const CliResult result = Run({"--help"});
  EXPECT_NE(result.out.find("nomra-cli tags FILE... [--json]"), std::string::npos);
  EXPECT_NE(result.out.find("Example: nomra-cli tags"), std::string::npos);
}

}  // namespace
}  // namespace nomra::testing
