#include "ui/fileops/FileOperationCommands.h"

#include "fileops/DeleteListFiles.h"
#include "fileops/FileProperties.h"
#include "fileops/MessageKeys.h"
#include "fileops/posix/PosixOperationSystem.h"
#include "ui/fileops/FileOperationProgress.h"
#include "ui/fileops/FrmSelAction.h"
#include "ui/fileops/PropertiesDialog.h"

namespace nomra::ui {

bool RunSelAction(QWidget* parent, MainModel& model, const lang::MessageCatalog& catalog, const QString& tag) {
  fileops::PosixOperationSystem system;
  FrmSelAction dialog(tag, model, catalog, system, parent);
  return dialog.exec() == QDialog::Accepted;
}

bool DeleteListFiles(QWidget* parent, MainModel& model, const lang::MessageCatalog& catalog, bool toTrash) {
  fileops::PosixOperationSystem system;
  FileOperationProgress progress(catalog, parent);
  fileops::OperationServices services{system, model.frontEnd, progress};
  return fileops::DeleteListFiles(model, toTrash, services);
}

void ShowProperties(QWidget* parent, FrontEnd& frontEnd, const lang::MessageCatalog& catalog,
                    const std::string& path) {
  const fileops::FileProperties properties = fileops::ReadFileProperties(path);
  if (properties.type == fileops::PropertyType::Missing) {
    frontEnd.Ask({fileops::kSourceMissing, fileops::kAttentionCaption, MessageStyle::OkStop, {path}});
    return;
  }
  PropertiesDialog dialog(properties, catalog, parent);
  dialog.exec();
}

}  // namespace nomra::ui
