#include "core/ManualEdit.h"

#include "base/FileNames.h"
#include "core/RefreshPreview.h"

namespace nomra {

namespace {

bool OnlyBlanks(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

}  // namespace

bool ApplyManualEdit(MainModel& model, int position, const std::string& typed) {
  if (OnlyBlanks(typed)) return false;
  model.list.Item(position)[kColNewName] = typed;
  refreshPreview(model);
  return true;
}

void ApplyLabelEdit(MainModel& model, int position, const std::string& edited) {
  model.list.Item(position)[kColNewName] = CleanFileName(edited);
  refreshPreview(model);
}

}  // namespace nomra
