#include "ui/script/FrmScriptWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/FormNames.h"
#include "ui/common/NamedControls.h"

namespace nomra::ui {

FrmScriptWindow::FrmScriptWindow(dialog::ScriptSession& session, platform::FileSystem& fileSystem,
                                 core::FrontEnd& frontEnd, const lang::MessageCatalog& catalog, QWidget* mainWindow,
                                 const QString& appTitle)
    : QDialog(mainWindow), chooser_(session, fileSystem, frontEnd) {
  setObjectName(kScriptDialogName);
  setWindowTitle("Scripts");
  resize(480, 360);
  auto* layout = new QVBoxLayout(this);
  QLabel* label = AddNamedLabel(*layout, *this, "lblScript", "S&cripts:");
  scripts_ = new QListWidget(this);
  scripts_->setObjectName("lstScript");
  label->setBuddy(scripts_);
  layout->addWidget(scripts_, 1);

  layout->addWidget(NamedOptionGroup(*this, "fraOptRun", "Action",
                                     {{"optRunAll", "Run &all steps"},
                                      {"optRunSingleSteps", "Run s&tep by step"},
                                      {"optDelete", "&Delete the script"}}));

  QHBoxLayout* buttons = AddButtonRow(*layout);
  start_ = AddNamedButton(*buttons, *this, "cmdStart", "&Start");
  start_->setDefault(true);
  QPushButton* cancel = AddCancelButton(*buttons, *this);

  connect(start_, &QPushButton::clicked, this, &FrmScriptWindow::cmdStart);
  connect(cancel, &QPushButton::clicked, this, &FrmScriptWindow::cmdCancel);
  connect(scripts_, &QListWidget::itemSelectionChanged, this, [this] {
    ReadWidgetsIntoModel(chooser_.Model(), *this);
    start_->setEnabled(chooser_.StartEnabled());
  });
  connect(scripts_, &QListWidget::itemDoubleClicked, this, &FrmScriptWindow::cmdStart);

  LocaliseDialog(*this, catalog, mainWindow, appTitle);
  chooser_.Load();
  ShowChooser();
}

void FrmScriptWindow::ShowChooser() {
  ShowModelInWidgets(chooser_.Model(), *this);
  start_->setEnabled(chooser_.StartEnabled());
}

void FrmScriptWindow::cmdStart() {
  ReadWidgetsIntoModel(chooser_.Model(), *this);
  if (chooser_.Start()) {
    accept();
    return;
  }
  ShowChooser();
}

void FrmScriptWindow::cmdCancel() {
  chooser_.Cancel();
  reject();
}

}  // namespace nomra::ui
