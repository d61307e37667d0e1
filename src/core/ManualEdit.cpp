#include "core/ManualEdit.h"

#include "base/FileNames.h"
#include "base/Trim.h"

namespace nomra {

namespace {

bool OnlyBlanks(const std::string& text) { return TrimSpaces(text).empty(); }

}  // namespace

bool ApplyManualEdit(const ListContext& context, int position, const std::string& typed) {
  if (OnlyBlanks(typed)) return false;
  context.List().Item(position)[kColNewName] = typed;
  context.preview.Refresh();
  return true;
}

void ApplyLabelEdit(const ListContext& context, int position, const std::string& edited) {
  context.List().Item(position)[kColNewName] = CleanFileName(edited);
  context.preview.Refresh();
}

}  // namespace nomra
