#include "ui/mainwindow/EditManDialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/ManualEdit.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"

namespace nomra::ui {

EditManDialog::EditManDialog(const QString& pendingName, const lang::MessageCatalog& catalog, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmEditMan");
  setWindowTitle("Edit name");
  auto* layout = new QVBoxLayout(this);
  auto* label = new QLabel("New name:", this);
  label->setObjectName("lbl1");
  layout->addWidget(label);
  name_ = new QLineEdit(pendingName, this);
  name_->setObjectName("txtFileName");
  name_->setMinimumWidth(420);
  name_->installEventFilter(this);
  label->setBuddy(name_);
  layout->addWidget(name_);
  QPushButton* ok = AddOkCancelRow(*this, *layout);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  LocaliseDialog(*this, catalog, parent, QString());
  // The name without its extension is what one usually changes.
  const int dot = pendingName.lastIndexOf('.');
  name_->setSelection(0, dot > 0 ? dot : pendingName.size());
}

QString EditManDialog::Text() const { return name_->text(); }

bool EditManDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == name_ && event->type() == QEvent::KeyPress) {
    const QString typed = static_cast<QKeyEvent*>(event)->text();
    for (const QChar character : typed) {
      if (!AcceptsNameCharacter(character.unicode())) return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace nomra::ui
