#pragma once
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

#include "lang/MessageCatalog.h"

class QCheckBox;
class QHBoxLayout;
class QComboBox;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QScrollBar;
class QWidget;

namespace nomra::ui {

// The controls of the action windows, each named as its input of the
// model, so the binder, the language file and the tests find it.
QLineEdit* NamedEdit(QWidget& parent, const QString& name);
QRadioButton* NamedRadio(QWidget& parent, const QString& name, const QString& caption);
QCheckBox* NamedCheck(QWidget& parent, const QString& name, const QString& caption);
QComboBox* NamedCombo(QWidget& parent, const QString& name);
QListWidget* NamedList(QWidget& parent, const QString& name);

// A spin bar beside a number box: a vertical scroll bar whose moves write
// `top` less its value into the box, as the dialogs have always counted
// (201 less the bar for positions from 1, 200 less for positions from 0).
QScrollBar* NamedSpinBar(QWidget& parent, const QString& name, int minimum, int maximum, QLineEdit& box, int top);

// A number box and its spin bar side by side, in a row of their own.
QHBoxLayout* NumberBoxWithBar(QWidget& parent, const QString& box, const QString& bar, int minimum, int maximum,
                              int top);

// A number frmPos picked, into a caller's box and its spin bar (whose top
// is 200 for positions from 0, else 201).
void ShowPickedNumber(QWidget& window, const QString& bar, const QString& box, long value, bool fromZero);

// The rows of a combo box in the language's words: the key of each row in
// the dialog's section, or the given text where the language has none.
void FillCombo(QComboBox& combo, const lang::MessageCatalog& catalog, const std::string& section,
               const std::vector<std::pair<std::string, QString>>& keysAndTexts);

}  // namespace nomra::ui
