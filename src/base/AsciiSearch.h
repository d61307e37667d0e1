#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace nomra::base {

// Where `needle` first stands in `text` at or behind `from`, with the case of
// ASCII letters ignored and every other byte compared as it is; npos when
// absent. For ASCII needles such as tags, and for text that is all ASCII,
// this is the same as comparing lower-cased characters.
std::size_t FindAsciiNoCase(std::string_view text, std::string_view needle, std::size_t from = 0);

bool IsAscii(std::string_view text);

// ASCII letters in upper case, every other byte as it is: for keys and
// markers read from binary files, whatever their bytes.
std::string ToUpperAscii(std::string_view text);

}  // namespace nomra::base
