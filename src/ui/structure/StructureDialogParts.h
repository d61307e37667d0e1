#pragma once
#include <QString>

#include <string>

#include "dialog/DialogModel.h"

class QBoxLayout;
class QLineEdit;
class QScrollBar;
class QWidget;

namespace nomra::ui {

// The preview both structure dialogs show: the pending name of a row of the
// file list (txtFileName), VScroll1 beside it to pick the row, and what the
// dialog makes of it (txtResult).
struct StructurePreview {
  QLineEdit* fileName = nullptr;
  QScrollBar* row = nullptr;
  QLineEdit* result = nullptr;
};

StructurePreview AddStructurePreview(QWidget& dialog, QBoxLayout& layout);

// The engine's texts and VScroll1 into the widgets, without signals. A text
// box is only set when its text differs, so the cursor of the person typing
// in it stays where it is.
void ShowTextsAndPreviewRow(const dialog::DialogModel& model, QWidget& dialog);

}  // namespace nomra::ui
