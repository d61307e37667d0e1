#include "base/ReplaceText.h"

#include <vector>

#include "base/AsciiSearch.h"
#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra::base {

namespace {

// Each hit that `findFrom` gives, behind the last replacement, is replaced.
template <typename Finder>
std::string ReplaceHits(std::string_view text, std::size_t findLength, std::string_view with, std::size_t from,
                        long count, Finder findFrom) {
  std::string result(text.substr(0, from));
  std::size_t pos = from;
  for (long done = 0; done < count; ++done) {
    const std::size_t hit = findFrom(pos);
    if (hit == std::string_view::npos) break;
    result.append(text.substr(pos, hit - pos));
    result.append(with);
    pos = hit + findLength;
  }
  result.append(text.substr(pos));
  return result;
}

// Compares character by character, each lower-cased on its own, so that a
// match always covers whole characters of the text as it stands.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view find, std::string_view with, std::size_t from,
                                long count) {
  std::u32string needle = base::ToChars(find);
  for (char32_t& c : needle) c = base::ToLowerChar(c);

  std::vector<std::size_t> offsets;  // byte offset of each character, and of the end
  std::u32string lowered;
  base::ForEachChar(text.substr(from), [&](char32_t c, std::size_t offset, std::size_t) {
    offsets.push_back(from + offset);
    lowered.push_back(base::ToLowerChar(c));
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

}  // namespace

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view with, long start, long count,
                        int compare) {
  if (find.empty() || count <= 0) return std::string(text);
  const std::size_t from = base::OffsetOfCharacter(text, static_cast<std::size_t>(start < 1 ? 1 : start) - 1);
  if (compare == 0) {
    return ReplaceHits(text, find.size(), with, from, count, [&](std::size_t pos) { return text.find(find, pos); });
  }
  // Both sides plain ASCII: lower-casing is folding "A" to "Z", byte by byte.
  if (base::IsAscii(find) && base::IsAscii(text)) {
    return ReplaceHits(text, find.size(), with, from, count,
                       [&](std::size_t pos) { return base::FindAsciiNoCase(text, find, pos); });
  }
  return ReplaceIgnoringCase(text, find, with, from, count);
}

}  // namespace nomra::base
