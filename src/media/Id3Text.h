#pragma once
#include <string>
#include <string_view>

namespace nomra::media {

// The byte rules of tag text; their results are Windows-1252 bytes, which
// the properties decode to UTF-8 last.

// Blanks off both ends first, then every NUL wherever it stands: a field
// "Rock" with two blanks and NULs behind keeps the two blanks, because they
// were not at the end when the trim ran.
std::string StripNuls(std::string_view field);

// The data of an ID3v2 frame as text: blanks off both ends, the encoding
// byte (NUL or 1) off the front, an empty language-coded description off
// the front, a byte order mark and every NUL off UTF-16 text (both byte
// orders alike), and NULs and 1s off the end.
std::string CleanFrameText(std::string_view data);

}  // namespace nomra::media
