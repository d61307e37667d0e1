#include "cli/EditStep.h"

#include "base/FileNames.h"
#include "base/Trim.h"
#include "base/Utf8.h"
#include "core/ManualEdit.h"

namespace nomra::cli {

std::string TypedIntoNameField(std::string_view typed) {
  std::string name;
  name.reserve(typed.size());
  base::ForEachChar(typed, [&](char32_t character, std::size_t offset, std::size_t length) {
    // The original bytes are kept, so a stray byte goes in unchanged.
    if (!base::IsForbiddenNameCharacter(character)) name.append(typed.substr(offset, length));
  });
  return name;
}

void EditNamesInScope(CliSession& session, std::string_view typed, std::ostream& notes) {
  const std::string name = TypedIntoNameField(typed);
  if (base::TrimSpaces(name).empty()) {
    notes << "nomra-cli: --edit: a name of only blanks is ignored\n";
    return;
  }
  // One refresh for all rows: ApplyManualEdit would refresh once per row.
  session.state.list.ForEach([&](core::FileEntry& row) {
    if (core::InScope(session.state.applyScope, row)) row[core::kColNewName] = name;
  });
  session.preview.Refresh();
}

}  // namespace nomra::cli
