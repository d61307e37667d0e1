#include "ui/rename/FrmFileExtension.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "rename/ExtensionAction.h"
#include "ui/common/NameKeyFilter.h"

namespace nomra::ui {

namespace {

// The extension field takes no "." either: the dot is the action's to set.
class ExtensionKeyFilter final : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->text().contains('.')) return true;
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

FrmFileExtension::FrmFileExtension(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<ExtensionDialog>(), std::move(services)) {
  setWindowTitle("File extension");
  auto* grid = new QGridLayout;
  auto* change = new QRadioButton("&Change the extension to:", this);
  change->setObjectName("optFE(1)");
  auto* extension = new QLineEdit(this);
  extension->setObjectName("txtFE");
  extension->installEventFilter(new NameKeyFilter(this));
  extension->installEventFilter(new ExtensionKeyFilter(this));
  auto* keepOld = new QCheckBox("&Keep the old extension in front of the new one", this);
  keepOld->setObjectName("chkAddOldFE");
  auto* remove = new QRadioButton("&Remove the extension", this);
  remove->setObjectName("optFE(2)");
  grid->addWidget(change, 0, 0);
  grid->addWidget(extension, 0, 1);
  grid->addWidget(keepOld, 1, 0, 1, 2, Qt::AlignLeft);
  grid->setColumnMinimumWidth(0, 40);
  grid->addWidget(remove, 2, 0, 1, 2);
  InputArea().addLayout(grid);
  connect(change, &QRadioButton::toggled, this, &FrmFileExtension::FollowChoice);
  FinishBuilding();
}

void FrmFileExtension::AfterInputsShown() { FollowChoice(); }

void FrmFileExtension::FollowChoice() {
  const bool changing = findChild<QRadioButton*>("optFE(1)")->isChecked();
  findChild<QCheckBox*>("chkAddOldFE")->setEnabled(changing);
  findChild<QLineEdit*>("txtFE")->setEnabled(changing);
}

}  // namespace nomra::ui
