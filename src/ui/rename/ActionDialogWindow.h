#pragma once
#include <QDialog>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lang/MessageCatalog.h"
#include "rename/ActionContext.h"
#include "rename/ActionDialog.h"

class QPushButton;
class QVBoxLayout;

namespace nomra::ui {

// What an action dialog's window needs from the main window.
struct ActionWindowServices {
  rename::ActionContext context;
  const lang::MessageCatalog& catalog;
  QWidget* mainWindow = nullptr;  // parent, and the source of borrowed captions
  QString appTitle;
  // Shows the new pending names after each run.
  std::function<void()> afterRun;
};

// The window of an action dialog: the engine's model shown by widgets named
// as its inputs, with cmdApply, cmdOK, cmdCancel and cmdHelp. Subclasses put
// their inputs into InputArea() and then call FinishBuilding().
class ActionDialogWindow : public QDialog {
  Q_OBJECT
 public:
  ActionDialogWindow(std::unique_ptr<rename::ActionDialog> action, ActionWindowServices services);
  ~ActionDialogWindow() override;

  rename::ActionDialog& Action() { return *action_; }
  // The caption the dialog has when no script plays it.
  const QString& UsualCaption() const { return usualCaption_; }

  void cmdApply();
  void cmdOK();

 protected:
  QVBoxLayout& InputArea() { return *inputArea_; }
  // Localises, lets the subclass finish its texts, and restores the inputs.
  void FinishBuilding();
  // After the language texts are in place, before the inputs are restored.
  virtual void AfterLocalised() {}
  // Whenever the inputs were put on the widgets anew, e.g. to follow which
  // inputs are enabled.
  virtual void AfterInputsShown() {}

  // Reads the widgets into the model and enables each input's widget as
  // `isEnabled` says of its key: the dialogs' rules of which inputs a
  // choice leaves usable live in the engine.
  void FollowEnabling(const std::function<bool(std::string_view key)>& isEnabled);
  // The model's values into the widgets. While they go in, FollowEnabling
  // does nothing: a half-shown model must not be read back.
  void ShowModel();
  // Hides cmdApply, for a dialog whose only action is its OK.
  void WithoutApply();
  // The stems of the pending names, one per row, for frmPos.
  std::vector<std::string> PendingStems() const;

  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  const ActionWindowServices& Services() const { return services_; }

 private:
  void OnFirstActivation();

  std::unique_ptr<rename::ActionDialog> action_;
  ActionWindowServices services_;
  QVBoxLayout* inputArea_ = nullptr;
  QPushButton* apply_ = nullptr;
  QPushButton* ok_ = nullptr;
  QString usualCaption_;
  bool activated_ = false;
  bool showingModel_ = false;
};

}  // namespace nomra::ui
