#include "structure/SyntaxCheck.h"

#include <vector>

#include "base/Utf8.h"
#include "lang/MessageKeys.h"
#include "structure/StructureEngine.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

constexpr char kLineBreaks[] = "\n\n";
// Only these case brackets are checked; the others may stand in any order.
constexpr std::string_view kCheckedCaseCodes[] = {"UC", "LC"};

SyntaxFailure Failure(const char* textKey, std::vector<std::string> arguments) {
  return {core::Message{textKey, lang::kStructureErrorCaption, core::MessageStyle::OkWarning, std::move(arguments)}, 0,
          0};
}

std::vector<std::size_t> MarkPositions(std::string_view text, std::string_view mark) {
  std::vector<std::size_t> positions;
  for (std::size_t at = FindTagNoCase(text, mark); at != std::string_view::npos;
       at = FindTagNoCase(text, mark, at + mark.size())) {
    positions.push_back(at);
  }
  return positions;
}

// Angle brackets must alternate: a "<" while a tag is open, or a ">" while
// none is, fails at its character position.
std::optional<SyntaxFailure> CheckBracketWalk(std::string_view structure, const SyntaxTexts& texts) {
  bool open = false;
  int position = 0;
  int failedAt = 0;
  base::ForEachChar(structure, [&](char32_t c, std::size_t, std::size_t) {
    ++position;
    if (failedAt != 0 || (c != U'<' && c != U'>')) return;
    if ((c == U'<') == open) {
      failedAt = position;
      return;
    }
    open = c == U'<';
  });
  if (failedAt != 0) {
    SyntaxFailure failure = Failure(lang::kStructureError1, {std::to_string(failedAt), texts.checkInput});
    failure.selectionStart = failedAt;
    failure.selectionLength = 1;
    return failure;
  }
  if (open)
    return Failure(lang::kStructureError2, {std::string(structure.substr(structure.rfind('<'))), texts.checkInput});
  return std::nullopt;
}

}  // namespace

std::optional<SyntaxFailure> CheckCaseBrackets(std::string_view text, std::string_view code, const SyntaxTexts& texts) {
  const std::string opening = "<" + std::string(code) + ">";
  const std::string closing = "</" + std::string(code) + ">";
  const std::vector<std::size_t> opened = MarkPositions(text, opening);
  const std::vector<std::size_t> closed = MarkPositions(text, closing);
  bool paired = opened.size() == closed.size();
  for (std::size_t k = 0; paired && k < opened.size(); ++k) {
    paired = opened[k] < closed[k] && (k == 0 || opened[k] > closed[k - 1]);
  }
  if (paired) return std::nullopt;
  return Failure(lang::kStructureError4, {opening, closing, kLineBreaks + texts.correctSyntax});
}

std::optional<SyntaxFailure> CheckStructureSyntax(core::FileList& list, std::string_view structure,
                                                  const SyntaxTexts& texts, const MetadataSteps& metadata) {
  if (auto failure = CheckBracketWalk(structure, texts)) return failure;
  for (const std::string_view code : kCheckedCaseCodes) {
    if (auto failure = CheckCaseBrackets(structure, code, texts)) return failure;
  }
  if (list.Count() == 0) return std::nullopt;
  const std::string result = EvaluateStructure(list.Item(1), structure, metadata);
  if (result.find_first_of("<>") == std::string::npos) return std::nullopt;
  return Failure(lang::kStructureError3, {texts.checkInput + kLineBreaks + texts.correctSyntax});
}

}  // namespace nomra::structure
