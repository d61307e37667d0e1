// The folder Nomra's own open dialog shows: the locations, the rows of a
// folder, the selection, and what cmdOpen stages.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include "base/Paths.h"
#include "core/BusyPointer.h"
#include "formats/IniFile.h"
#include "open/FolderRows.h"
#include "open/OpenCommand.h"
#include "open/StagedFiles.h"
#include "settings/SettingsKeys.h"
#include "ui/common/FormNames.h"
#include "ui/common/TextConversion.h"
#include "ui/open/FrmOpenWindow.h"
#include "ui/open/OpenLocations.h"

namespace nomra::ui {

namespace {

constexpr char kRootTextKey[] = "DrvSelRoot";
constexpr char kRootKey[] = "*AP*";

// The rows carry their keys as the bytes themselves: no text conversion
// takes part, so a key that is not UTF-8 comes back whole.
QByteArray Bytes(const std::string& key) { return QByteArray(key.data(), static_cast<qsizetype>(key.size())); }

std::string FromBytes(const QVariant& value) {
  const QByteArray bytes = value.toByteArray();
  return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

}  // namespace

void FrmOpenWindow::setPath(const std::string& path) {
  const std::string folder = open::NearestExistingFolder(services_.fileSystem, path);
  atLocations_ = folder.empty();
  folder_ = folder;
  path_->setText(ToQString(folder_));
  FillLocations();
  Add2lstFiles();
}

void FrmOpenWindow::FolderUp() {
  if (atLocations_) return;
  setPath(open::ParentFolder(folder_));
}

// The root row, then the places, then one row for each level of the folder
// shown, the last one open.
void FrmOpenWindow::FillLocations() {
  const QSignalBlocker quiet(locations_);
  locations_->clear();
  const std::string rootText = services_.catalog.GetText(kOpenDialogName, kRootTextKey);
  locations_->addItem(icons_.Computer(), rootText.empty() ? QString("Computer") : ToQString(rootText),
                      QByteArray(kRootKey));
  for (const Location& place : ListLocations()) {
    const QIcon icon = place.kind == LocationKind::Home ? icons_.Home() : icons_.Drive();
    locations_->addItem(icon, place.text, Bytes(ToEngineText(place.path)));
  }
  if (atLocations_) {
    locations_->setCurrentIndex(0);
    return;
  }
  std::vector<std::string> levels;
  for (std::string level = folder_; !level.empty(); level = open::ParentFolder(level))
    levels.insert(levels.begin(), level);
  for (std::size_t depth = 0; depth < levels.size(); ++depth) {
    const std::string& level = levels[depth];
    const std::string name = level == "/" ? level : base::NameOf(level);
    const bool last = depth + 1 == levels.size();
    locations_->addItem(last ? icons_.OpenFolder() : icons_.ClosedFolder(), ToQString(name), Bytes(level));
    locations_->setItemData(locations_->count() - 1, static_cast<int>(depth + 1), kDepthRole);
  }
  locations_->setCurrentIndex(locations_->count() - 1);
}

void FrmOpenWindow::OnLocationChosen(int index) {
  const std::string key = FromBytes(locations_->itemData(index));
  setPath(key == kRootKey ? std::string() : key);
}

void FrmOpenWindow::AddRow(const QIcon& icon, const QString& text, const std::string& key, bool folder) {
  auto* item = new QListWidgetItem(icon, text, rows_);
  item->setData(kKeyRole, Bytes(key));
  item->setData(kFolderRole, folder);
}

// Folders first, then the files under the pattern; at the root the places.
void FrmOpenWindow::Add2lstFiles() {
  {
    const QSignalBlocker quiet(rows_);
    rows_->clear();
    if (atLocations_) {
      for (const Location& place : ListLocations()) {
        AddRow(place.kind == LocationKind::Home ? icons_.Home() : icons_.Drive(), place.text, ToEngineText(place.path),
               true);
      }
    } else {
      const std::string shown = base::AddBackslash(folder_);
      for (const open::FolderRow& row :
           open::ListFolderRows(services_.fileSystem, folder_, open::CheckedPattern(filters_), showHiddenFiles_)) {
        const QIcon icon = row.folder ? icons_.ClosedFolder() : icons_.ForFile(ToQString(shown + row.key));
        AddRow(icon, ToQString(row.name), row.key, row.folder);
      }
    }
  }
  OnSelectionChanged();
}

void FrmOpenWindow::OnRowActivated(QListWidgetItem* item) {
  if (item == nullptr) return;
  if (item->data(kFolderRole).toBool()) {
    setPath(FromBytes(item->data(kKeyRole)));
  } else {
    cmdOpen();
  }
}

void FrmOpenWindow::OnSelectionChanged() {
  QStringList quoted;
  for (int row = 0; row < rows_->count(); ++row) {
    const QListWidgetItem* item = rows_->item(row);
    if (item->isSelected()) quoted << '"' + item->text() + '"';
  }
  names_->setText(quoted.join(' '));
}

void FrmOpenWindow::SelectAllRows() { rows_->selectAll(); }

void FrmOpenWindow::InvertSelection() {
  QItemSelection inverted;
  for (int row = 0; row < rows_->count(); ++row) {
    if (!rows_->item(row)->isSelected()) {
      const QModelIndex index = rows_->model()->index(row, 0);
      inverted.select(index, index);
    }
  }
  rows_->selectionModel()->select(inverted, QItemSelectionModel::ClearAndSelect);
}

void FrmOpenWindow::cmdOpen() {
  core::BusyPointer busy(services_.frontEnd);
  open::FolderSelection selection;
  selection.folder = folder_;
  for (int row = 0; row < rows_->count(); ++row) {
    const QListWidgetItem* item = rows_->item(row);
    const std::string key = FromBytes(item->data(kKeyRole));
    if (item->data(kFolderRole).toBool()) {
      if (item->isSelected()) selection.selectedFolders.push_back(key);
      continue;
    }
    selection.listedFiles.push_back(key);
    if (item->isSelected()) selection.selectedFiles.push_back(key);
  }
  // The locations are no folder whose files could be taken.
  selection.allFiles = !atLocations_ && allFiles_->isChecked();
  selection.subFolders = !atLocations_ && subFolders_->isEnabled() && subFolders_->isChecked();
  selection.pattern = open::CheckedPattern(filters_);
  selection.showHiddenFiles = showHiddenFiles_;
  staged_ = open::StageFiles(selection, services_.fileSystem);

  open::WritePowerFilters(filters_, services_.settingsFile);
  accept();
  if (!staged_.empty() && !atLocations_) {
    open::RememberLastPath(services_.settingsFile, folder_);
  }
}

}  // namespace nomra::ui
