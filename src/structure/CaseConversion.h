#pragma once
#include <string>
#include <string_view>

namespace nomra::structure {

// The conversions of the case brackets, by code: "UC" all upper, "LC" all
// lower, "1C" first character upper and the rest lower (and the second
// upper too behind a leading "."), "WC" each word's first letter upper,
// "SC" each letter swapped. Letters take the Western code page's partners
// where it has them, Unicode's beyond.
std::string ConvertCase(std::string_view code, std::string_view text);

// Whether a character continues a word for "WC". Up to U+00FF by code: the
// apostrophe, "A" to "Z", "`" and "a" to "z", and the Latin-1 letters but
// "×" and "÷"; so digits, blanks, "_" and "-" start a new word. Beyond
// Latin-1, every Unicode letter.
bool IsWordCharacter(char32_t c);

}  // namespace nomra::structure
