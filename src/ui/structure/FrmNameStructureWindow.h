#pragma once
#include <QDialog>

#include "structure/FrmNameStructure.h"
#include "ui/rename/ActionDialogWindow.h"
#include "ui/structure/StructureDialogParts.h"

class QGroupBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace nomra::ui {

class StructureTagList;

// frmNameStructure: the stored name structures (frameMain), the editor of
// one of them (frameEdit) with the tags on offer and a preview on the file
// list, and applying the chosen structure.
class FrmNameStructureWindow final : public QDialog {
  Q_OBJECT
 public:
  explicit FrmNameStructureWindow(ActionWindowServices services);

  structure::FrmNameStructure& Editor() { return editor_; }

  void cmdStructureAdd();
  void cmdStructureEdit();
  void cmdStructureDel();
  void cmdStructureOK();
  void cmdStructureCancel();
  void cmdApply();
  void cmdOK();

 private:
  QGroupBox* BuildFrameMain();
  QGroupBox* BuildFrameEdit();
  void ShowEditor();
  void ShowStructureRows();
  // Runs cmdApply's work; false when the check failed.
  bool RunApply();
  // After a failed check: the structure to mend, its faulty character selected.
  void FocusFailedStructure();

  ActionWindowServices services_;
  structure::FrmNameStructure editor_;
  QGroupBox* frameMain_ = nullptr;
  QGroupBox* frameEdit_ = nullptr;
  QTreeWidget* structures_ = nullptr;
  QLineEdit* name_ = nullptr;
  QLineEdit* structure_ = nullptr;
  StructureTagList* elements_ = nullptr;   // lstElements
  StructureTagList* functions_ = nullptr;  // lstFunctions
  QPushButton* edit_ = nullptr;
  QPushButton* delete_ = nullptr;
  QPushButton* structureOk_ = nullptr;
  StructurePreview preview_;
  bool showing_ = false;
};

// Opens frmNameStructure modally over the main window and returns when it
// has closed.
void OpenNameStructure(const ActionWindowServices& services);

}  // namespace nomra::ui
