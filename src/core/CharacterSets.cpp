#include "core/CharacterSets.h"

#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra::core {

namespace {

std::string_view Trimmed(std::string_view s) {
  const std::size_t first = s.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  const std::size_t last = s.find_last_not_of(" \t");
  return s.substr(first, last - first + 1);
}

}  // namespace

CharacterSets BuildCharacterSets(std::string_view letters) {
  CharacterSets sets;
  sets.letterSetLower = Trimmed(letters).empty() ? std::string(kDefaultLetters) : base::ToLower(letters);
  std::u32string firstLetters;
  base::ForEachChar(sets.letterSetLower, [&](char32_t c, std::size_t, std::size_t) {
    const char32_t upper = base::ToUpperChar(c);
    if (upper != c) base::AppendChar(sets.letterSetUpper, upper);
    if (firstLetters.size() < 26) firstLetters.push_back(c);
  });
  const std::string first26 = base::FromChars(firstLetters);
  sets.upperWithDash = "-" + base::ToUpper(first26);
  sets.lowerWithDash = "-" + base::ToLower(first26);
  return sets;
}

}  // namespace nomra::core
