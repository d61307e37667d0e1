#include "structure/CaseConversion.h"

#include <utf8proc.h>

#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra::structure {

namespace {

std::u32string Upper(std::u32string chars) {
  for (char32_t& c : chars) c = base::ToUpperChar(c);
  return chars;
}

std::u32string Lower(std::u32string chars) {
  for (char32_t& c : chars) c = base::ToLowerChar(c);
  return chars;
}

std::u32string FirstUpper(std::u32string chars) {
  chars = Lower(std::move(chars));
  if (chars.empty()) return chars;
  chars[0] = base::ToUpperChar(chars[0]);
  // An extension in brackets keeps its dot and gets its first letter up.
  if (chars[0] == U'.' && chars.size() >= 2) chars[1] = base::ToUpperChar(chars[1]);
  return chars;
}

std::u32string WordsUpper(std::u32string chars) {
  chars = Lower(std::move(chars));
  if (chars.empty()) return chars;
  chars[0] = base::ToUpperChar(chars[0]);
  for (std::size_t i = 1; i < chars.size(); ++i) {
    if (!IsWordCharacter(chars[i - 1])) chars[i] = base::ToUpperChar(chars[i]);
  }
  return chars;
}

std::u32string Swapped(std::u32string chars) {
  for (char32_t& c : chars) {
    const char32_t lower = base::ToLowerChar(c);
    c = lower == c ? base::ToUpperChar(c) : lower;
  }
  return chars;
}

}  // namespace

bool IsWordCharacter(char32_t c) {
  if (c <= 0xFF) {
    return c == 39 || (c >= 65 && c <= 90) || (c >= 96 && c <= 122) || (c >= 192 && c <= 214) ||
           (c >= 216 && c <= 246) || c >= 248;
  }
  if (base::IsRawByte(c)) return false;
  switch (utf8proc_category(static_cast<utf8proc_int32_t>(c))) {
    case UTF8PROC_CATEGORY_LU:
    case UTF8PROC_CATEGORY_LL:
    case UTF8PROC_CATEGORY_LT:
    case UTF8PROC_CATEGORY_LM:
    case UTF8PROC_CATEGORY_LO: return true;
    default: return false;
  }
}

std::string ConvertCase(std::string_view code, std::string_view text) {
  std::u32string chars = base::ToChars(text);
  if (code == "UC") {
    chars = Upper(std::move(chars));
  } else if (code == "LC") {
    chars = Lower(std::move(chars));
  } else if (code == "1C") {
    chars = FirstUpper(std::move(chars));
  } else if (code == "WC") {
    chars = WordsUpper(std::move(chars));
  } else if (code == "SC") {
    chars = Swapped(std::move(chars));
  }
  return base::FromChars(chars);
}

}  // namespace nomra::structure
