#include "ui/common/ButtonIcons.h"

#include <QHash>

// Outside any namespace, as the resource macro needs.
static void InitialiseIconResources() { Q_INIT_RESOURCE(icons); }

namespace nomra::ui {

void RegisterOwnPictures() {
  static const bool registered = (InitialiseIconResources(), true);
  (void)registered;
}

QString ThemeIconName(const QString& key) {
  static const QHash<QString, QString> names = {
      {"OpenFile", "document-open"},
      {"DelList", "edit-clear"},
      {"TakeChanges", "document-save"},
      {"RejectChanges", "edit-delete"},
      {"Undo", "edit-undo"},
      {"ImgPreview", "image-x-generic"},
      {"Options", "preferences-system"},
      {"Properties", "document-properties"},
      {"CancelAction", "process-stop"},
      {"StartRecordScript", "media-record"},
      {"StopRecordScript", "media-playback-stop"},
      {"StartRunScript", "media-playback-start"},
      {"RunSelectedScript", "system-run"},
      {"Add", "list-add"},
      {"FolderUp", "go-up"},
  };
  return names.value(key);
}

QIcon ButtonIcon(const QString& key) {
  RegisterOwnPictures();
  const QIcon own(QStringLiteral(":/icons/%1.svg").arg(key));
  const QString themeName = ThemeIconName(key);
  if (themeName.isEmpty()) return own;
  return QIcon::fromTheme(themeName, own);
}

}  // namespace nomra::ui
