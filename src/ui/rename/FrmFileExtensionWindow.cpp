#include "ui/rename/FrmFileExtensionWindow.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "actions/FrmFileExtension.h"
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

FrmFileExtensionWindow::FrmFileExtensionWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmFileExtension>(), std::move(services)) {
  setWindowTitle("File extension");
  auto* grid = new QGridLayout;
  change_ = new QRadioButton("&Change the extension to:", this);
  change_->setObjectName("optFE(1)");
  extension_ = new QLineEdit(this);
  extension_->setObjectName("txtFE");
  extension_->installEventFilter(new NameKeyFilter(this));
  extension_->installEventFilter(new ExtensionKeyFilter(this));
  keepOld_ = new QCheckBox("&Keep the old extension in front of the new one", this);
  keepOld_->setObjectName("chkAddOldFE");
  auto* remove = new QRadioButton("&Remove the extension", this);
  remove->setObjectName("optFE(2)");
  grid->addWidget(change_, 0, 0);
  grid->addWidget(extension_, 0, 1);
  grid->addWidget(keepOld_, 1, 0, 1, 2, Qt::AlignLeft);
  grid->setColumnMinimumWidth(0, 40);
  grid->addWidget(remove, 2, 0, 1, 2);
  InputArea().addLayout(grid);
  connect(change_, &QRadioButton::toggled, this, &FrmFileExtensionWindow::FollowChoice);
  FinishBuilding();
}

void FrmFileExtensionWindow::AfterInputsShown() { FollowChoice(); }

void FrmFileExtensionWindow::FollowChoice() {
  const bool changing = change_->isChecked();
  keepOld_->setEnabled(changing);
  extension_->setEnabled(changing);
}

}  // namespace nomra::ui
