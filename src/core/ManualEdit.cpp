#include "core/ManualEdit.h"

#include "base/FileNames.h"
#include "base/Trim.h"

namespace nomra::core {

namespace {

bool OnlyBlanks(const std::string& text) { return base::TrimSpaces(text).empty(); }

}  // namespace

bool ApplyManualEdit(const ListContext& context, int position, const std::string& typed) {
  if (OnlyBlanks(typed)) return false;
  context.List().Item(position)[kColNewName] = typed;
  context.preview.Refresh();
  return true;
}

void ApplyLabelEdit(const ListContext& context, int position, const std::string& edited) {
  context.List().Item(position)[kColNewName] = base::CleanFileName(edited);
  context.preview.Refresh();
}

}  // namespace nomra::core
