#include "ui/common/DialogTexts.h"

#include <QAction>
#include <QComboBox>
#include <QWidget>

#include "ui/common/FormNames.h"
#include "ui/common/QtLocalisation.h"

namespace nomra::ui {

void LocaliseDialog(QWidget& dialog, const lang::MessageCatalog& catalog, const QWidget* mainWindow,
                    const QString& appTitle) {
  lang::CaptionSources sources;
  sources.appTitle = appTitle.toStdString();
  if (mainWindow != nullptr) {
    sources.menuCaption = [mainWindow](std::string_view name) {
      const auto* action = mainWindow->findChild<QAction*>(QString::fromUtf8(name.data(), static_cast<int>(name.size())));
      return action == nullptr ? std::string() : action->text().toStdString();
    };
    if (const auto* scope = mainWindow->findChild<QComboBox*>(kApplyScopeListName)) {
      sources.applyScopeText = scope->currentText().toStdString();
    }
  }
  LocaliseWidget(dialog, QString(), catalog, sources);
}

QString DialogTitleOf(const QString& menuCaption) { return QString(menuCaption).remove('&').remove("..."); }

}  // namespace nomra::ui
