#include "ui/common/ProductLabels.h"

#include <QLabel>

namespace nomra::ui {

QIcon ProgramIcon() { return QIcon(QStringLiteral(":/icons/nomra.svg")); }

QLabel* ProgramPicture(QWidget& parent) {
  auto* picture = new QLabel(&parent);
  picture->setPixmap(ProgramIcon().pixmap(64, 64));
  return picture;
}

QLabel* ProductNameLabel(QWidget& parent, const QString& appTitle, double scale) {
  auto* name = new QLabel(appTitle, &parent);
  name->setObjectName("lblProductName");
  QFont big = name->font();
  big.setPointSizeF(big.pointSizeF() * scale);
  big.setBold(true);
  name->setFont(big);
  return name;
}

QLabel* VersionLabel(QWidget& parent) {
  auto* label = new QLabel(&parent);
  label->setObjectName("lblVers");
  return label;
}

void ShowVersion(QLabel& label, const QString& version) { label.setText("Version " + version); }

QLabel* CopyrightLabel(QWidget& parent) {
  auto* copyright = new QLabel(QStringLiteral("\u00a9 The Nomra developers"), &parent);
  copyright->setObjectName("lblCopy");
  return copyright;
}

}  // namespace nomra::ui
