#pragma once
#include <QString>

class QBoxLayout;
class QDialog;
class QHBoxLayout;
class QPushButton;
class QWidget;

namespace nomra::ui {

// Push buttons carry object names: the language file (section Buttons), the
// dialogs' code and the tests find them by these names. The design caption
// stays where a language has no text for the button.

// A button named `name` showing `caption`; the caller places it.
QPushButton* NamedButton(QWidget& parent, const QString& name, const QString& caption);
// The same, added to the end of the row.
QPushButton* AddNamedButton(QBoxLayout& row, QWidget& parent, const QString& name, const QString& caption);

// cmdOK and cmdCancel with their design captions; the caller places them,
// makes one the default and connects them.
QPushButton* OkButton(QWidget& parent);
QPushButton* CancelButton(QWidget& parent);
// The same, added to the end of the row.
QPushButton* AddOkButton(QBoxLayout& row, QWidget& parent);
QPushButton* AddCancelButton(QBoxLayout& row, QWidget& parent);

// A row at the foot of the layout; the buttons added to it stand at the right.
QHBoxLayout* AddButtonRow(QBoxLayout& layout);

// The row of cmdOK and cmdCancel at the foot of a dialog, right-aligned;
// cmdOK is the default, cmdCancel rejects the dialog. The caller connects cmdOK.
QPushButton* AddOkCancelRow(QDialog& dialog, QBoxLayout& layout);

// The row at the foot of a dialog that applies an action: cmdHelp at the
// left, switched off until the help pages come, then at the right cmdApply,
// cmdOK and cmdCancel, which rejects the dialog. The caller connects cmdApply
// and cmdOK.
struct ActionButtons {
  QPushButton* apply = nullptr;
  QPushButton* ok = nullptr;
};
ActionButtons AddActionButtonRow(QDialog& dialog, QBoxLayout& layout);

}  // namespace nomra::ui
