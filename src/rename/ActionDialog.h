#pragma once
#include <string>

#include "dialog/DialogModel.h"
#include "rename/ActionContext.h"

namespace nomra::rename {

// When a dialog takes back its remembered inputs or its script step: most
// on loading, some the first time they come to the front.
enum class RestoreMoment { OnLoad, OnFirstActivation };

// What the frame needs to know of an action dialog. The sections are kept
// as the dialogs have always used them, odd ones included.
struct ActionTraits {
  std::string dialogName;      // "frmPrefixSuffix"
  std::string storeSection;    // settings section written on apply; "" for none
  std::string restoreSection;  // settings section read on opening; "" for none
  int stepType = 0;            // the script step type; 0 for none
  bool disablesButtonsWhileRunning = false;
  RestoreMoment restoreMoment = RestoreMoment::OnLoad;
};

// The four buttons every action dialog has, as inputs without a value.
inline void AddFrameButtons(dialog::DialogModel& model) {
  for (const char* name : {"cmdApply", "cmdOK", "cmdCancel", "cmdHelp"}) model.AddNoValue(name);
}

// A renaming action as a dialog without a window: its inputs and what its
// OK does. The Qt dialog shows the same model; scripts store and replay it.
class ActionDialog {
 public:
  explicit ActionDialog(std::string dialogName) : model_(std::move(dialogName)) {}
  virtual ~ActionDialog() = default;
  ActionDialog(const ActionDialog&) = delete;
  ActionDialog& operator=(const ActionDialog&) = delete;

  virtual const ActionTraits& Traits() const = 0;

  dialog::DialogModel& Model() { return model_; }
  const dialog::DialogModel& Model() const { return model_; }

  // What the dialog does as it opens, before its inputs are restored: the
  // renumbering dialog reads the list here.
  virtual void Open(const ActionContext&) {}

  // True when the dialog found nothing to do as it opened: it closes at
  // once, and no step plays.
  virtual bool ClosesAtOnce() const { return false; }

  // The dialog's own checks of its inputs, before anything is stored or
  // changed; false stops the apply (the check has told the user why).
  virtual bool CheckInputs(const ActionContext&) { return true; }

  // Rewrites the pending names from the inputs.
  virtual void Run(const ActionContext& context) = 0;

 private:
  dialog::DialogModel model_;
};

}  // namespace nomra::rename
