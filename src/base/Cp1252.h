#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// Windows-1252 bytes to UTF-8. The five bytes the code page leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) become U+0081 and so on, as Windows does, so
// a stored blank stand-in (0x90) survives.
std::string DecodeCp1252(std::string_view bytes);

// UTF-8 to Windows-1252, with "?" for every character the code page lacks.
std::string EncodeCp1252(std::string_view utf8);

// Nomra's own text files: UTF-8 (a leading byte order mark is dropped), or,
// when the bytes are not valid UTF-8, Windows-1252.
std::string DecodeTextFile(std::string_view bytes);

}  // namespace nomra::base
