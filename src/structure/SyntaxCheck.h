#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "core/FileList.h"
#include "core/FrontEnd.h"
#include "structure/MetadataSteps.h"

namespace nomra::structure {

// The language texts a failed check puts into its message: msgCheckInput
// and msgCorrectSyntax of section Messages.
struct SyntaxTexts {
  std::string checkInput;
  std::string correctSyntax;
};

// Why a structure was refused: the warning to show (caption
// msgCapErrorStructure, OK), and the characters of the structure to select,
// from 1; a start of 0 selects nothing.
struct SyntaxFailure {
  core::Message message;
  int selectionStart = 0;
  int selectionLength = 0;
};

// Opening marks <code> and closing marks </code> (case ignored) must pair
// up in order: as many of each, and each opening mark behind the closing
// mark before it and before its own. No marks at all is fine.
std::optional<SyntaxFailure> CheckCaseBrackets(std::string_view text, std::string_view code, const SyntaxTexts& texts);

// The editor's check of a structure, the first failure ending it: the angle
// brackets must alternate, the last tag must be closed, the <UC> and <LC>
// brackets must pair up, and a test evaluation on row 1 must leave no "<" or
// ">". An empty list has no row to test on, so that step is left out there.
// A run-time fault of the test evaluation is thrown on to the caller.
std::optional<SyntaxFailure> CheckStructureSyntax(core::FileList& list, std::string_view structure,
                                                  const SyntaxTexts& texts,
                                                  const MetadataSteps& metadata = NoMetadataReaders());

}  // namespace nomra::structure
