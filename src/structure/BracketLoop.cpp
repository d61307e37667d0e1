#include "structure/BracketLoop.h"

#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

constexpr char kError[] = "<ERROR>";
// Rounds beyond the tags the text held at the start.
constexpr std::size_t kExtraRounds = 64;

std::size_t CountTags(std::string_view s, std::string_view tag) {
  std::size_t count = 0;
  for (std::size_t at = FindTagNoCase(s, tag); at != std::string_view::npos; at = FindTagNoCase(s, tag, at + 1)) {
    ++count;
  }
  return count;
}

}  // namespace

void RunBracketLoop(std::string& s, std::string_view tag, std::size_t minArguments, std::size_t maxArguments,
                    const BracketTagRule& rule) {
  std::size_t tagPos = FindTagNoCase(s, tag);
  if (tagPos == std::string::npos) return;
  const std::size_t rounds = CountTags(s, tag) + kExtraRounds;
  for (std::size_t round = 0; round < rounds && tagPos != std::string::npos; ++round) {
    const TagArguments args = ParseTagArguments(s, tag);
    const std::size_t close = s.find('>', tagPos);
    const std::size_t tagEnd = close == std::string::npos ? s.size() : close + 1;
    const bool countFits = !args.empty() && args.size() >= minArguments && args.size() <= maxArguments;
    const std::string replacement = countFits ? rule(args) : std::string(kError);
    s.replace(tagPos, tagEnd - tagPos, replacement);
    tagPos = FindTagNoCase(s, tag);
  }
}

}  // namespace nomra::structure
