#pragma once
#include "core/FileList.h"
#include "dialog/DialogModel.h"

namespace nomra::structure {

// The preview of the structure dialogs runs on one row of the file list,
// picked by the scroll bar VScroll1 from 1 to the list's row count.
inline constexpr char kPreviewScrollBar[] = "VScroll1";

// Adds VScroll1 to the dialog, on row 1.
void AddPreviewScrollBar(dialog::DialogModel& dialog);

// Fits VScroll1's range to the list as it is now (1 to 1 for an empty list)
// and puts it on row 1.
void FitPreviewScrollBar(dialog::DialogModel& dialog, const core::FileList& list);

// The row VScroll1 points at; nullptr when the list has no such row.
const core::FileEntry* PreviewEntry(const dialog::DialogModel& dialog, const core::FileList& list);

}  // namespace nomra::structure
