#pragma once
#include <optional>
#include <string>
#include <vector>

#include "dialog/DialogModel.h"
#include "lang/MessageCatalog.h"
#include "rename/ActionContext.h"
#include "structure/StoredStructures.h"
#include "structure/SyntaxCheck.h"
#include "structure/TagChoices.h"

namespace nomra::structure {

// What cmdStructureOK will do with the edited name and structure.
enum class StructureEditMode { None, Add, Edit };

// The dialog frmNameStructure without a window: the stored structures, an
// editor for one of them with a preview on the real file list, the syntax
// check, and applying the chosen structure. It has no settings section and
// records no script step.
class FrmNameStructure {
 public:
  FrmNameStructure(const rename::ActionContext& context, const lang::MessageCatalog& catalog);

  dialog::DialogModel& Model() { return dialog_; }
  const dialog::DialogModel& Model() const { return dialog_; }

  // Reads structures.nrp (its first line a header), offers the tags of the
  // language file, and chooses the first row. The preview is made once, at
  // the end, not for each input the loading sets.
  void Load();

  const std::vector<StoredStructure>& Structures() const { return structures_; }
  const std::vector<TagChoice>& Elements() const { return elements_; }
  const std::vector<TagChoice>& Functions() const { return functions_; }

  // The chosen row of lstStructures, from 0; -1 for none. Choosing one shows
  // its name and structure in txtName and txtStructure.
  int Chosen() const { return chosen_; }
  void Choose(int row);

  // frameEdit shows while editing, frameMain otherwise.
  bool Editing() const { return mode_ != StructureEditMode::None; }
  StructureEditMode Mode() const { return mode_; }

  bool EditEnabled() const { return !structures_.empty(); }
  bool DeleteEnabled() const { return !structures_.empty(); }
  // Exactly while name and structure, trimmed, both hold something.
  bool StructureOkEnabled() const;

  // Typing into txtName and txtStructure; a new structure renews the preview.
  void SetName(std::string name);
  void SetStructure(std::string structure);
  // VScroll1: the row of the file list the preview runs on.
  void SetPreviewRow(int row);

  // cmdStructureAdd: a new name "Structure n", an empty structure, editing.
  void Add();
  // cmdStructureEdit: editing the chosen row.
  void Edit();
  // cmdStructureDel: asks, and on Yes removes the chosen row.
  void Delete();
  // cmdStructureOK: checks the structure and stores the edit; false when the
  // check failed and editing goes on.
  bool AcceptEdit();
  // cmdStructureCancel: back to the list, nothing stored.
  void CancelEdit();

  // cmdApply: stores every structure in structures.nrp, checks txtStructure
  // and applies the chosen row's structure. False when the check failed: the
  // editor then shows, so the structure can be mended.
  bool Apply();
  // cmdOK: cmdApply, and true when the dialog may close (the list shows).
  bool Ok();

  // Why the last check failed, with the characters of txtStructure to select.
  const std::optional<SyntaxFailure>& LastFailure() const { return lastFailure_; }

  // Shows what the structure gives for the preview row.
  void RefreshPreview();

 private:
  bool CheckStructure();
  void ShowChosen();
  std::string StructuresFile() const;

  rename::ActionContext context_;
  const lang::MessageCatalog& catalog_;
  dialog::DialogModel dialog_;
  std::vector<StoredStructure> structures_;
  std::vector<TagChoice> elements_;
  std::vector<TagChoice> functions_;
  int chosen_ = -1;
  StructureEditMode mode_ = StructureEditMode::None;
  bool loading_ = false;
  std::optional<SyntaxFailure> lastFailure_;
};

}  // namespace nomra::structure
