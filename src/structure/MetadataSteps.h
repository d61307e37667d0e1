#pragma once
#include <string>
#include <string_view>

#include "core/FileEntry.h"

namespace nomra::structure {

// The steps of the structure language that read a file's metadata or data,
// in the order the evaluation runs them. Each gets the working text and
// replaces its own tags in it. The readers come with the media and file
// tools; a step without a reader leaves its tags in the text, as the
// language does with every tag it doesn't know, and reads no file.
class MetadataSteps {
 public:
  virtual ~MetadataSteps() = default;

  // EXIF data of a JPEG (the load, then the tags), when s holds "<EXIF" or
  // "<DT" while the row has no EXIF date yet.
  virtual void ExifTags(core::FileEntry& /*row*/, std::string_view /*pending*/, std::string& /*s*/) const {}
  // The fields of an SMS message file, when s holds "<SMS".
  virtual void SmsTags(core::FileEntry& /*row*/, std::string& /*s*/) const {}
  // The <DT( tags: the file's dates in a chosen format.
  virtual void DateTags(core::FileEntry& /*row*/, std::string& /*s*/) const {}
  // Short names and the CRC-32, each computed only when its tag is there.
  virtual void ShortNameAndChecksumTags(core::FileEntry& /*row*/, std::string& /*s*/) const {}
  // ID3 tags and MPEG data of an MP3, when s holds "<ID3_" or "<MP3_".
  virtual void Id3AndMpegTags(core::FileEntry& /*row*/, std::string& /*s*/) const {}
};

// The steps as they stand until their readers exist: every tag stays.
const MetadataSteps& NoMetadataReaders();

}  // namespace nomra::structure
