#pragma once
#include <QDialog>
#include <QString>

#include "core/RowCommitter.h"
#include "fileops/FrmSelAction.h"
#include "lang/MessageCatalog.h"
#include "platform/Platform.h"
#include "rename/ActionContext.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace nomra::ui {

// The window of frmSelAction: the engine's dialog shown by widgets named as
// its inputs. The Tag picks the use, the language section and the section of
// the remembered inputs, so it is also the window's object name.
class FrmSelActionWindow final : public QDialog {
  Q_OBJECT
 public:
  FrmSelActionWindow(const QString& tag, const rename::ActionContext& context, core::RowCommitter* committer,
                     const lang::MessageCatalog& catalog, platform::Platform& system, QWidget* parent = nullptr);

  fileops::FrmSelAction& Engine() { return engine_; }

  void cmdOK();
  void cmdSelPath();

 private:
  void OnTargetPathEdited(const QString& text);

  fileops::FrmSelAction engine_;
  rename::ActionContext context_;
  core::RowCommitter* committer_;
  const lang::MessageCatalog& catalog_;
  platform::Platform& system_;
  QLineEdit* targetPath_ = nullptr;
  QPushButton* ok_ = nullptr;
};

}  // namespace nomra::ui
