#pragma once
#include <QDialog>
#include <QString>

#include <optional>
#include <string>
#include <vector>

#include "actions/PositionPicker.h"
#include "lang/MessageCatalog.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QScrollBar;

namespace nomra::ui {

// frmPos: the user marks a position or a range with the mouse (or the
// arrow keys) in a real name of the list, chosen with VScrollFile. Cancel
// leaves the caller as it was.
class FrmPosWindow final : public QDialog {
  Q_OBJECT
 public:
  struct Result {
    actions::Picked picked;
    bool fromRight = false;  // cmbAlign: the side of Insert and Numbering
  };

  // `stems`: the pending names' stems, one per row. `withSide`: the caller
  // takes a side (Insert, Numbering); otherwise the mode fixes it.
  FrmPosWindow(actions::PickMode mode, std::vector<std::string> stems, bool withSide,
               const lang::MessageCatalog& catalog, QWidget* parent = nullptr);

  Result Current() const;
  // Shows the name of that row (from 1).
  void ShowRow(int row);

  // Runs the window; nothing when the user cancels.
  static std::optional<Result> Pick(actions::PickMode mode, std::vector<std::string> stems, bool withSide,
                                    const lang::MessageCatalog& catalog, QWidget* parent);

 private:
  void UpdatePosition();

  actions::PickMode mode_;
  std::vector<std::string> stems_;
  QLineEdit* name_ = nullptr;
  QScrollBar* rows_ = nullptr;
  QLabel* position_ = nullptr;
  QComboBox* side_ = nullptr;
};

// The controls of a dialog that picks a first or last position or a range
// with frmPos: the radio buttons that choose which, and the box and spin
// bar each picked number goes to.
struct PickedRangeTargets {
  QString firstChoice, lastChoice;
  QString firstBar, firstBox;
  QString lastBar, lastBox;
  QString fromBar, fromBox;
  QString toBar, toBox;
};

// Runs frmPos in the mode the dialog's radio buttons choose and writes what
// was picked into that mode's boxes; a cancel leaves them as they were.
void PickRangeInto(QWidget& dialog, const PickedRangeTargets& targets, std::vector<std::string> stems,
                   const lang::MessageCatalog& catalog);

}  // namespace nomra::ui
