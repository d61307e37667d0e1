#include "ui/rename/FrmPrefixSuffix.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "rename/PrefixSuffix.h"
#include "ui/common/NameKeyFilter.h"

namespace nomra::ui {

namespace {

QLineEdit* AddNameField(QGridLayout& grid, QWidget& parent, int row, const char* labelName, const QString& label,
                        const char* fieldName, NameKeyFilter& filter) {
  auto* caption = new QLabel(label, &parent);
  caption->setObjectName(labelName);
  auto* field = new QLineEdit(&parent);
  field->setObjectName(fieldName);
  field->setMinimumWidth(280);
  field->installEventFilter(&filter);
  caption->setBuddy(field);
  grid.addWidget(caption, row, 0);
  grid.addWidget(field, row, 1);
  return field;
}

}  // namespace

FrmPrefixSuffix::FrmPrefixSuffix(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<PrefixSuffixDialog>(), std::move(services)) {
  setWindowTitle("Prefix/Suffix");
  auto* filter = new NameKeyFilter(this);
  auto* grid = new QGridLayout;
  AddNameField(*grid, *this, 0, "lblPrefix", "&Prefix:", "txtPr", *filter);
  AddNameField(*grid, *this, 1, "lblSuffix", "&Suffix:", "txtSu", *filter);
  InputArea().addLayout(grid);
  FinishBuilding();
}

void FrmPrefixSuffix::AfterLocalised() {
  const auto labels = PrefixSuffixLabels(UsualCaption().toStdString());
  if (!labels) return;
  findChild<QLabel*>("lblPrefix")->setText(QString::fromStdString(labels->first));
  findChild<QLabel*>("lblSuffix")->setText(QString::fromStdString(labels->second));
}

}  // namespace nomra::ui
