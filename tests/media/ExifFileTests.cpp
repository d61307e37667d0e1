#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Cp1252.h"
#include "media/ExifBytes.h"
#include "media/ExifInfos.h"
#include "platform/MemoryInputFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/JsonReader.h"
#include "support/TempFolder.h"

// The EXIF reader on real JPEGs: ImageMagick draws them, exiftool (and
// exiv2 where exiftool refuses a value) writes their tags in either byte
// order, and exiftool's reading of the same file is the oracle. Where the
// reader's rules differ from exiftool's, the test holds the reader's result
// and says which rule makes it. A missing tool fails the tests.
// Every file, and the files built byte by byte, is then cut at every length.

namespace nomra::media {
namespace {

using namespace std::string_literals;

struct Run {
  int status = -1;
  std::string output;
};

Run Shell(const std::string& command) {
  Run run;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return run;
  char buffer[4096];
  std::size_t got = 0;
  while ((got = fread(buffer, 1, sizeof buffer, pipe)) > 0) run.output.append(buffer, got);
  run.status = pclose(pipe);
  return run;
}

std::string Quoted(const std::string& text) {
  std::string out = "'";
  for (const char c : text) out += c == '\'' ? "'\\''"s : std::string(1, c);
  return out + "'";
}

// One tag as exiftool read it: its group (IFD0, IFD1, ExifIFD), its number
// and its value with -n, as text or number.
struct OracleTag {
  std::string group;
  int id = 0;
  testing::JsonValue value;
};

// The files, made once for the suite.
class Made {
 public:
  Made() {
    const Run magick = Shell("convert -size 64x48 xc:red -quality 80 " + Quoted(folder_.Path() + "plain.jpg") +
                             " && convert -size 16x12 xc:blue " + Quoted(folder_.Path() + "thumb.jpg"));
    if (magick.status != 0) problems_ += "convert: " + magick.output;
    for (const std::string order : {"II", "MM"}) {
      Make("tagged_" + order, "-ExifByteOrder=" + order +
                                  " -Make=Maker '-Model=Model 5' '-DateTimeOriginal=2005:01:02 12:30:00'"
                                  " -XResolution=300 -YResolution=150 -ResolutionUnit=inches"
                                  " '-ImageDescription=A view' -ImageNumber=1234 -ExifImageWidth=64"
                                  " -ExifImageHeight=48 -Orientation#=6 '-ThumbnailImage<=" +
                                  folder_.Path() + "thumb.jpg'");
      Make("negative_bias_" + order, "-ExifByteOrder=" + order +
                                         " -Make=Maker '-DateTimeOriginal=2006:07:08 09:10:11'"
                                         " -ExposureCompensation=-1 -ImageNumber=77 -ExifImageWidth=64");
      Make("modify_date_only_" + order, "-ExifByteOrder=" + order + " '-ModifyDate=2005:01:02 12:30:00' -Make=M");
      Make("cp1252_" + order, "-ExifByteOrder=" + order + " -charset exif=cp1252 '-Artist=Caf\xC3\xA9 \xE2\x82\xAC'" +
                                  " '-ImageDescription=\xC3\xBC\xC3\xA8'");
      // exiftool refuses a date of zeros; exiv2 writes it.
      Make("zero_date_" + order, "-ExifByteOrder=" + order + " -Make=Maker");
      const Run exiv2 = Shell("exiv2 -M'set Exif.Photo.DateTimeOriginal 0000:00:00 00:00:00' " +
                              Quoted(PathOf("zero_date_" + order)));
      if (exiv2.status != 0) problems_ += "exiv2: " + exiv2.output;
      Oracle("zero_date_" + order);
    }
  }

  static const std::vector<std::string>& Names() {
    static const std::vector<std::string> names = {
        "tagged_II",           "tagged_MM", "negative_bias_II", "negative_bias_MM", "modify_date_only_II",
        "modify_date_only_MM", "cp1252_II", "cp1252_MM",        "zero_date_II",     "zero_date_MM"};
    return names;
  }
  std::string PathOf(const std::string& name) const { return folder_.Path() + name + ".jpg"; }
  std::string Bytes(const std::string& name) const { return testing::ReadWholeFile(PathOf(name)); }
  const std::vector<OracleTag>& OracleOf(const std::string& name) { return oracles_[name]; }
  const std::string& Problems() const { return problems_; }

