#include "ui/structure/FrmSelNamePartWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NameKeyFilter.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"
#include "ui/structure/StructureDialogParts.h"

namespace nomra::ui {

FrmSelNamePartWindow::FrmSelNamePartWindow(QLineEdit& target, const ActionWindowServices& services)
    : QDialog(services.mainWindow), picker_(services.context.State().list), target_(&target) {
  setObjectName("frmSelNamePart");
  setWindowTitle("Part of the name");
  setModal(true);
  resize(460, 0);
  auto* layout = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  QLineEdit* separator = AddLabelledText(*grid, *this, 0, "lblSeparator", "&Separator:", "txtSeparator");
  separator->installEventFilter(new NameKeyFilter(this));
  auto* part = new QComboBox(this);
  part->setObjectName("cmbPartCount");
  AddLabelledWidget(*grid, 1, "lblPartCount", "&Part number:", *part);
  auto* blanks = new QCheckBox("&Remove at both ends", this);
  blanks->setObjectName("chkRemoveBlanks");
  AddLabelledWidget(*grid, 2, "lblRemoveBlanks", "Blanks:", *blanks);
  grid->setColumnStretch(1, 1);
  layout->addLayout(grid);
  const StructurePreview preview = AddStructurePreview(*this, *layout);
  ok_ = AddOkCancelRow(*this, *layout);

  LocaliseDialog(*this, services.catalog, services.mainWindow, services.appTitle);
  picker_.Load(ToEngineText(target.text()));
  ShowModelInWidgets(picker_.Model(), *this);
  ShowPicker();

  connect(separator, &QLineEdit::textEdited, this, [this](const QString& text) {
    picker_.SetSeparator(ToEngineText(text));
    ShowPicker();
  });
  connect(part, &QComboBox::currentIndexChanged, this, [this](int index) {
    picker_.SetPartIndex(index);
    ShowPicker();
  });
  connect(blanks, &QCheckBox::toggled, this, [this](bool checked) {
    picker_.SetRemoveBlanks(checked);
    ShowPicker();
  });
  connect(preview.row, &QScrollBar::valueChanged, this, [this](int row) {
    picker_.SetPreviewRow(row);
    ShowPicker();
  });
  connect(ok_, &QPushButton::clicked, this, &FrmSelNamePartWindow::cmdOK);
}

void FrmSelNamePartWindow::ShowPicker() {
  ShowTextsAndPreviewRow(picker_.Model(), *this);
  ok_->setEnabled(picker_.OkEnabled());
}

void FrmSelNamePartWindow::cmdOK() {
  if (!picker_.OkEnabled()) return;
  if (target_) target_->setText(ToQString(picker_.TagText()));
  accept();
}

void OpenSelNamePart(QLineEdit& target, const ActionWindowServices& services) {
  FrmSelNamePartWindow dialog(target, services);
  dialog.exec();
}

}  // namespace nomra::ui
