#include "cli/JsonText.h"

#include <cstdio>

#include "base/Utf8.h"

namespace nomra::cli {

namespace {

void AppendUnicodeEscape(std::string& out, char32_t unit) {
  char escape[8];
  std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(unit));
  out += escape;
}

}  // namespace

std::string JsonString(std::string_view text) {
  std::string out;
  out.reserve(text.size() + 2);
  out += '"';
  base::ForEachChar(text, [&](char32_t character, std::size_t offset, std::size_t length) {
    switch (character) {
      case '"': out += "\\\""; return;
      case '\\': out += "\\\\"; return;
      case '\b': out += "\\b"; return;
      case '\f': out += "\\f"; return;
      case '\n': out += "\\n"; return;
      case '\r': out += "\\r"; return;
      case '\t': out += "\\t"; return;
      default: break;
    }
    if (character < 0x20 || base::IsRawByte(character)) {
      AppendUnicodeEscape(out, character);
    } else {
      out.append(text.substr(offset, length));
    }
  });
  out += '"';
  return out;
}

}  // namespace nomra::cli
