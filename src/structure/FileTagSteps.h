#pragma once
#include <array>
#include <string>
#include <string_view>

#include "media/Mp3Infos.h"
#include "platform/FileSystem.h"
#include "structure/MetadataSteps.h"

namespace nomra::structure {

// An ID3 or MPEG tag of the language and the value of the MP3 reader it
// gives; the tags are matched exactly as written, in this order.
struct Mp3Tag {
  std::string_view tag;
  std::string (media::Mp3Infos::*value)() const;
};
const std::array<Mp3Tag, 15>& Mp3Tags();

// The steps that read the file of a row from the disk: the EXIF tags of a
// JPEG, the CRC-32 tags and the ID3 and MPEG tags of an MP3. Nothing is kept from one evaluation
// to the next, so every call sees the file as it is now.
class FileTagSteps : public MetadataSteps {
 public:
  explicit FileTagSteps(platform::FileSystem& files) : files_(files) {}

  void ExifTags(core::FileEntry& row, std::string_view pending, std::string& s) const override;
  void ShortNameAndChecksumTags(core::FileEntry& row, std::string& s) const override;
  void Id3AndMpegTags(core::FileEntry& row, std::string& s) const override;

 private:
  platform::FileSystem& files_;
};

}  // namespace nomra::structure
