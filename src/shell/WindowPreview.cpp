#include "shell/WindowPreview.h"

#include "core/PlainPreview.h"

namespace nomra::shell {

namespace {

void ComputeCommandState(CommandState& commands, const WindowState& window, const core::ListState& state,
                         const dialog::ScriptSession& script) {
  auto& enabled = commands.enabled;
  enabled.clear();
  for (const char* always : {"OpenFile", "Options", "ImgPreview"}) enabled.insert(always);
  if (state.changedCount > 0) {
    for (const char* name : {"mnuTakeChanges", "mnuRejectChanges", "TakeChanges", "RejectChanges"}) {
      enabled.insert(name);
    }
  }
  if (state.list.Empty()) return;
  for (const char* name : {"lstApplyTo", "mnuDelList", "mnuEdit", "mnuFindDuplications", "mnuSpecial", "mnuScript",
                           "mnuRename", "StartRunScript"}) {
    enabled.insert(name);
  }
  if (script.recording == 0) enabled.insert("StartRecordScript");
  if (window.scriptMenuHasEntries) enabled.insert("RunSelectedScript");
  if (state.undoLevels > 0) {
    enabled.insert("mnuUndo");
    enabled.insert("Undo");
  }
  enabled.insert("DelList");
  for (const std::string& key : MainToolBarKeys()) {
    if (key >= "Rename01" && key <= "Rename99") enabled.insert(key);
  }
}

}  // namespace

void RefreshWindowState(WindowState& window, const core::ListState& state, const dialog::ScriptSession& script,
                        const core::StatusTexts& texts) {
  if (state.list.Empty()) window.selectedScriptLabel = texts.noScript;
  ComputeCommandState(window.commands, window, state, script);
}

void WindowPreview::Refresh() {
  core::PlainPreview(state_, frontEnd_, texts_).Refresh();
  RefreshWindowState(window_, state_, script_, texts_);
}

}  // namespace nomra::shell
