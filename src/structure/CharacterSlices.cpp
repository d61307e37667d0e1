#include "structure/CharacterSlices.h"

#include <algorithm>

#include "base/Fault.h"
#include "base/Utf8.h"

namespace nomra::structure {

std::string LeftCharacters(std::string_view text, long count) {
  if (count <= 0) return {};
  return std::string(text.substr(0, base::OffsetOfCharacter(text, static_cast<std::size_t>(count))));
}

std::string RightCharacters(std::string_view text, long count) {
  if (count <= 0) return {};
  const long length = static_cast<long>(base::CharCount(text));
  if (count >= length) return std::string(text);
  return std::string(text.substr(base::OffsetOfCharacter(text, static_cast<std::size_t>(length - count))));
}

std::string MiddleCharacters(std::string_view text, long start, long count) {
  if (start < 1 || count <= 0) return {};
  const std::size_t from = base::OffsetOfCharacter(text, static_cast<std::size_t>(start - 1));
  const std::string_view rest = text.substr(from);
  return std::string(rest.substr(0, base::OffsetOfCharacter(rest, static_cast<std::size_t>(count))));
}

std::string SliceCharacters(std::string_view text, long a, long b) {
  const long length = static_cast<long>(base::CharCount(text));
  if (a < 0) a += length;
  if (b < 0) b += length;
  if (a < 1) a = 1;
  if (b < 1) b = length;
  const long start = std::min(a, b);
  const long end = std::max(a, b);
  if (start < 1) throw base::RuntimeFault("a slice of an empty text starts before its first character");
  if (start > length) return {};
  return MiddleCharacters(text, start, end - start + 1);
}

}  // namespace nomra::structure
