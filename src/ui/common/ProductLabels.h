#pragma once
#include <QIcon>
#include <QString>

class QLabel;
class QWidget;

namespace nomra::ui {

// The program's picture, name, version and copyright, as the main window, the
// start window and the about box show them.

// The program's own picture.
QIcon ProgramIcon();

// The picture at 64 pixels, and the name in large bold type (lblProductName).
QLabel* ProgramPicture(QWidget& parent);
QLabel* ProductNameLabel(QWidget& parent, const QString& appTitle, double scale);

// lblVers: "Version 1.2.3". The version is the program's own, whatever the
// language file says, so it is set after the texts of the language.
QLabel* VersionLabel(QWidget& parent);
void ShowVersion(QLabel& label, const QString& version);

// lblCopy: the copyright line.
QLabel* CopyrightLabel(QWidget& parent);

}  // namespace nomra::ui
