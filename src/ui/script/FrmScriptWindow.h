#pragma once
#include <QDialog>

#include "core/FrontEnd.h"
#include "dialog/ScriptSession.h"
#include "lang/MessageCatalog.h"
#include "platform/FileSystem.h"
#include "script/FrmScript.h"

class QListWidget;
class QPushButton;

namespace nomra::ui {

// frmScript: choose a stored script and how to run it, or delete it.
class FrmScriptWindow final : public QDialog {
  Q_OBJECT
 public:
  FrmScriptWindow(dialog::ScriptSession& session, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd,
                  const lang::MessageCatalog& catalog, QWidget* mainWindow, const QString& appTitle);

  void cmdStart();
  void cmdCancel();

 private:
  void ShowChooser();

  script::FrmScript chooser_;
  QListWidget* scripts_ = nullptr;
  QPushButton* start_ = nullptr;
};

}  // namespace nomra::ui
