#include "ui/fileops/FrmSelActionWindow.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "lang/LanguageKeys.h"
#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NamedControls.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/fileops/FileOperationProgress.h"

namespace nomra::ui {

namespace {

constexpr char kTargetPathName[] = "txtTargetPath";

QGroupBox* BuildFrameCopy(QWidget& dialog) {
  return NamedOptionGroup(dialog, "frameCopy", "Which files get the new names?",
                          {{"optRenOriginal", "The originals (the copies keep the old names)"},
                           {"optRenCopy", "Only the copies"},
                           {"optRenBoth", "Originals and copies"}});
}

}  // namespace

FrmSelActionWindow::FrmSelActionWindow(const QString& tag, const rename::ActionContext& context,
                                       core::RowCommitter* committer, const lang::MessageCatalog& catalog,
                                       platform::Platform& system, QWidget* parent)
    : QDialog(parent),
      engine_(ToEngineText(tag)),
      context_(context),
      committer_(committer),
      catalog_(catalog),
      system_(system) {
  setObjectName(tag);
  setWindowTitle("Copy files");
  resize(560, 0);
  auto* layout = new QVBoxLayout(this);
  QGroupBox* frameCopy = BuildFrameCopy(*this);
  frameCopy->setVisible(engine_.ShowsFrameCopy());
  layout->addWidget(frameCopy);

  auto* target = new QGridLayout;
  auto* label = new QLabel("Target folder:", this);
  label->setObjectName("lblTargetDir");
  targetPath_ = new QLineEdit(this);
  targetPath_->setObjectName(kTargetPathName);
  label->setBuddy(targetPath_);
  QPushButton* browse = NamedButton(*this, "cmdSelPath", "...");
  target->addWidget(label, 0, 0, 1, 2);
  target->addWidget(targetPath_, 1, 0);
  target->addWidget(browse, 1, 1);
  layout->addLayout(target);

  auto* updateList = new QCheckBox("Update the list", this);
  updateList->setObjectName("chkUpdateList");
  updateList->setVisible(engine_.ShowsUpdateList());
  updateList->setEnabled(engine_.UpdateListEnabled());
  layout->addWidget(updateList);

  ok_ = AddOkCancelRow(*this, *layout);
  LocaliseDialog(*this, catalog, parent, QString());

  // The first showing: the remembered inputs, then the change handler.
  engine_.Activate(context_);
  ShowModelInWidgets(engine_.Model(), *this);
  ok_->setEnabled(engine_.OkEnabled());

  connect(targetPath_, &QLineEdit::textEdited, this, &FrmSelActionWindow::OnTargetPathEdited);
  connect(browse, &QPushButton::clicked, this, &FrmSelActionWindow::cmdSelPath);
  connect(ok_, &QPushButton::clicked, this, &FrmSelActionWindow::cmdOK);
}

void FrmSelActionWindow::OnTargetPathEdited(const QString& text) {
  engine_.Model().SetText(kTargetPathName, ToEngineText(text));
  engine_.txtTargetPath_Change(context_.fileSystem);
  ok_->setEnabled(engine_.OkEnabled());
}

void FrmSelActionWindow::cmdSelPath() {
  const std::string title = catalog_.GetText(lang::kMessagesSection, "MsgText22");
  QFileDialog browser(this, ToQString(title), targetPath_->text());
  browser.setObjectName("dlgSelPath");
  browser.setFileMode(QFileDialog::Directory);
  browser.setOption(QFileDialog::ShowDirsOnly);
  // Qt's own browser, the same on every desktop and under test.
  browser.setOption(QFileDialog::DontUseNativeDialog);
  const QString chosen = browser.exec() == QDialog::Accepted && !browser.selectedFiles().isEmpty()
                             ? browser.selectedFiles().constFirst()
                             : QString();
  engine_.cmdSelPath(ToEngineText(chosen), context_.fileSystem);
  ShowModelInWidgets(engine_.Model(), *this);
  ok_->setEnabled(engine_.OkEnabled());
}

void FrmSelActionWindow::cmdOK() {
  ReadWidgetsIntoModel(engine_.Model(), *this);
  FileOperationProgress progress(catalog_, this);
  fileops::OperationServices services{system_.Files(), system_.DesktopTrash(), context_.User(), progress};
  RunShowingFault(context_.User(), [&] {
    if (engine_.cmdOK(context_, committer_, services)) accept();
  });
}

}  // namespace nomra::ui
