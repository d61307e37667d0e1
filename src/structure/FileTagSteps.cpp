#include "structure/FileTagSteps.h"

#include <array>

#include "base/CaseMap.h"
#include "base/Failure.h"
#include "base/Fault.h"
#include "base/NameSplit.h"
#include "base/ReplaceText.h"
#include "media/Crc32.h"
#include "media/ExifInfos.h"
#include "media/Mp3Infos.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

// The EXIF tags and the entries they read. The resolutions are divided
// out; where that fails the stored text stands.
struct ExifTag {
  std::string_view tag;
  std::int32_t id;
  bool resolution;
};
constexpr std::array<ExifTag, 8> kExifTags = {{
    {"<EXIF_ImageW>", 40962, false},
    {"<EXIF_ImageH>", 40963, false},
    {"<EXIF_XResolution>", 282, true},
    {"<EXIF_YResolution>", 283, true},
    {"<EXIF_Make>", 271, false},
    {"<EXIF_Model>", 272, false},
    {"<EXIF_ImageNumber>", 37393, false},
    {"<EXIF_ImageDescription>", 270, false},
}};

std::string ResolutionText(const std::string& stored) {
  const std::string divided = media::ExifInfos::Resolution(stored);
  return divided.empty() ? stored : divided;
}

// The load goes by the pending name's extension, not by the file on disk.
bool NamedAsJpeg(std::string_view pending) {
  const std::string extension = base::ToLower(base::ExtensionOnly(pending, true));
  return extension == ".jpg" || extension == ".jpeg";
}

}  // namespace

void FileTagSteps::ExifTags(core::FileEntry& row, std::string_view pending, std::string& s) const {
  if (!HoldsTagNoCase(s, "<EXIF")) return;
  // A file that is not loaded gives "" for every tag, as does a tag the
  // file lacks; the object goes with the call, so nothing reaches the next.
  media::ExifInfos exif;
  if (NamedAsJpeg(pending)) exif.Load(files_, row.key);
  ReplaceTag(s, "<EXIF_ImageWH>", "<EXIF_ImageW> x <EXIF_ImageH>");
  ReplaceTag(s, "<EXIF_XYResolution>", "<EXIF_XResolution> x <EXIF_YResolution>");
  for (const ExifTag& tag : kExifTags) {
    if (!HoldsTagNoCase(s, tag.tag)) continue;
    const std::string stored = exif.Loaded() ? exif.Tag(tag.id) : std::string();
    ReplaceTag(s, tag.tag, tag.resolution ? ResolutionText(stored) : stored);
  }
}

const std::array<Mp3Tag, 15>& Mp3Tags() {
  static constexpr std::array<Mp3Tag, 15> kMp3Tags = {{
      {"<ID3_Artist>", &media::Mp3Infos::Id3Artist},
      {"<ID3_Artist_v1>", &media::Mp3Infos::Id3ArtistV1},
      {"<ID3_Artist_v2>", &media::Mp3Infos::Id3ArtistV2},
      {"<ID3_SongTitle>", &media::Mp3Infos::Id3SongTitle},
      {"<ID3_SongTitle_v1>", &media::Mp3Infos::Id3SongTitleV1},
      {"<ID3_SongTitle_v2>", &media::Mp3Infos::Id3SongTitleV2},
      {"<ID3_Album>", &media::Mp3Infos::Id3Album},
      {"<ID3_Album_v1>", &media::Mp3Infos::Id3AlbumV1},
      {"<ID3_Album_v2>", &media::Mp3Infos::Id3AlbumV2},
      {"<ID3_Year>", &media::Mp3Infos::Id3Year},
      {"<ID3_Comment>", &media::Mp3Infos::Id3Comment},
      {"<ID3_Comment_v1>", &media::Mp3Infos::Id3CommentV1},
      {"<ID3_Comment_v2>", &media::Mp3Infos::Id3CommentV2},
      {"<ID3_Track>", &media::Mp3Infos::Id3Track},
      {"<MP3_Length>", &media::Mp3Infos::Mp3Length},
  }};
  return kMp3Tags;
}

void FileTagSteps::ShortNameAndChecksumTags(core::FileEntry& row, std::string& s) const {
  if (!HoldsTagNoCase(s, "<CRC32>") && !HoldsTagNoCase(s, "<CRC32_D>")) return;
  int error = 0;
  const std::optional<std::uint32_t> crc = media::FileCrc32(files_, row.key, error);
  if (!crc)
    throw base::RuntimeFault("the checksum of " + row.key + " could not be read: " + base::SystemErrorText(error));
  // One read serves both forms: the file is the same within one evaluation.
  ReplaceTag(s, "<CRC32>", media::Crc32Hex(*crc));
  ReplaceTag(s, "<CRC32_D>", media::Crc32Decimal(*crc));
}

void FileTagSteps::Id3AndMpegTags(core::FileEntry& row, std::string& s) const {
  media::Mp3Infos infos;
  infos.GetFileInfos(files_, row.key);
  for (const Mp3Tag& tag : Mp3Tags()) {
    if (s.find(tag.tag) != std::string::npos) s = base::ReplaceText(s, tag.tag, (infos.*tag.value)());
  }
}

}  // namespace nomra::structure
