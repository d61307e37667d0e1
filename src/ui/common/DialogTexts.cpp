#include "ui/common/DialogTexts.h"

#include <QAction>
#include <QComboBox>
#include <QWidget>

#include "ui/common/FormNames.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

void LocaliseDialog(QWidget& dialog, const lang::MessageCatalog& catalog, const QWidget* mainWindow,
                    const QString& appTitle) {
  lang::CaptionSources sources;
  sources.appTitle = ToEngineText(appTitle);
  if (mainWindow != nullptr) {
    sources.menuCaption = [mainWindow](std::string_view name) {
      const auto* action = mainWindow->findChild<QAction*>(ToQString(name));
      return action == nullptr ? std::string() : ToEngineText(action->text());
    };
    if (const auto* scope = mainWindow->findChild<QComboBox*>(kApplyScopeListName)) {
      sources.applyScopeText = ToEngineText(scope->currentText());
    }
  }
  LocaliseWidget(dialog, QString(), catalog, sources);
}

QString DialogTitleOf(const QString& menuCaption) { return QString(menuCaption).remove('&').remove("..."); }

}  // namespace nomra::ui
