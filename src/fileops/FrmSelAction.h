#pragma once
#include <string>
#include <string_view>

#include "core/RowCommitter.h"
#include "dialog/DialogModel.h"
#include "fileops/OperationServices.h"
#include "rename/ActionContext.h"

namespace nomra::fileops {

// The three uses of the dialog, by its Tag; each is also its language
// section and the settings section of its remembered inputs.
inline constexpr char kSelActionTag[] = "frmSelAction";
inline constexpr char kCopyFilesTag[] = "frmCopyFiles";
inline constexpr char kMoveFilesTag[] = "frmMoveFiles";

enum class SelActionMode {
  TakeChanges2,  // copies of all rows, under old or new names, with a rename
  CopyFiles,     // the selected rows' files copied to a folder
  MoveFiles,     // the selected rows' files moved to a folder
};

// frmSelAction without a window: copies or moves the files of the list to a
// target folder, and, as the variant "TakeChanges2" of taking changes,
// combines a copy with the rename. Its inputs, in the order they are
// stored: optRenOriginal, optRenCopy, optRenBoth, txtTargetPath,
// cmdSelPath, chkUpdateList, frameCopy, lblTargetDir, cmdOK, cmdCancel.
class FrmSelAction {
 public:
  // Throws std::invalid_argument for a tag that is none of the three.
  explicit FrmSelAction(std::string tag);

  const std::string& Tag() const { return tag_; }
  SelActionMode Mode() const { return mode_; }
  dialog::DialogModel& Model() { return model_; }
  const dialog::DialogModel& Model() const { return model_; }

  // frameCopy belongs to "TakeChanges2"; the copy and move modes show
  // chkUpdateList instead, which moving keeps checked and disabled, since
  // moved files must be followed by their rows.
  bool ShowsFrameCopy() const { return mode_ == SelActionMode::TakeChanges2; }
  bool ShowsUpdateList() const { return !ShowsFrameCopy(); }
  bool UpdateListEnabled() const { return mode_ == SelActionMode::CopyFiles; }
  bool OkEnabled() const { return okEnabled_; }

  // When the dialog first becomes active: the remembered inputs of its
  // Tag, then the change handler of txtTargetPath.
  void Activate(const rename::ActionContext& context);
  // cmdOK is enabled only while txtTargetPath names an existing folder.
  void txtTargetPath_Change(platform::FileSystem& fileSystem);
  // The folder browser's answer; an empty answer (cancelled) changes nothing.
  void cmdSelPath(const std::string& chosenFolder, platform::FileSystem& fileSystem);

  // Copies or moves, updates the list and remembers the inputs; true when
  // the dialog closes. Two files whose copies would land on one name stop
  // it with a message, and the dialog stays open.
  bool cmdOK(const rename::ActionContext& context, core::RowCommitter* committer, OperationServices& services);

 private:
  bool CopyOrMoveSelected(const rename::ActionContext& context, OperationServices& services);
  bool CopyForTakeChanges(const rename::ActionContext& context, core::RowCommitter* committer,
                          OperationServices& services);

  std::string tag_;
  SelActionMode mode_;
  dialog::DialogModel model_;
  bool okEnabled_ = false;
};

}  // namespace nomra::fileops
