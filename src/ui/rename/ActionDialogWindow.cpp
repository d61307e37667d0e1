#include "ui/rename/ActionDialogWindow.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "base/NameSplit.h"
#include "core/ListState.h"
#include "rename/ActionFrame.h"
#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/FormNames.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

constexpr char kRunCaptionKey[] = "FrmRunCaption";

}  // namespace

ActionDialogWindow::ActionDialogWindow(std::unique_ptr<rename::ActionDialog> action, ActionWindowServices services)
    : QDialog(services.mainWindow), action_(std::move(action)), services_(std::move(services)) {
  setObjectName(ToQString(action_->Traits().dialogName));
  setModal(true);
  auto* layout = new QVBoxLayout(this);
  inputArea_ = new QVBoxLayout;
  layout->addLayout(inputArea_);
  layout->addStretch(1);

  const ActionButtons buttons = AddActionButtonRow(*this, *layout);
  apply_ = buttons.apply;
  ok_ = buttons.ok;
  ok_->setDefault(true);

  connect(apply_, &QPushButton::clicked, this, &ActionDialogWindow::cmdApply);
  connect(ok_, &QPushButton::clicked, this, &ActionDialogWindow::cmdOK);
}

ActionDialogWindow::~ActionDialogWindow() = default;

void ActionDialogWindow::ShowModel() {
  showingModel_ = true;
  ShowModelInWidgets(action_->Model(), *this);
  showingModel_ = false;
}

void ActionDialogWindow::FollowEnabling(const std::function<bool(std::string_view key)>& isEnabled) {
  if (showingModel_) return;
  ReadWidgetsIntoModel(action_->Model(), *this);
  for (const dialog::DialogInput& input : action_->Model().Inputs()) {
    if (auto* widget = findChild<QWidget*>(ToQString(input.Key()))) widget->setEnabled(isEnabled(input.Key()));
  }
}

void ActionDialogWindow::WithoutApply() { apply_->hide(); }

std::vector<std::string> ActionDialogWindow::PendingStems() const {
  std::vector<std::string> stems;
  const core::ListState& state = services_.context.State();
  for (int row = 1; row <= state.list.Count(); ++row) {
    stems.push_back(base::NameOnly(state.list.Item(row)[core::kColNewName]));
  }
  return stems;
}

void ActionDialogWindow::FinishBuilding() {
  LocaliseDialog(*this, services_.catalog, services_.mainWindow, services_.appTitle);
  usualCaption_ = windowTitle();
  AfterLocalised();
  for (QLineEdit* edit : findChildren<QLineEdit*>()) edit->installEventFilter(this);
  // The model holds what the dialog shows when nothing is stored.
  rename::LoadActionDialog(*action_, services_.context);
  ShowModel();
  AfterInputsShown();
}

void ActionDialogWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (activated_) return;
  activated_ = true;
  OnFirstActivation();
}

void ActionDialogWindow::OnFirstActivation() {
  const dialog::ScriptSession& session = services_.context.script;
  const bool playing = session.runMode == 1 || session.runMode == 2;
  if (playing) {
    const std::string runCaption = services_.catalog.GetText(kScriptDialogName, kRunCaptionKey);
    setWindowTitle(ToQString(runCaption) + ": " + usualCaption_);
    ok_->setFocus();
  }
  ReadWidgetsIntoModel(action_->Model(), *this);
  // A dialog that found nothing to do as it opened closes at once.
  if (action_->ClosesAtOnce()) {
    QTimer::singleShot(0, this, &QDialog::reject);
    return;
  }
  const bool okAtOnce = rename::ActivateActionDialog(*action_, services_.context, true);
  ShowModel();
  AfterInputsShown();
  // Once the dialog's own loop runs, so that the close ends it.
  if (okAtOnce) QTimer::singleShot(0, this, &ActionDialogWindow::cmdOK);
}

void ActionDialogWindow::cmdApply() {
  ReadWidgetsIntoModel(action_->Model(), *this);
  const bool disable = action_->Traits().disablesButtonsWhileRunning;
  if (disable) {
    apply_->setEnabled(false);
    ok_->setEnabled(false);
  }
  RunShowingFault(services_.context.User(), [this] { rename::ApplyActionDialog(*action_, services_.context); });
  // An action may tidy its inputs while it runs; the dialog shows them so.
  ShowModel();
  AfterInputsShown();
  if (disable) {
    apply_->setEnabled(true);
    ok_->setEnabled(true);
  }
  if (services_.afterRun) services_.afterRun();
}

void ActionDialogWindow::cmdOK() {
  cmdApply();
  accept();
}

// A text box selects all its text when it gets the focus, so that typing
// replaces it.
bool ActionDialogWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    if (auto* edit = qobject_cast<QLineEdit*>(watched)) QTimer::singleShot(0, edit, &QLineEdit::selectAll);
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace nomra::ui
