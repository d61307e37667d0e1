#include "ui/common/DialogButtons.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace nomra::ui {

QPushButton* AddOkCancelRow(QDialog& dialog, QBoxLayout& layout) {
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* ok = new QPushButton("OK", &dialog);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel", &dialog);
  cancel->setObjectName("cmdCancel");
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  layout.addLayout(buttons);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  return ok;
}

}  // namespace nomra::ui
