#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace nomra::base {

// Names that are not valid UTF-8 keep their bytes: each byte that is not part
// of a valid sequence is one character of its own. Such a byte b (0x80..0xFF)
// is carried as the lone surrogate U+DC00 + b, which no valid UTF-8 text can
// hold, so decoding and encoding again gives back the very same bytes.
inline constexpr char32_t kRawByteBase = 0xDC00;

inline constexpr bool IsRawByte(char32_t c) { return c >= 0xDC80 && c <= 0xDCFF; }

// Decodes the character that starts at `pos`; returns its length in bytes.
// `pos` must be below s.size().
std::size_t DecodeAt(std::string_view s, std::size_t pos, char32_t& character);

// Appends the UTF-8 form of a character (a raw byte goes back as that byte).
void AppendChar(std::string& out, char32_t character);

bool IsValidUtf8(std::string_view s);

// The byte offset where character `index` (from 0) begins; the end when the
// text is shorter.
std::size_t OffsetOfCharacter(std::string_view s, std::size_t index);

// Number of characters, counting each stray byte as one.
std::size_t CharCount(std::string_view s);

std::u32string ToChars(std::string_view s);
std::string FromChars(std::u32string_view chars);

// Calls f(character, byteOffset, byteLength) for each character in order.
template <typename F>
void ForEachChar(std::string_view s, F&& f) {
  std::size_t pos = 0;
  while (pos < s.size()) {
    char32_t c;
    std::size_t len = DecodeAt(s, pos, c);
    f(c, pos, len);
    pos += len;
  }
}

}  // namespace nomra::base
