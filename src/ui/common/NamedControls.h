#pragma once
#include <QString>

#include <utility>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QWidget;

namespace nomra::ui {

// Labels, labelled rows and frames of options, each control named for the
// language file, the dialog models and the tests.

// A label named `name` showing `text`, added to the end of the layout.
QLabel* AddNamedLabel(QBoxLayout& layout, QWidget& parent, const QString& name, const QString& text);

// A row of a dialog's grid: the label (its buddy the widget) in the first
// column and the widget in the second.
QLabel* AddLabelledWidget(QGridLayout& grid, int row, const QString& labelName, const QString& label, QWidget& widget);
// The same with a new text box, named `textName`, as the widget.
QLineEdit* AddLabelledText(QGridLayout& grid, QWidget& parent, int row, const QString& labelName, const QString& label,
                           const QString& textName);

// A frame named `frameName` with the option buttons one under the other,
// each given as its name and design caption.
QGroupBox* NamedOptionGroup(QWidget& parent, const QString& frameName, const QString& title,
                            const std::vector<std::pair<QString, QString>>& options);

}  // namespace nomra::ui
