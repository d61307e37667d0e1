#include "structure/TagArguments.h"

#include "base/Fault.h"
#include "base/Trim.h"
#include "base/Utf8.h"
#include "structure/LanguageNumber.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

constexpr std::string_view kArgumentsEnd = ")>";
constexpr std::string_view kFindWord = "find(";
constexpr char kError[] = "<ERROR>";

// The character position (from 1) of a byte offset.
long CharacterPosition(std::string_view text, std::size_t byteOffset) {
  return static_cast<long>(base::CharCount(text.substr(0, byteOffset))) + 1;
}

// Where the walk over find('s arguments stops: on the bracket that closes
// it, or one beyond the end.
std::size_t EndOfFind(std::string_view text, std::size_t from) {
  int depth = 1;
  bool inQuotes = false;
  std::size_t i = from;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') {
      inQuotes = !inQuotes;
    } else if (!inQuotes && c == '(') {
      ++depth;
    } else if (!inQuotes && c == ')') {
      if (--depth == 0) return i;
    }
  }
  return i;
}

std::string FindResult(std::string_view inner, std::string_view haystack) {
  TagArguments args = SplitArguments(inner);
  args.resize(3);
  for (std::string& arg : args) arg = StripQuotes(arg);
  if (args[0].empty()) return kError;
  const long occurrence = WholeNumberOr(args[1], 1);
  const long offset = WholeNumberOr(args[2], 0);
  return std::to_string(static_cast<long long>(offset) + NthPosition(haystack, args[0], occurrence));
}

}  // namespace

TagArguments ParseTagArguments(std::string_view s, std::string_view tag) {
  const std::size_t tagPos = FindTagNoCase(s, tag);
  if (tagPos == std::string_view::npos) return {};
  const std::size_t start = tagPos + tag.size();
  const std::size_t end = s.find(kArgumentsEnd, start);
  if (end == std::string_view::npos) return {};
  return SplitArguments(s.substr(start, end - start));
}

TagArguments SplitArguments(std::string_view text) {
  TagArguments args;
  bool due = true;
  int depth = 0;
  bool inQuotes = false;
  for (const char c : text) {
    if (due) {
      args.emplace_back();
      depth = 0;
      inQuotes = false;
      due = false;
    }
    if (c == '"') {
      inQuotes = !inQuotes;
    } else if (!inQuotes && c == '(') {
      ++depth;
    } else if (!inQuotes && c == ')') {
      --depth;
    } else if (!inQuotes && depth == 0 && c == ',') {
      args.back() = std::string(base::TrimSpaces(args.back()));
      due = true;
      continue;
    }
    args.back() += c;
  }
  if (!args.empty() && !due) args.back() = std::string(base::TrimSpaces(args.back()));
  return args;
}

std::string StripQuotes(std::string_view text) {
  if (!text.empty() && text.front() == '"') text.remove_prefix(1);
  if (!text.empty() && text.back() == '"') text.remove_suffix(1);
  return std::string(text);
}

long NthPosition(std::string_view haystack, std::string_view needle, long n) {
  if (n < 1 || needle.empty()) return 0;
  std::size_t from = 0;
  std::size_t hit = std::string_view::npos;
  for (long found = 0; found < n; ++found) {
    hit = haystack.find(needle, from);
    if (hit == std::string_view::npos) return 0;
    char32_t c;
    from = hit + base::DecodeAt(haystack, hit, c);
  }
  return CharacterPosition(haystack, hit);
}

std::string ResolveFind(std::string_view text, std::string_view haystack) {
  std::string result(text);
  std::size_t p;
  while ((p = FindTagNoCase(result, kFindWord)) != std::string::npos) {
    const std::size_t innerStart = p + kFindWord.size();
    const std::size_t e = EndOfFind(result, innerStart);
    const std::string replacement = FindResult(std::string_view(result).substr(innerStart, e - innerStart), haystack);
    result.replace(p, (e < result.size() ? e + 1 : result.size()) - p, replacement);
  }
  return result;
}

std::string NamePart(std::string_view stem, std::string_view delimiter, long index, long trim) {
  if (delimiter.empty() || stem.find(delimiter) == std::string_view::npos) return {};
  std::size_t start = 0;
  long field = 1;
  for (;;) {
    const std::size_t next = stem.find(delimiter, start);
    const std::size_t end = next == std::string_view::npos ? stem.size() : next;
    if (field == index) {
      const std::string_view part = stem.substr(start, end - start);
      if (trim == 1) return std::string(base::TrimSpaces(part));
      if (trim == 0 || trim == -1) return std::string(part);
      throw base::RuntimeFault("<NAMEPART(: the third argument must be 0, 1 or -1, not " + std::to_string(trim));
    }
    if (next == std::string_view::npos) break;
    start = next + delimiter.size();
    ++field;
  }
  if (index < 1)
    throw base::RuntimeFault("<NAMEPART(: the part number must be 1 or more, not " + std::to_string(index));
  return {};
}

}  // namespace nomra::structure
