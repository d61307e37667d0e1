#pragma once
#include <string>
#include <vector>

#include "core/FrontEnd.h"
#include "dialog/DialogModel.h"
#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"

namespace nomra::script {

// The dialog frmScript without a window: the stored scripts, how to run the
// chosen one, or deleting it.
class FrmScript {
 public:
  FrmScript(dialog::ScriptSession& session, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd);

  dialog::DialogModel& Model() { return dialog_; }

  // Lists the stored scripts in the order of the file system; run all
  // steps is chosen.
  void Load();

  // cmdStart is enabled exactly while a row is chosen.
  bool StartEnabled() const;

  // cmdStart. Deleting asks first and keeps the dialog open; running stores
  // the inputs, sets the run mode and path, and the dialog closes. True when
  // the dialog closes.
  bool Start();

  // cmdCancel: nothing plays.
  void Cancel();

  // The file name of each row (item data), in row order.
  const std::vector<std::string>& FileNames() const { return fileNames_; }

 private:
  void DeleteChosen(int row);

  dialog::ScriptSession& session_;
  platform::FileSystem& fileSystem_;
  core::FrontEnd& frontEnd_;
  dialog::DialogModel dialog_;
  std::vector<std::string> fileNames_;
};

}  // namespace nomra::script
