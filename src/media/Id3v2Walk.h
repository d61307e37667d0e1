#pragma once
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "media/FilePieces.h"

namespace nomra::media {

// What the walk over an ID3v2 tag's frames found.
struct Id3v2Walked {
  std::map<std::string, std::string> frames;  // key: the id in upper case
  std::string genreText;                      // from TCON, raw bytes
  // False when a frame size could not be worked out: the reading of the
  // file ends there, with the frames so far.
  bool sizesHeld = true;
};

// The ids of the frames known to the program, in the order of writing.
const std::array<std::string_view, 38>& KnownFrameIds();

// Walks the frames of the tag at the start of the file, whose size field
// gave `tagSize`. Frame sizes are read with factors that agree with
// version 2.3 below 32,768 bytes only, and a second frame of an id already
// holding a value is walked into as frames; both are kept as the program
// always read them. The walk ends at an id holding a NUL, at a footer, or
// at the end of the tag.
Id3v2Walked WalkId3v2Frames(FilePieces& file, std::int32_t tagSize);

}  // namespace nomra::media
