#include "base/CaseMap.h"

#include <utf8proc.h>

#include "base/Utf8.h"

namespace nomra::base {

namespace {

// Characters of Windows-1252 that Unicode places outside Latin-1, the bytes
// 0x80 to 0x9F. Inside the code page only the pairs below change case.
bool InCodePage(char32_t c) {
  if (c <= 0xFF) return true;
  switch (c) {
    case 0x20AC:
    case 0x201A:
    case 0x0192:
    case 0x201E:
    case 0x2026:
    case 0x2020:
    case 0x2021:
    case 0x02C6:
    case 0x2030:
    case 0x0160:
    case 0x2039:
    case 0x0152:
    case 0x017D:
    case 0x2018:
    case 0x2019:
    case 0x201C:
    case 0x201D:
    case 0x2022:
    case 0x2013:
    case 0x2014:
    case 0x02DC:
    case 0x2122:
    case 0x0161:
    case 0x203A:
    case 0x0153:
    case 0x017E:
    case 0x0178: return true;
    default: return false;
  }
}

char32_t CodePageUpper(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 0x20;
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 0x20;
  switch (c) {
    case 0xFF: return 0x178;
    case 0x161: return 0x160;
    case 0x153: return 0x152;
    case 0x17E: return 0x17D;
    default: return c;
  }
}

char32_t CodePageLower(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c + 0x20;
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 0x20;
  switch (c) {
    case 0x178: return 0xFF;
    case 0x160: return 0x161;
    case 0x152: return 0x153;
    case 0x17D: return 0x17E;
    default: return c;
  }
}

template <typename Map>
std::string MapChars(std::string_view s, Map map) {
  std::string out;
  out.reserve(s.size());
  ForEachChar(s, [&](char32_t c, std::size_t, std::size_t) { AppendChar(out, map(c)); });
  return out;
}

}  // namespace

char32_t ToUpperChar(char32_t c) {
  if (IsRawByte(c)) return c;
  if (InCodePage(c)) return CodePageUpper(c);
  return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(c)));
}

char32_t ToLowerChar(char32_t c) {
  if (IsRawByte(c)) return c;
  if (InCodePage(c)) return CodePageLower(c);
  return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(c)));
}

std::string ToUpper(std::string_view s) { return MapChars(s, ToUpperChar); }
std::string ToLower(std::string_view s) { return MapChars(s, ToLowerChar); }

void AppendLowerCase(std::string& out, std::string_view s) {
  std::size_t i = 0;
  while (i < s.size()) {
    const auto b = static_cast<unsigned char>(s[i]);
    if (b < 0x80) {
      out.push_back(static_cast<char>(b >= 'A' && b <= 'Z' ? b + 0x20 : b));
      ++i;
      continue;
    }
    char32_t c;
    i += DecodeAt(s, i, c);
    AppendChar(out, ToLowerChar(c));
  }
}

int CompareNoCase(std::string_view a, std::string_view b) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size()) {
    const auto ca = static_cast<unsigned char>(a[i]);
    const auto cb = static_cast<unsigned char>(b[j]);
    if (ca < 0x80 && cb < 0x80) {
      // Plain ASCII needs no decoding, which keeps sorting of large lists fast.
      const char32_t la = (ca >= 'A' && ca <= 'Z') ? ca + 0x20 : ca;
      const char32_t lb = (cb >= 'A' && cb <= 'Z') ? cb + 0x20 : cb;
      if (la != lb) return la < lb ? -1 : 1;
      ++i;
      ++j;
      continue;
    }
    char32_t xa;
    char32_t xb;
    i += DecodeAt(a, i, xa);
    j += DecodeAt(b, j, xb);
    xa = ToLowerChar(xa);
    xb = ToLowerChar(xb);
    if (xa != xb) return xa < xb ? -1 : 1;
  }
  if (i < a.size()) return 1;
  if (j < b.size()) return -1;
  return 0;
}

bool EqualsNoCase(std::string_view a, std::string_view b) { return CompareNoCase(a, b) == 0; }

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (j < prefix.size()) {
    if (i >= text.size()) return false;
    char32_t a;
    char32_t b;
    i += DecodeAt(text, i, a);
    j += DecodeAt(prefix, j, b);
    if (ToLowerChar(a) != ToLowerChar(b)) return false;
  }
  return true;
}

}  // namespace nomra::base
