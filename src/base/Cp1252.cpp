#include "base/Cp1252.h"

#include <array>

#include "base/Utf8.h"

namespace nomra::base {

namespace {

constexpr std::array<char32_t, 32> kHighControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t ByteToChar(unsigned char b) {
  if (b >= 0x80 && b <= 0x9F) return kHighControls[b - 0x80];
  return b;
}

int CharToByte(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    if (kHighControls[i] == c) return static_cast<int>(0x80 + i);
  }
  return -1;
}

}  // namespace

std::string DecodeCp1252(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 4);
  for (char b : bytes) AppendChar(out, ByteToChar(static_cast<unsigned char>(b)));
  return out;
}

std::string EncodeCp1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  ForEachChar(utf8, [&](char32_t c, std::size_t, std::size_t) {
    if (IsRawByte(c)) {
      out.push_back(static_cast<char>(c - kRawByteBase));
      return;
    }
    const int b = CharToByte(c);
    out.push_back(b < 0 ? '?' : static_cast<char>(b));
  });
  return out;
}

std::string DecodeTextFile(std::string_view bytes) {
  if (bytes.size() >= 3 && bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
  if (IsValidUtf8(bytes)) return std::string(bytes);
  return DecodeCp1252(bytes);
}

}  // namespace nomra::base
