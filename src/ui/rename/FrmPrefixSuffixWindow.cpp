#include "ui/rename/FrmPrefixSuffixWindow.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "actions/FrmPrefixSuffix.h"
#include "ui/common/NameKeyFilter.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

FrmPrefixSuffixWindow::FrmPrefixSuffixWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmPrefixSuffix>(), std::move(services)) {
  setWindowTitle("Prefix/Suffix");
  auto* filter = new NameKeyFilter(this);
  auto* grid = new QGridLayout;
  // Both fields take a part of a name, so the characters no name holds can't be typed.
  auto nameField = [&](const char* name) {
    auto* field = new QLineEdit(this);
    field->setObjectName(name);
    field->setMinimumWidth(280);
    field->installEventFilter(filter);
    return field;
  };
  prefixLabel_ = AddLabelledWidget(*grid, 0, "lblPrefix", "&Prefix:", *nameField("txtPr"));
  suffixLabel_ = AddLabelledWidget(*grid, 1, "lblSuffix", "&Suffix:", *nameField("txtSu"));
  InputArea().addLayout(grid);
  FinishBuilding();
}

void FrmPrefixSuffixWindow::AfterLocalised() {
  const auto labels = actions::PrefixSuffixLabels(ToEngineText(UsualCaption()));
  if (!labels) return;
  prefixLabel_->setText(ToQString(labels->first));
  suffixLabel_->setText(ToQString(labels->second));
}

}  // namespace nomra::ui
