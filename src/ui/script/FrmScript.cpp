#include "ui/script/FrmScript.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/common/DialogBinder.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/FormNames.h"

namespace nomra::ui {

FrmScript::FrmScript(MainModel& model, const lang::MessageCatalog& catalog, QWidget* mainWindow,
                     const QString& appTitle)
    : QDialog(mainWindow), chooser_(model) {
  setObjectName(kScriptDialogName);
  setWindowTitle("Scripts");
  resize(480, 360);
  auto* layout = new QVBoxLayout(this);
  auto* label = new QLabel("S&cripts:", this);
  label->setObjectName("lblScript");
  layout->addWidget(label);
  scripts_ = new QListWidget(this);
  scripts_->setObjectName("lstScript");
  label->setBuddy(scripts_);
  layout->addWidget(scripts_, 1);

  auto* options = new QGroupBox("Action", this);
  options->setObjectName("fraOptRun");
  auto* optionsLayout = new QVBoxLayout(options);
  for (const auto& [name, text] : {std::pair{"optRunAll", "Run &all steps"},
                                   std::pair{"optRunSingleSteps", "Run s&tep by step"},
                                   std::pair{"optDelete", "&Delete the script"}}) {
    auto* option = new QRadioButton(text, options);
    option->setObjectName(name);
    optionsLayout->addWidget(option);
  }
  layout->addWidget(options);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  start_ = new QPushButton("&Start", this);
  start_->setObjectName("cmdStart");
  start_->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName("cmdCancel");
  buttons->addWidget(start_);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  connect(start_, &QPushButton::clicked, this, &FrmScript::cmdStart);
  connect(cancel, &QPushButton::clicked, this, &FrmScript::cmdCancel);
  connect(scripts_, &QListWidget::itemSelectionChanged, this, [this] {
    ReadWidgetsIntoModel(chooser_.Model(), *this);
    start_->setEnabled(chooser_.StartEnabled());
  });
  connect(scripts_, &QListWidget::itemDoubleClicked, this, &FrmScript::cmdStart);

  LocaliseDialog(*this, catalog, mainWindow, appTitle);
  chooser_.Load();
  ShowChooser();
}

void FrmScript::ShowChooser() {
  ShowModelInWidgets(chooser_.Model(), *this);
  start_->setEnabled(chooser_.StartEnabled());
}

void FrmScript::cmdStart() {
  ReadWidgetsIntoModel(chooser_.Model(), *this);
  if (chooser_.Start()) {
    accept();
    return;
  }
  ShowChooser();
}

void FrmScript::cmdCancel() {
  chooser_.Cancel();
  reject();
}

}  // namespace nomra::ui
