#include "base/ReplaceText.h"

#include <vector>

#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra {

namespace {

// The byte offset of 1-based character `position`; the end when beyond it.
std::size_t ByteOffsetOfCharacter(std::string_view text, long position) {
  std::size_t offset = 0;
  for (long i = 1; i < position && offset < text.size(); ++i) {
    char32_t c;
    offset += text::DecodeAt(text, offset, c);
  }
  return offset;
}

std::string ReplaceExact(std::string_view text, std::string_view find, std::string_view with, std::size_t from,
                         long count) {
  std::string result(text.substr(0, from));
  std::size_t pos = from;
  for (long done = 0; done < count; ++done) {
    const std::size_t hit = text.find(find, pos);
    if (hit == std::string_view::npos) break;
    result.append(text.substr(pos, hit - pos));
    result.append(with);
    pos = hit + find.size();
  }
  result.append(text.substr(pos));
  return result;
}

// Compares character by character, each lower-cased on its own, so that a
// match always covers whole characters of the text as it stands.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view find, std::string_view with,
                                std::size_t from, long count) {
  std::u32string needle = text::ToChars(find);
  for (char32_t& c : needle) c = text::ToLowerChar(c);

  std::vector<std::size_t> offsets;  // byte offset of each character, and of the end
  std::u32string lowered;
  text::ForEachChar(text.substr(from), [&](char32_t c, std::size_t offset, std::size_t) {
    offsets.push_back(from + offset);
    lowered.push_back(text::ToLowerChar(c));
  });
  offsets.push_back(text.size());

  std::string result(text.substr(0, from));
  std::size_t copiedUpTo = from;
  std::size_t i = 0;
  long done = 0;
  while (done < count && i + needle.size() <= lowered.size()) {
    const std::size_t hit = lowered.find(needle, i);
    if (hit == std::u32string::npos) break;
    result.append(text.substr(copiedUpTo, offsets[hit] - copiedUpTo));
    result.append(with);
    i = hit + needle.size();
    copiedUpTo = offsets[i];
    ++done;
  }
  result.append(text.substr(copiedUpTo));
  return result;
}

bool IsAscii(std::string_view text) {
  for (const char c : text) {
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  }
  return true;
}

constexpr char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::size_t FindFolded(std::string_view text, std::string_view find, std::size_t from) {
  if (find.size() > text.size()) return std::string_view::npos;
  for (std::size_t i = from; i + find.size() <= text.size(); ++i) {
    std::size_t k = 0;
    while (k < find.size() && FoldAscii(text[i + k]) == FoldAscii(find[k])) ++k;
    if (k == find.size()) return i;
  }
  return std::string_view::npos;
}

// Both sides plain ASCII: lower-casing is folding "A" to "Z", byte by byte.
std::string ReplaceAsciiIgnoringCase(std::string_view text, std::string_view find, std::string_view with,
                                     std::size_t from, long count) {
  std::string result(text.substr(0, from));
  std::size_t pos = from;
  for (long done = 0; done < count; ++done) {
    const std::size_t hit = FindFolded(text, find, pos);
    if (hit == std::string_view::npos) break;
    result.append(text.substr(pos, hit - pos));
    result.append(with);
    pos = hit + find.size();
  }
  result.append(text.substr(pos));
  return result;
}

}  // namespace

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view with, long start, long count,
                        int compare) {
  if (find.empty() || count <= 0) return std::string(text);
  const std::size_t from = ByteOffsetOfCharacter(text, start < 1 ? 1 : start);
  if (compare == 0) return ReplaceExact(text, find, with, from, count);
  if (IsAscii(find) && IsAscii(text)) return ReplaceAsciiIgnoringCase(text, find, with, from, count);
  return ReplaceIgnoringCase(text, find, with, from, count);
}

}  // namespace nomra
