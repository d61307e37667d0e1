#pragma once
#include <QString>

class QLabel;
class QWidget;

namespace nomra::ui {

// The program's picture and its name in large bold type, as the start
// window and the about box show them; the name label is lblProductName.
QLabel* ProgramPicture(QWidget& parent);
QLabel* ProductNameLabel(QWidget& parent, const QString& appTitle, double scale);

}  // namespace nomra::ui
