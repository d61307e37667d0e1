#include "ui/common/DialogButtons.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace nomra::ui {

QPushButton* NamedButton(QWidget& parent, const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, &parent);
  button->setObjectName(name);
  return button;
}

QPushButton* AddNamedButton(QBoxLayout& row, QWidget& parent, const QString& name, const QString& caption) {
  QPushButton* button = NamedButton(parent, name, caption);
  row.addWidget(button);
  return button;
}

QPushButton* OkButton(QWidget& parent) { return NamedButton(parent, QStringLiteral("cmdOK"), QStringLiteral("OK")); }

QPushButton* CancelButton(QWidget& parent) {
  return NamedButton(parent, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
}

QPushButton* AddOkButton(QBoxLayout& row, QWidget& parent) {
  QPushButton* ok = OkButton(parent);
  row.addWidget(ok);
  return ok;
}

QPushButton* AddCancelButton(QBoxLayout& row, QWidget& parent) {
  QPushButton* cancel = CancelButton(parent);
  row.addWidget(cancel);
  return cancel;
}

QHBoxLayout* AddButtonRow(QBoxLayout& layout) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  layout.addLayout(row);
  return row;
}

QPushButton* AddOkCancelRow(QDialog& dialog, QBoxLayout& layout) {
  QHBoxLayout* row = AddButtonRow(layout);
  QPushButton* ok = AddOkButton(*row, dialog);
  ok->setDefault(true);
  QPushButton* cancel = AddCancelButton(*row, dialog);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  return ok;
}

ActionButtons AddActionButtonRow(QDialog& dialog, QBoxLayout& layout) {
  auto* buttons = new QHBoxLayout;
  // The help pages come later; the button shows where they will open.
  AddNamedButton(*buttons, dialog, QStringLiteral("cmdHelp"), QStringLiteral("&Help"))->setEnabled(false);
  buttons->addStretch(1);
  ActionButtons row;
  row.apply = AddNamedButton(*buttons, dialog, QStringLiteral("cmdApply"), QStringLiteral("&Apply"));
  row.ok = AddOkButton(*buttons, dialog);
  QPushButton* cancel = AddCancelButton(*buttons, dialog);
  layout.addLayout(buttons);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  return row;
}

}  // namespace nomra::ui
