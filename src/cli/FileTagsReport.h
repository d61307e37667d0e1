#pragma once
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::cli {

// What the readers find in one file, group by group, in the words a user
// sees: the MPEG header, the ID3v1 record, the ID3v2 frames, and what each
// tag of a name structure gives for the file.
struct FileTagsReport {
  using Fields = std::vector<std::pair<std::string, std::string>>;

  std::string path;
  std::string fault;  // why the file could not be read, "" when it was

  std::optional<Fields> mpeg;   // nothing when no audio frame was found
  std::optional<Fields> id3v1;  // nothing without a record
  std::optional<Fields> id3v2;  // version and size first, then each frame by its id
  std::optional<Fields> exif;   // each entry by its tag id: type, count and value
  Fields tags;                  // "<ID3_Artist>" and the rest, "<EXIF_Make>" and the rest, "<CRC32>", "<CRC32_D>"
};

FileTagsReport ReadFileTags(platform::FileSystem& files, const std::string& path);

}  // namespace nomra::cli
