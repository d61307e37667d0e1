#include "structure/PreviewRow.h"

#include <algorithm>

namespace nomra::structure {

void AddPreviewScrollBar(dialog::DialogModel& dialog) { dialog.AddScrollBar(kPreviewScrollBar, 1, 1); }

void FitPreviewScrollBar(dialog::DialogModel& dialog, const core::FileList& list) {
  dialog::DialogInput& bar = dialog.At(kPreviewScrollBar);
  bar.minimum = 1;
  bar.maximum = std::max(1, list.Count());
  bar.number = 1;
}

const core::FileEntry* PreviewEntry(const dialog::DialogModel& dialog, const core::FileList& list) {
  const int row = dialog.Number(kPreviewScrollBar);
  if (row < 1 || row > list.Count()) return nullptr;
  return &list.Item(row);
}

}  // namespace nomra::structure
