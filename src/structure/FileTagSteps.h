#pragma once
#include "platform/FileSystem.h"
#include "structure/MetadataSteps.h"

namespace nomra::structure {

// The steps that read the file of a row from the disk: the CRC-32 tags
// and the ID3 and MPEG tags of an MP3. Nothing is kept from one evaluation
// to the next, so every call sees the file as it is now.
class FileTagSteps : public MetadataSteps {
 public:
  explicit FileTagSteps(platform::FileSystem& files) : files_(files) {}

  void ShortNameAndChecksumTags(core::FileEntry& row, std::string& s) const override;
  void Id3AndMpegTags(core::FileEntry& row, std::string& s) const override;

 private:
  platform::FileSystem& files_;
};

}  // namespace nomra::structure
