#include "ui/fileops/FileOperationCommands.h"

#include "fileops/DeleteListFiles.h"
#include "fileops/PermissionText.h"
#include "lang/MessageKeys.h"
#include "ui/fileops/FileOperationProgress.h"
#include "ui/fileops/FrmSelActionWindow.h"
#include "ui/fileops/PropertiesDialog.h"

namespace nomra::ui {

bool RunSelAction(QWidget* parent, platform::Platform& system, const rename::ActionContext& context,
                  core::RowCommitter* committer, const lang::MessageCatalog& catalog, const QString& tag) {
  FrmSelActionWindow dialog(tag, context, committer, catalog, system, parent);
  return dialog.exec() == QDialog::Accepted;
}

bool DeleteListFiles(QWidget* parent, platform::Platform& system, const core::ListContext& context, bool expertMode,
                     const lang::MessageCatalog& catalog, bool toTrash) {
  FileOperationProgress progress(catalog, parent);
  fileops::OperationServices services{system.Files(), system.DesktopTrash(), context.frontEnd, progress};
  return fileops::DeleteListFiles(context, expertMode, toTrash, services);
}

void ShowProperties(QWidget* parent, platform::FileSystem& fileSystem, core::FrontEnd& frontEnd,
                    const lang::MessageCatalog& catalog, const std::string& path) {
  const platform::FileProperties properties = fileSystem.Properties(path);
  if (properties.type == platform::PropertyType::Missing) {
    frontEnd.Ask({lang::kSourceMissing, lang::kAttentionCaption, core::MessageStyle::OkStop, {path}});
    return;
  }
  PropertiesDialog dialog(properties, catalog, parent);
  dialog.exec();
}

}  // namespace nomra::ui
