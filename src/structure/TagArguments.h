#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace nomra::structure {

// The arguments of a bracket tag such as <NAME_M(2,5)>, 1-based in the
// language's sense, held here from index 0.
using TagArguments = std::vector<std::string>;

// The arguments of `tag` (e.g. "<NAME_M(") where it first stands in s (case
// ignored): the text between the tag and the first ")>" behind it, split by
// SplitArguments. Empty when there is no ")>", the sign of a malformed tag.
TagArguments ParseTagArguments(std::string_view s, std::string_view tag);

// Splits at commas outside quotes and brackets; each argument is trimmed of
// blanks, quotes and inner brackets stay. An empty text gives none; a final
// comma adds no empty argument, a leading one does.
TagArguments SplitArguments(std::string_view text);

// One leading and one trailing double quote removed, each where present.
std::string StripQuotes(std::string_view text);

// The 1-based position of the n-th occurrence of needle (case counts), each
// search starting one character behind the last hit; 0 when n < 1 or there
// are fewer occurrences.
long NthPosition(std::string_view haystack, std::string_view needle, long n);

// Replaces each find(text, occurrence, offset) in `text` by the position it
// names in haystack, plus the offset; "<ERROR>" for an empty search text.
std::string ResolveFind(std::string_view text, std::string_view haystack);

// Field `index` (from 1) of the stem split at `delimiter`, trimmed of blanks
// when trim is 1; "" when the stem doesn't hold the delimiter or has fewer
// fields. Throws RuntimeFault for an index below 1 or a trim other than 0,
// 1 or -1.
std::string NamePart(std::string_view stem, std::string_view delimiter, long index, long trim);

}  // namespace nomra::structure
