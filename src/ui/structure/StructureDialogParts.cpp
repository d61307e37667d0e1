#include "ui/structure/StructureDialogParts.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>

#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

StructurePreview AddStructurePreview(QWidget& dialog, QBoxLayout& layout) {
  auto* grid = new QGridLayout;
  StructurePreview preview;
  preview.fileName = AddLabelledText(*grid, dialog, 0, "lblExample", "Example:", "txtFileName");
  preview.fileName->setReadOnly(true);
  preview.row = new QScrollBar(Qt::Vertical, &dialog);
  preview.row->setObjectName("VScroll1");
  preview.row->setFixedHeight(preview.fileName->sizeHint().height());
  grid->addWidget(preview.row, 0, 2);
  preview.result = AddLabelledText(*grid, dialog, 1, "lblPreview", "Result:", "txtResult");
  preview.result->setReadOnly(true);
  grid->setColumnStretch(1, 1);
  layout.addLayout(grid);
  return preview;
}

void ShowTextsAndPreviewRow(const dialog::DialogModel& model, QWidget& dialog) {
  for (const dialog::DialogInput& input : model.Inputs()) {
    const QString name = ToQString(input.Key());
    if (input.kind == dialog::InputKind::Text) {
      auto* edit = dialog.findChild<QLineEdit*>(name);
      const QString text = ToQString(input.text);
      if (edit != nullptr && edit->text() != text) {
        const QSignalBlocker block(edit);
        edit->setText(text);
      }
    } else if (input.kind == dialog::InputKind::VerticalScrollBar) {
      if (auto* bar = dialog.findChild<QScrollBar*>(name)) {
        const QSignalBlocker block(bar);
        bar->setRange(input.minimum, input.maximum);
        bar->setValue(input.number);
      }
    }
  }
}

}  // namespace nomra::ui
