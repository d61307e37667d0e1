#include "ui/common/FrmInfoWindow.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>

#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/ProductLabels.h"

namespace nomra::ui {

FrmInfoWindow::FrmInfoWindow(const lang::MessageCatalog& catalog, const QString& appTitle, const QString& version,
                             const QString& menuCaption, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmInfo");
  setWindowTitle(QString(menuCaption).remove('&'));
  auto* grid = new QGridLayout(this);
  grid->addWidget(ProgramPicture(*this), 0, 0, 4, 1, Qt::AlignTop);
  grid->addWidget(ProductNameLabel(*this, appTitle, 1.6), 0, 1);
  auto* about = new QLabel("Renames many files at once, safely: no file is ever overwritten.", this);
  about->setObjectName("Label1");
  about->setWordWrap(true);
  grid->addWidget(about, 1, 1);
  QLabel* versionLabel = VersionLabel(*this);
  grid->addWidget(versionLabel, 2, 1);
  auto* build = new QLabel(this);
  build->setObjectName("lblBuild");
  grid->addWidget(build, 3, 1);
  grid->addWidget(CopyrightLabel(*this), 4, 1);
  auto* link = new QLabel(this);
  link->setObjectName("lblWebLink");
  grid->addWidget(link, 5, 1);
  QPushButton* ok = OkButton(*this);
  ok->setDefault(true);
  grid->addWidget(ok, 6, 1, Qt::AlignRight);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  LocaliseDialog(*this, catalog, parent, appTitle);
  ShowVersion(*versionLabel, version);
  build->setText(QString("Qt %1, %2").arg(QLatin1String(qVersion()), QSysInfo::prettyProductName()));
}

}  // namespace nomra::ui
