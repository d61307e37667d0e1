#pragma once
#include <string>
#include <string_view>

#include "core/FileList.h"
#include "dialog/DialogModel.h"

namespace nomra::structure {

// The dialog frmSelNamePart without a window: it builds a <NamePart( tag
// from a separator, a part number (1 to 9) and whether blanks go, with a
// preview on a row of the file list. It is given the text of a target box
// and gives back the text its OK writes there.
class FrmSelNamePart {
 public:
  explicit FrmSelNamePart(const core::FileList& list);

  dialog::DialogModel& Model() { return dialog_; }
  const dialog::DialogModel& Model() const { return dialog_; }

  // Takes over what a <NamePart( tag in the target's text says; values the
  // inputs can't take are passed over. Then the preview.
  void Load(std::string_view target);

  // The inputs and VScroll1 as the person sets them; each renews the preview.
  void SetSeparator(std::string separator);
  void SetPartIndex(int index);  // 0 for the first part
  void SetRemoveBlanks(bool remove);
  void SetPreviewRow(int row);

  // cmdOK is enabled only with a separator.
  bool OkEnabled() const;
  // The tag cmdOK writes into the target.
  std::string TagText() const;

  // txtResult: the part of the preview row's name; "" without a separator.
  void RefreshPreview();

 private:
  const core::FileList& list_;
  dialog::DialogModel dialog_;
};

}  // namespace nomra::structure
