#pragma once
#include <QDialog>

#include "commit/CommitResult.h"
#include "commit/CommitServices.h"
#include "core/FrontEnd.h"
#include "dialog/DialogModel.h"
#include "dialog/ScriptSession.h"
#include "lang/MessageCatalog.h"

class QRadioButton;

namespace nomra::ui {

// frmNotRenamed: the renames that didn't happen, and what to do with the
// rows that did: leave them in the list, or take them out.
class FrmNotRenamedWindow final : public QDialog {
  Q_OBJECT
 public:
  // The form's name, which is also the section of its remembered choice.
  static constexpr char kName[] = "frmNotRenamed";

  FrmNotRenamedWindow(const commit::CommitResult& result, const lang::MessageCatalog& catalog,
                      QWidget* parent = nullptr);

  // What cmdOK chose; cmdCancel always gives NoAction.
  commit::NotRenamedChoice Choice() const { return choice_; }

  // Shows the choice of the last OK, and stores this one on OK, in the
  // settings under the dialog's name.
  void RememberChoiceIn(const dialog::ScriptSession& session, platform::FileSystem& fileSystem,
                        core::FrontEnd& frontEnd);

 private:
  dialog::DialogModel model_{kName};
  const dialog::ScriptSession* session_ = nullptr;
  platform::FileSystem* fileSystem_ = nullptr;
  QRadioButton* noAction_ = nullptr;
  QRadioButton* removeRenamed_ = nullptr;
  commit::NotRenamedChoice choice_ = commit::NotRenamedChoice::NoAction;
};

}  // namespace nomra::ui
