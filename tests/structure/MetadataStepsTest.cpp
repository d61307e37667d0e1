// The seams of the metadata steps: their place in the order, and no MP3 is
// read for a structure without its tags.
#include "structure/StructureFixture.h"

namespace nomra::testing {
namespace {

class RecordingSteps final : public structure::MetadataSteps {
 public:
  mutable std::vector<std::string> calls;
  void ExifTags(core::FileEntry&, std::string_view, std::string& s) const override { calls.push_back("exif:" + s); }
  void SmsTags(core::FileEntry&, std::string&) const override { calls.push_back("sms"); }
  void DateTags(core::FileEntry&, std::string&) const override { calls.push_back("dt"); }
  void ShortNameAndChecksumTags(core::FileEntry&, std::string&) const override { calls.push_back("dos"); }
  void Id3AndMpegTags(core::FileEntry&, std::string& s) const override {
    calls.push_back("id3");
    const std::size_t at = s.find("<ID3_Artist>");
    if (at != std::string::npos) s.replace(at, 12, "<name>");
  }
};

using MetadataStepsOrder = StructureTest;

TEST_F(MetadataStepsOrder, RunBehindTheNameTagsInTheirOrder) {
  AddFiles({"song.mp3"});
  RecordingSteps steps;
  structure::EvaluateStructure(state.list.Item(1), "<NAME><SMS_Sender><ID3_Title>", steps);
  EXPECT_EQ(steps.calls, (std::vector<std::string>{"exif:song<SMS_Sender><ID3_Title>", "sms", "dt", "dos", "id3"}));
}

TEST_F(MetadataStepsOrder, NoMp3IsReadWithoutItsTags) {
  AddFiles({"song.mp3"});
  RecordingSteps steps;
  structure::EvaluateStructure(state.list.Item(1), "<NAME>", steps);
  EXPECT_EQ(steps.calls, (std::vector<std::string>{"exif:song", "dt", "dos"}));
}

TEST_F(MetadataStepsOrder, NameTagsAMetadataValueBringsInStayText) {
  AddFiles({"song.mp3"});
  RecordingSteps steps;
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<ID3_Artist>", steps), "<name>");
}

TEST_F(MetadataStepsOrder, WithoutReadersMetadataTagsStayInTheName) {
  AddFiles({"song.mp3"});
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<ID3_Artist> - <EXIF_Model> <DT(C,\"yyyy\")> <CRC32>"),
            "<ID3_Artist> - <EXIF_Model> <DT(C,\"yyyy\")> <CRC32>");
}

}  // namespace
}  // namespace nomra::testing
