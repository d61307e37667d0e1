#include "cli/EditStep.h"

#include "base/FileNames.h"
#include "base/Utf8.h"
#include "core/ManualEdit.h"
#include "core/RefreshPreview.h"

namespace nomra::cli {

namespace {

bool OnlyBlanks(const std::string& name) { return name.find_first_not_of(' ') == std::string::npos; }

bool InApplyScope(const MainModel& model, const FileEntry& row) {
  switch (model.applyScope) {
    case 1:
      return row.selected;
    case 2:
      return !row.selected;
    default:
      return true;
  }
}

}  // namespace

std::string TypedIntoNameField(std::string_view typed) {
  std::string name;
  name.reserve(typed.size());
  text::ForEachChar(typed, [&](char32_t character, std::size_t offset, std::size_t length) {
    // The original bytes are kept, so a stray byte goes in unchanged.
    if (!IsForbiddenNameCharacter(character)) name.append(typed.substr(offset, length));
  });
  return name;
}

void EditNamesInScope(MainModel& model, std::string_view typed, std::ostream& notes) {
  const std::string name = TypedIntoNameField(typed);
  if (OnlyBlanks(name)) {
    notes << "nomra-cli: --edit: a name of only blanks is ignored\n";
    return;
  }
  // One refresh for all rows: ApplyManualEdit would refresh once per row.
  model.list.ForEach([&](FileEntry& row) {
    if (InApplyScope(model, row)) row[kColNewName] = name;
  });
  refreshPreview(model);
}

}  // namespace nomra::cli