 private:
  void Make(const std::string& name, const std::string& arguments) {
    const Run copy = Shell("cp " + Quoted(folder_.Path() + "plain.jpg") + " " + Quoted(PathOf(name)));
    const Run tag = Shell("exiftool -q -overwrite_original " + arguments + " " + Quoted(PathOf(name)));
    if (copy.status != 0 || tag.status != 0) problems_ += name + ": " + copy.output + tag.output;
    Oracle(name);
  }
  void Oracle(const std::string& name) {
    const Run read = Shell("exiftool -j -n -D -G1 -charset exif=cp1252 -EXIF:All " + Quoted(PathOf(name)));
    if (read.status != 0) {
      problems_ += name + " oracle: " + read.output;
      return;
    }
    std::vector<OracleTag> tags;
    try {
      const testing::JsonValue document = testing::ParseJson(read.output);
      for (const auto& [key, member] : document[0].members) {
        const std::size_t colon = key.find(':');
        if (colon == std::string::npos || member.kind != testing::JsonValue::Kind::Object) continue;
        // exiftool's thumbnail (its id is a name) is no entry of the file.
        if (member["id"].kind != testing::JsonValue::Kind::Number) continue;
        tags.push_back({key.substr(0, colon), static_cast<int>(member["id"].number), member["val"]});
      }
    } catch (const std::exception& e) {
      problems_ += name + " oracle: " + e.what();
    }
    oracles_[name] = tags;
  }

  testing::TempFolder folder_;
  std::map<std::string, std::vector<OracleTag>> oracles_;
  std::string problems_;
};

std::unique_ptr<Made> made;

class ExifFiles : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { made = std::make_unique<Made>(); }
  static void TearDownTestSuite() { made.reset(); }
  void SetUp() override { ASSERT_EQ(made->Problems(), ""); }

