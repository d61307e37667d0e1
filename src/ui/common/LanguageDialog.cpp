#include "ui/common/LanguageDialog.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "formats/IniFile.h"
#include "settings/SettingsKeys.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

LanguageDialog::LanguageDialog(const std::string& appFolder, formats::IniFile settingsFile,
                               const lang::MessageCatalog& catalog, const QString& menuCaption, QWidget* parent)
    : QDialog(parent),
      settingsFile_(std::move(settingsFile)),
      files_(lang::ListLanguageFiles(settingsFile_.Files(), appFolder)) {
  setObjectName("frmOptions");
  setWindowTitle(menuCaption.isEmpty() ? QString("Options") : DialogTitleOf(menuCaption));
  auto* layout = new QVBoxLayout(this);
  QLabel* label = AddNamedLabel(*layout, *this, "lblLng", "Language:");
  choices_ = new QComboBox(this);
  choices_->setObjectName("cmbLngSel");
  label->setBuddy(choices_);
  // Before any choice, the desktop's own language is offered first.
  const QLocale desktop = QLocale::system();
  const QStringList desktopNames = {desktop.nativeLanguageName(), QLocale::languageToString(desktop.language())};
  for (const lang::LanguageFile& file : files_) {
    const QString name = ToQString(file.languageName);
    choices_->addItem(name.isEmpty() ? QFileInfo(ToQString(file.path)).completeBaseName() : name);
    const bool current =
        catalog.FilePath().empty() ? desktopNames.contains(name, Qt::CaseInsensitive) : file.path == catalog.FilePath();
    if (current) choices_->setCurrentIndex(choices_->count() - 1);
  }
  layout->addWidget(choices_);
  QPushButton* ok = AddOkCancelRow(*this, *layout);
  connect(ok, &QPushButton::clicked, this, [this] {
    Store();
    accept();
  });
  LocaliseDialog(*this, catalog, parent, QString());
}

void LanguageDialog::Store() {
  const int index = choices_->currentIndex();
  if (index < 0 || index >= static_cast<int>(files_.size())) return;
  chosen_ = files_[index].path;
  settingsFile_.Write(settings::kSettingsSection, settings::kLanguageKey, files_[index].languageName);
}

}  // namespace nomra::ui
