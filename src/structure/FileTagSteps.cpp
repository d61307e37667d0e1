#include "structure/FileTagSteps.h"

#include <array>

#include "base/Failure.h"
#include "base/Fault.h"
#include "media/Crc32.h"
#include "media/Mp3Infos.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

// Replaces every exact occurrence, searching on behind each value.
void ReplaceExactly(std::string& s, std::string_view tag, std::string_view value) {
  std::size_t at = s.find(tag);
  while (at != std::string::npos) {
    s.replace(at, tag.size(), value);
    at = s.find(tag, at + value.size());
  }
}

}  // namespace

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
    if (s.find(tag.tag) != std::string::npos) ReplaceExactly(s, tag.tag, (infos.*tag.value)());
  }
}

}  // namespace nomra::structure
