#include "ui/mainwindow/FrmEditManWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/NameSplit.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NameKeyFilter.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

FrmEditManWindow::FrmEditManWindow(const QString& pendingName, const lang::MessageCatalog& catalog, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmEditMan");
  setWindowTitle("Edit name");
  auto* layout = new QVBoxLayout(this);
  QLabel* label = AddNamedLabel(*layout, *this, "lbl1", "New name:");
  name_ = new QLineEdit(pendingName, this);
  name_->setObjectName("txtFileName");
  name_->setMinimumWidth(420);
  name_->installEventFilter(new NameKeyFilter(this));
  label->setBuddy(name_);
  layout->addWidget(name_);
  QPushButton* ok = AddOkCancelRow(*this, *layout);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  LocaliseDialog(*this, catalog, parent, QString());
  // The name without its extension is what one usually changes; a name that
  // is all extension is selected whole.
  const QString stem = ToQString(base::NameOnly(ToEngineText(pendingName)));
  name_->setSelection(0, stem.isEmpty() ? pendingName.size() : stem.size());
}

QString FrmEditManWindow::Text() const { return name_->text(); }

}  // namespace nomra::ui
