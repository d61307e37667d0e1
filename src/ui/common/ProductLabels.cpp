#include "ui/common/ProductLabels.h"

#include <QIcon>
#include <QLabel>

namespace nomra::ui {

QLabel* ProgramPicture(QWidget& parent) {
  auto* picture = new QLabel(&parent);
  picture->setPixmap(QIcon(":/icons/nomra.svg").pixmap(64, 64));
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

}  // namespace nomra::ui