  static ExifInfos Load(const std::string& name, bool* loaded = nullptr) {
    platform::PosixFileSystem files;
    ExifInfos infos;
    const bool result = infos.Load(files, made->PathOf(name));
    if (loaded != nullptr) *loaded = result;
    return infos;
  }
};

// Whether the reader's entry holds exiftool's value, by the reader's rules:
// text is Count bytes, the NUL that ends it included (exiftool drops it),
// and the four bytes of the entry when it fits there; a rational is "n/d";
// an undefined array of four is its four bytes (exiftool shows them as
// numbers); a single short or long is the number; the thumbnail's offset
// counts from the TIFF header (exiftool gives its place in the file).
bool Holds(const ExifEntry& entry, const testing::JsonValue& value, std::int64_t tiffBase) {
  using Kind = testing::JsonValue::Kind;
  if (entry.tag == 513 && entry.dataType == 4) {
    return value.kind == Kind::Number && entry.number + tiffBase == static_cast<std::int64_t>(value.number);
  }
  switch (entry.dataType) {
    case 2: {
      if (value.kind != Kind::String) return false;
      std::string bytes = base::EncodeCp1252(value.text);
      if (static_cast<std::size_t>(entry.count) == bytes.size() + 1) bytes += '\0';
      if (entry.count <= 4) bytes = (bytes + std::string(4, '\0')).substr(0, 4);
      return entry.Value() == base::DecodeCp1252(bytes);
    }
    case 3:
    case 4:
      return entry.count == 1 && value.kind == Kind::Number &&
             entry.Value() == std::to_string(static_cast<long long>(value.number));
    case 5: {
      const std::string text = entry.Value();
      const std::size_t slash = text.find('/');
      if (slash == std::string::npos || value.kind != Kind::Number) return false;
      return std::abs(std::stod(text.substr(0, slash)) / std::stod(text.substr(slash + 1)) - value.number) < 1e-9;
    }
    case 7: {
      if (entry.count != 4 || entry.bytes.size() != 4) return false;
      if (value.kind == Kind::String && value.text == entry.bytes) return true;
      std::string numbers;
      for (const char c : entry.bytes)
        numbers += (numbers.empty() ? "" : " ") + std::to_string(static_cast<unsigned char>(c));
      return value.kind == Kind::String && value.text == numbers;
    }
    default: return false;
  }
}

// What of exiftool's IFD0, IFD1 and Exif IFD tags the reader doesn't hold
// as it should; tags of other directories (GPS, interoperability) are not
// walked by the reader and are left out.
std::string Differences(const ExifInfos& infos, const std::vector<OracleTag>& oracle, int* compared) {
  std::string wrong;
  *compared = 0;
  for (const OracleTag& tag : oracle) {
    if (tag.group != "IFD0" && tag.group != "IFD1" && tag.group != "ExifIFD") continue;
    bool found = false;
    for (const ExifEntry& entry : infos.Entries()) {
      if (entry.tag == tag.id && Holds(entry, tag.value, infos.TiffBase())) found = true;
    }
    ++*compared;
    if (!found) wrong += tag.group + ":" + std::to_string(tag.id) + " ";
  }
  return wrong;
}

TEST_F(ExifFiles, EveryTagOfTheMainDirectoriesIsReadAsExiftoolReadsIt) {
  for (const std::string name : {"tagged_II", "tagged_MM", "modify_date_only_II", "modify_date_only_MM", "cp1252_II",
                                 "cp1252_MM", "zero_date_II", "zero_date_MM"}) {
    bool loaded = false;
    const ExifInfos infos = Load(name, &loaded);
    EXPECT_TRUE(loaded) << name;
    int compared = 0;
    EXPECT_EQ(Differences(infos, made->OracleOf(name), &compared), "") << name;
    EXPECT_GE(compared, 5) << name;
  }
}

TEST_F(ExifFiles, TheByteOrderIsExiftools) {
  EXPECT_TRUE(Load("tagged_II").Intel());
  EXPECT_FALSE(Load("tagged_MM").Intel());
}

TEST_F(ExifFiles, ThePropertiesOfATaggedFile) {
  for (const std::string name : {"tagged_II", "tagged_MM"}) {
    ExifInfos infos = Load(name);
    // Text keeps the NUL that ends it in the file; exiftool drops it.
    EXPECT_EQ(infos.ExifMake(), "Maker\0"s) << name;
    EXPECT_EQ(infos.ExifModel(), "Model 5\0"s) << name;
    EXPECT_EQ(infos.ExifImageDescription(), "A view\0"s) << name;
    EXPECT_EQ(infos.ExifDate(), "2005-01-02 12:30:00\0"s) << name;
    EXPECT_EQ(infos.ExifImageNumber(), "1234") << name;
    EXPECT_EQ(infos.ExifImageWH(), "64 x 48") << name;
    EXPECT_EQ(infos.ExifXYResolution(), "300 x 150") << name;
    EXPECT_EQ(infos.Tag(274), "6") << name;
    // IFD1, the thumbnail's directory, is read before the Exif IFD; its
    // offset and length are there.
    EXPECT_NE(infos.Tag(513), "") << name;
    EXPECT_NE(infos.Tag(514), "") << name;
  }
}

TEST_F(ExifFiles, ANegativeExposureCompensationEndsTheWalkWhereExiftoolReadsOn) {
  for (const std::string name : {"negative_bias_II", "negative_bias_MM"}) {
    bool loaded = true;
    ExifInfos infos = Load(name, &loaded);
    // The signed rational -1/1 is read unsigned: 2^32 - 1 fails the
    // arithmetic, and the Exif IFD's later tags are not read.
    EXPECT_FALSE(loaded) << name;
    EXPECT_EQ(infos.ExifDate(), "2006-07-08 09:10:11\0"s) << name;
    EXPECT_EQ(infos.ExifMake(), "Maker\0"s) << name;
    EXPECT_EQ(infos.Tag(37380), "") << name;
    EXPECT_EQ(infos.ExifImageNumber(), "") << name;
    EXPECT_EQ(infos.ExifImageW(), "") << name;
    bool oracleHasNumber = false;
    for (const OracleTag& tag : made->OracleOf(name)) {
      if (tag.id == 37393) oracleHasNumber = tag.value.number == 77;
      const bool before = tag.group != "ExifIFD" || tag.id < 37380;
      if (before) {
        int compared = 0;
        EXPECT_EQ(Differences(infos, {tag}, &compared), "") << name;
      }
    }
    EXPECT_TRUE(oracleHasNumber) << name;
  }
}

TEST_F(ExifFiles, AFileWithOnlyModifyDateHasNoDate) {
  for (const std::string name : {"modify_date_only_II", "modify_date_only_MM"}) {
    ExifInfos infos = Load(name);
    EXPECT_EQ(infos.Tag(306), "2005:01:02 12:30:00\0"s) << name;
    EXPECT_EQ(infos.ExifDate(), "") << name;
  }
}

TEST_F(ExifFiles, AZeroDateFromExiv2GivesNoDate) {
  for (const std::string name : {"zero_date_II", "zero_date_MM"}) {
    ExifInfos infos = Load(name);
    EXPECT_EQ(infos.Tag(36867), "0000:00:00 00:00:00\0"s) << name;
    EXPECT_EQ(infos.ExifDate(), "") << name;
  }
}

TEST_F(ExifFiles, EightBitTextIsWindows1252AsExiftoolWroteIt) {
  for (const std::string name : {"cp1252_II", "cp1252_MM"}) {
    ExifInfos infos = Load(name);
    // exiftool writes converted text without its NUL: Count bytes are
    // given, no more.
    EXPECT_EQ(infos.Tag(315), "Caf\xC3\xA9 \xE2\x82\xAC") << name;
    // Two bytes fit in the entry: its four bytes are given.
    EXPECT_EQ(infos.ExifImageDescription(), "\xC3\xBC\xC3\xA8\0\0"s) << name;
  }
}

TEST_F(ExifFiles, APlainFileOfImageMagickHasNoExif) {
  bool loaded = true;
  ExifInfos infos = Load("plain", &loaded);
  EXPECT_FALSE(loaded);
  EXPECT_EQ(infos.Tag(0), "0");
}

// ---- Cut at every length ------------------------------------------------------

// What must hold for the first `n` bytes of a file whose whole reading was
// `full`: the reads are the same up to the first that the cut stops, so
// every entry read whole is the one of the whole file at the same place,
// and there are no more of them. "" when it all holds.
std::string CheckCut(std::string_view whole, std::size_t n, const ExifInfos& full) {
  platform::MemoryInputFile file(whole.substr(0, n));
  ExifInfos cut;
  const bool loaded = cut.Read(file);
  const auto& a = cut.Entries();
  const auto& b = full.Entries();
  if (a.size() > b.size()) return "more entries";
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i].kind == ExifEntry::Kind::Empty) continue;
    if (a[i].tag != b[i].tag || a[i].dataType != b[i].dataType || a[i].count != b[i].count ||
        a[i].Value() != b[i].Value()) {
      return "entry " + std::to_string(i);
    }
  }
  if (n == whole.size() && a.size() != b.size()) return "whole file";
  if (loaded && n < whole.size() && a.size() != b.size()) return "loaded with less";
  return "";
}

