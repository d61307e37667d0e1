#include "ui/mainwindow/FrmStartWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/ProductLabels.h"

namespace nomra::ui {

FrmStartWindow::FrmStartWindow(const lang::MessageCatalog& catalog, const QString& appTitle, const QString& version,
                               QWidget* parent)
    : QDialog(parent, Qt::SplashScreen) {
  setObjectName("frmStart");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 20);
  QLabel* icon = ProgramPicture(*this);
  icon->setAlignment(Qt::AlignCenter);
  layout->addWidget(icon);
  QLabel* name = ProductNameLabel(*this, appTitle, 2);
  name->setAlignment(Qt::AlignCenter);
  layout->addWidget(name);
  auto* subtitle = new QLabel("Batch file renamer", this);
  subtitle->setObjectName("lblSV");
  subtitle->setAlignment(Qt::AlignCenter);
  layout->addWidget(subtitle);
  QLabel* versionLabel = VersionLabel(*this);
  versionLabel->setAlignment(Qt::AlignCenter);
  layout->addWidget(versionLabel);
  QLabel* copyright = CopyrightLabel(*this);
  copyright->setAlignment(Qt::AlignCenter);
  layout->addWidget(copyright);
  QPushButton* ok = OkButton(*this);
  ok->setDefault(true);
  layout->addWidget(ok, 0, Qt::AlignCenter);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  LocaliseDialog(*this, catalog, parent, appTitle);
  ShowVersion(*versionLabel, version);

  timer_.setObjectName("Zeit1");
  timer_.setSingleShot(true);
  timer_.setInterval(kShowMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &QDialog::accept);
  timer_.start();
}

}  // namespace nomra::ui
