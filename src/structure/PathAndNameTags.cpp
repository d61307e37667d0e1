#include "structure/PathAndNameTags.h"

#include <optional>

#include "base/Fault.h"
#include "base/NameSplit.h"
#include "base/Paths.h"
#include "base/Quoting.h"
#include "base/ReplaceText.h"
#include "structure/BracketLoop.h"
#include "structure/CharacterSlices.h"
#include "structure/LanguageNumber.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

constexpr char kNoNumber[] = "<No_Number>";

// A numeric argument after find( is resolved: its number, or nothing.
std::optional<double> NumericArgument(const std::string& arg, std::string_view haystack) {
  return ParseLanguageNumber(ResolveFind(arg, haystack));
}

long WholeForSlice(double number) {
  const std::optional<long> whole = ToWholeNumber(number);
  if (!whole) throw base::RuntimeFault("a position of an _M tag beyond 32 bits");
  return *whole;
}

// A count for _L and _R; nothing for a negative one or one beyond 32 bits,
// which the tag swallows.
std::optional<long> CountOf(double number) {
  const std::optional<long> whole = ToWholeNumber(number);
  if (!whole || *whole < 0) return std::nullopt;
  return whole;
}

// The folder that holds the file: its column without the trailing
// separator, from behind the last separator on; "" at the root.
std::string FolderName(std::string_view folderColumn) {
  if (!folderColumn.empty() && folderColumn.back() == base::kPathSeparator) folderColumn.remove_suffix(1);
  const std::size_t separator = folderColumn.rfind(base::kPathSeparator);
  if (separator == std::string_view::npos) return {};
  return std::string(folderColumn.substr(separator + 1));
}

// Most structures hold few of the plain tags: a tag that isn't there costs
// a look, not a new text.
}  // namespace

void ReplacePathTags(std::string& s, std::string_view folderColumn) {
  std::string value = FolderName(folderColumn);
  ReplaceTag(s, "<PATH>", value);
  RunBracketLoop(s, "<PATH_L(", 1, 1, [&value](const TagArguments& args) {
    const std::optional<double> n = NumericArgument(args[0], value);
    if (!n) return value = kNoNumber;
    if (const std::optional<long> count = CountOf(*n)) value = LeftCharacters(value, *count);
    return value;
  });
  // The right-hand tag never reads the folder's name: it empties the shared value.
  RunBracketLoop(s, "<PATH_R(", 1, 1, [&value](const TagArguments& args) {
    value.clear();
    if (!NumericArgument(args[0], value)) return value = kNoNumber;
    return value;
  });
  RunBracketLoop(s, "<PATH_M(", 2, 2, [&value](const TagArguments& args) {
    const std::optional<double> a = NumericArgument(args[0], value);
    const std::optional<double> b = NumericArgument(args[1], value);
    if (!a || !b) return value = kNoNumber;
    value = SliceCharacters(value, WholeForSlice(*a), WholeForSlice(*b));
    return value;
  });
}

void ReplaceNameTags(std::string& s, std::string_view pending) {
  const std::string stem = base::NameOnly(pending);
  ReplaceTag(s, "<NAME>", stem);
  RunBracketLoop(s, "<NAME_L(", 1, 1, [&](const TagArguments& args) -> std::string {
    const std::optional<double> n = NumericArgument(args[0], pending);
    if (!n) return kNoNumber;
    const std::optional<long> count = CountOf(*n);
    return count ? LeftCharacters(stem, *count) : std::string();
  });
  RunBracketLoop(s, "<NAME_R(", 1, 1, [&](const TagArguments& args) -> std::string {
    const std::optional<double> n = NumericArgument(args[0], pending);
    if (!n) return kNoNumber;
    const std::optional<long> count = CountOf(*n);
    return count ? RightCharacters(stem, *count) : std::string();
  });
  RunBracketLoop(s, "<NAME_M(", 2, 2, [&](const TagArguments& args) -> std::string {
    const std::optional<double> a = NumericArgument(args[0], pending);
    const std::optional<double> b = NumericArgument(args[1], pending);
    if (!a || !b) return kNoNumber;
    return SliceCharacters(stem, WholeForSlice(*a), WholeForSlice(*b));
  });
  RunBracketLoop(s, "<NAMEPART(", 1, static_cast<std::size_t>(-1), [&](const TagArguments& args) {
    const long index = args.size() >= 2 ? WholeNumberOr(args[1], 1) : 1;
    const long trim = args.size() >= 3 ? WholeNumberOr(args[2], 1) : 1;
    return NamePart(stem, base::WithoutDoubleQuotes(args[0]), index, trim);
  });
}

void ReplaceExtensionTags(std::string& s, std::string_view pending) {
  if (!HoldsTagNoCase(s, "EXT>") && !HoldsTagNoCase(s, "<BLANK>")) return;
  const std::string extension = base::ExtensionOnly(pending, true);
  ReplaceTag(s, "<EXT>", std::string_view(extension).substr(extension.empty() ? 0 : 1));
  ReplaceTag(s, "<.EXT>", extension);
  ReplaceTag(s, "<BLANK>", " ");
}

}  // namespace nomra::structure