void CutEverywhere(const std::string& name, const std::string& bytes) {
  ASSERT_LE(bytes.size(), 70000u) << name;
  platform::MemoryInputFile file(bytes);
  ExifInfos full;
  full.Read(file);
  ASSERT_GT(full.Entries().size(), 0u) << name;
  for (std::size_t n = 0; n <= bytes.size(); ++n) {
    const std::string wrong = CheckCut(bytes, n, full);
    ASSERT_EQ(wrong, "") << name << " cut at " << n;
  }
}

TEST_F(ExifFiles, EveryMadeFileCutAtEveryLengthGivesOnlyWhatItsBytesHold) {
  for (const std::string& name : Made::Names()) CutEverywhere(name, made->Bytes(name));
}

TEST(ExifCut, EveryBuiltFileCutAtEveryLengthGivesOnlyWhatItsBytesHold) {
  for (const bool intel : {true, false}) {
    const testing::ExifBytes b(intel);
    using Directory = testing::ExifBytes::Directory;
    const std::string tiff = b.Tiff({Directory{{b.Ascii(271, "Maker"), b.Rat(282, 72, 1), b.Pointer(34665, 2)}, 1},
                                     Directory{{b.Short(259, 6), {700, testing::kByte, 6, "\x01\x02\x03\x04\x05\x06"}}},
                                     Directory{{b.Ascii(36867, "2005:01:02 12:30:00"),
                                                b.Long(37393, 5),
                                                {37500, testing::kUndefined, 20, std::string(20, 'n')}}}});
    CutEverywhere(intel ? "built_II" : "built_MM", testing::ExifBytes::Jpeg(tiff));
    // The segment across the first 64 KiB read.
    const std::string before = testing::ExifBytes::Segment(0xE2, std::string(65535 - 6, ' '));
    CutEverywhere(intel ? "across_II" : "across_MM", testing::ExifBytes::Jpeg(tiff, before));
  }
}

}  // namespace
}  // namespace nomra::media
