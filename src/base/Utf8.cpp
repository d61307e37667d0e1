#include "base/Utf8.h"

namespace nomra::base {

namespace {

bool IsContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

}  // namespace

std::size_t DecodeAt(std::string_view s, std::size_t pos, char32_t& character) {
  const auto b0 = static_cast<unsigned char>(s[pos]);
  if (b0 < 0x80) {
    character = b0;
    return 1;
  }
  std::size_t need = 0;
  char32_t value = 0;
  char32_t minimum = 0;
  if (b0 >= 0xC2 && b0 <= 0xDF) {
    need = 1;
    value = b0 & 0x1F;
    minimum = 0x80;
  } else if (b0 >= 0xE0 && b0 <= 0xEF) {
    need = 2;
    value = b0 & 0x0F;
    minimum = 0x800;
  } else if (b0 >= 0xF0 && b0 <= 0xF4) {
    need = 3;
    value = b0 & 0x07;
    minimum = 0x10000;
  }
  // The whole sequence must lie inside the text.
  bool valid = need > 0 && pos + need < s.size();
  if (valid) {
    for (std::size_t i = 1; i <= need; ++i) {
      const auto b = static_cast<unsigned char>(s[pos + i]);
      if (!IsContinuation(b)) {
        valid = false;
        break;
      }
      value = (value << 6) | (b & 0x3F);
    }
  }
  if (valid && (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))) {
    valid = false;
  }
  if (!valid) {
    character = kRawByteBase + b0;
    return 1;
  }
  character = value;
  return need + 1;
}

void AppendChar(std::string& out, char32_t c) {
  if (IsRawByte(c)) {
    out.push_back(static_cast<char>(c - kRawByteBase));
  } else if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (c >> 18)));
    out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}

bool IsValidUtf8(std::string_view s) {
  bool valid = true;
  ForEachChar(s, [&](char32_t c, std::size_t, std::size_t) {
    if (IsRawByte(c)) valid = false;
  });
  return valid;
}

std::size_t CharCount(std::string_view s) {
  std::size_t n = 0;
  ForEachChar(s, [&](char32_t, std::size_t, std::size_t) { ++n; });
  return n;
}

std::u32string ToChars(std::string_view s) {
  std::u32string out;
  out.reserve(s.size());
  ForEachChar(s, [&](char32_t c, std::size_t, std::size_t) { out.push_back(c); });
  return out;
}

std::string FromChars(std::u32string_view chars) {
  std::string out;
  out.reserve(chars.size());
  for (char32_t c : chars) AppendChar(out, c);
  return out;
}

std::size_t OffsetOfCharacter(std::string_view s, std::size_t index) {
  std::size_t offset = 0;
  for (std::size_t i = 0; i < index && offset < s.size(); ++i) {
    char32_t c;
    offset += DecodeAt(s, offset, c);
  }
  return offset;
}

}  // namespace nomra::base
