#include "script/FrmScript.h"

#include <system_error>

#include "dialog/DialogState.h"
#include "lang/MessageKeys.h"
#include "script/ScriptFiles.h"

namespace nomra::script {

namespace {

constexpr char kScriptList[] = "lstScript";
constexpr char kRunAll[] = "optRunAll";
constexpr char kRunSingleSteps[] = "optRunSingleSteps";
constexpr char kDelete[] = "optDelete";
constexpr char kChooserSection[] = "frmScript";
constexpr char kRunOptions[] = "fraOptRun";

// Read-only files go too: the folder's permission is what a removal needs,
// and the write bit is given back first in case the volume wants it.
void RemoveScriptFile(platform::FileSystem& fileSystem, const std::string& path) {
  fileSystem.SetReadOnly(path, false);
  fileSystem.RemoveFile(path);
}

}  // namespace

FrmScript::FrmScript(dialog::ScriptSession& session, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd)
    : session_(session), fileSystem_(fileSystem), frontEnd_(frontEnd), dialog_("frmScript") {
  dialog_.AddNoValue("lblScript");
  dialog_.AddList(kScriptList, {}, false);
  dialog_.AddNoValue(kRunOptions);
  dialog_.AddOption(kRunAll, kRunOptions);
  dialog_.AddOption(kRunSingleSteps, kRunOptions);
  dialog_.AddOption(kDelete, kRunOptions);
  dialog_.AddNoValue("cmdStart");
  dialog_.AddNoValue("cmdCancel");
}

void FrmScript::Load() {
  dialog::DialogInput& list = dialog_.At(kScriptList);
  list.rows.clear();
  fileNames_.clear();
  for (StoredScript& script : ListStoredScripts(fileSystem_, session_.dataFolder)) {
    list.rows.push_back(std::move(script.displayText));
    fileNames_.push_back(std::move(script.fileName));
  }
  list.number = -1;
  dialog_.SetOption(kRunAll, true);
}

bool FrmScript::StartEnabled() const { return dialog_.Number(kScriptList) >= 0; }

bool FrmScript::Start() {
  const int row = dialog_.Number(kScriptList);
  if (row < 0 || row >= static_cast<int>(fileNames_.size())) return false;
  if (dialog_.IsSelected(kDelete)) {
    DeleteChosen(row);
    return false;
  }
  dialog::StoreDialogState(dialog_, kChooserSection, dialog::kSettingsMode, session_, fileSystem_);
  session_.runMode = dialog_.IsSelected(kRunSingleSteps) ? 2 : 1;
  session_.runPath = ScriptFolder(session_.dataFolder) + fileNames_[row];
  return true;
}

void FrmScript::Cancel() { session_.runMode = 0; }

void FrmScript::DeleteChosen(int row) {
  dialog::DialogInput& list = dialog_.At(kScriptList);
  const core::Answer answer = frontEnd_.Ask(
      {lang::kDeleteScriptQuestion, lang::kAttentionCaption, core::MessageStyle::YesNoDefaultNo, {list.rows[row]}});
  if (answer != core::Answer::Yes) return;
  RemoveScriptFile(fileSystem_, ScriptFolder(session_.dataFolder) + fileNames_[row]);
  list.rows.erase(list.rows.begin() + row);
  fileNames_.erase(fileNames_.begin() + row);
  list.number = -1;
}

}  // namespace nomra::script
