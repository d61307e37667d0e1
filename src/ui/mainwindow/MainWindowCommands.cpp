// What each key, menu entry and list event of the main window runs.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QToolBar>
#include <QUrl>

#include <utility>

#include "base/NumberText.h"
#include "commit/TakeChanges.h"
#include "core/ManualEdit.h"
#include "core/SortFileList.h"
#include "formats/IniFile.h"
#include "settings/SettingsKeys.h"
#include "shell/WindowPlacement.h"
#include "ui/common/FrmInfoWindow.h"
#include "ui/common/LanguageDialog.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"
#include "ui/fileops/FileOperationCommands.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/FrmEditManWindow.h"
#include "ui/mainwindow/FrmNotRenamedWindow.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/mainwindow/ThumbnailCache.h"

namespace nomra::ui {

namespace {

// Twelve digits, as the list's hidden sort texts are.
std::string Padded(int value) { return base::FormatPadded(static_cast<std::uint64_t>(std::max(value, 0)), 12); }

}  // namespace

// Each menu entry and tool button runs what the dispatch tables give its name.
void MainWindow::ConnectCommands() {
  for (QAction* action : std::as_const(menuActions_)) ConnectMenuEntry(*action);
  for (auto it = toolActions_.constBegin(); it != toolActions_.constEnd(); ++it) {
    const QString bar = it.key().section(QLatin1Char('/'), 0, 0);
    ConnectToolEntry(*it.value(), bar, it.value()->property(kKeyProperty).toString());
    if (QMenu* entries = it.value()->menu()) {
      for (QAction* entry : entries->actions()) ConnectToolEntry(*entry, bar, entry->property(kKeyProperty).toString());
    }
  }

  connect(applyTo_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (index >= 0) state_.applyScope = index;
  });
  connect(details_->horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int section) { OnHeadClicked(section); });
  connect(details_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected, const QItemSelection& deselected) {
            for (const QItemSelectionRange& range : deselected) {
              for (int row = range.top(); row <= range.bottom(); ++row) state_.list.Item(row + 1).selected = false;
            }
            for (const QItemSelectionRange& range : selected) {
              for (int row = range.top(); row <= range.bottom(); ++row) state_.list.Item(row + 1).selected = true;
            }
            SelectionHandler();
          });
  connect(details_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { SelectionHandler(); });
  connect(details_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { ShowPopup(details_->viewport()->mapToGlobal(at)); });
  connect(icons_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { ShowPopup(icons_->viewport()->mapToGlobal(at)); });
  connect(listModel_, &FileListModel::rowDropped, this,
          [this](int dragged, int target) { OnRowDropped(dragged, target); });
  connect(listModel_, &FileListModel::pathsDropped, this, [this](const QStringList& paths) { AddPaths(paths); });
  connect(listModel_, &FileListModel::labelEdited, this,
          [this](int position, const QString& text) { OnLabelEdited(position, text); });
  connect(thumbnails_, &ThumbnailCache::picturesLoaded, this, [this] {
    details_->viewport()->update();
    icons_->viewport()->update();
  });
}

void MainWindow::takeChanges() {
  commit::CommitServices services;
  services.showNotRenamed = [this](const commit::CommitResult& result) {
    FrmNotRenamedWindow dialog(result, catalog_, this);
    dialog.RememberChoiceIn(script_, system_.Files(), frontEnd_);
    dialog.exec();
    return dialog.Choice();
  };
  services.showSelectAction = [this] { RunSelAction(this, system_, Actions(), &committer_, catalog_, "frmSelAction"); };
  nomra::commit::takeChanges(Commit(), preview_, ToEngineText(variants_.value(kTakeChangesKey)), services);
  RefreshPreview();
}

void MainWindow::mnuEditMan() {
  const int position = SelectedPosition();
  if (position <= 0) return;
  FrmEditManWindow dialog(ToQString(state_.list.Item(position)[core::kColNewName]), catalog_, this);
  if (dialog.exec() == QDialog::Accepted && core::ApplyManualEdit(List(), position, ToEngineText(dialog.Text()))) {
    RefreshPreview();
  }
}

void MainWindow::mnuInfo() {
  FrmInfoWindow dialog(catalog_, appTitle_, version_, MenuAction(kInfoEntry)->text(), this);
  dialog.exec();
}

void MainWindow::mnuOptions() {
  LanguageDialog dialog(paths_.appFolder, SettingsFile(), catalog_, MenuAction(kOptionsEntry)->text(), this);
  if (dialog.exec() == QDialog::Accepted && !dialog.ChosenFile().empty()) UseLanguage(dialog.ChosenFile());
}

void MainWindow::mnuExperts() {
  if (options_.expertMode) return;
  const core::Message question{"MsgText33", "msgCapAttention", core::MessageStyle::YesNoWarningDefaultNo, {}};
  const core::Message warning{"MsgText34", "", core::MessageStyle::YesNoWarningDefaultNo, {}};
  const core::Answer answer =
      frontEnd_.AskText(question, frontEnd_.TextOf(question) + '\n' + frontEnd_.TextOf(warning));
  if (answer != core::Answer::Yes) return;
  options_.expertMode = true;
  ApplyExpertMode();
}

// -1 copies the full path.
void MainWindow::mnuCopyText(int column) {
  const int position = SelectedPosition();
  if (position <= 0) return;
  const core::FileEntry& row = state_.list.Item(position);
  QApplication::clipboard()->setText(ToQString(column < 0 ? row.key : row[column]));
}

void MainWindow::SetView(ListView view) {
  view_ = view;
  RefreshPreview();
}

void MainWindow::SetIconSizeEntry(int entry) {
  if (entry == iconSizeEntry_) return;
  iconSizeEntry_ = entry;
  const auto entries = iconSizeMenu_->actions();
  for (int i = 0; i < entries.size(); ++i) entries[i]->setChecked(i + 1 == entry);
  RefreshPreview();
  SettingsFile().Write(settings::kSettingsSection, settings::kPreviewImageSizeKey, entry);
}

// Entry i shows or hides head i + 1, which is Qt's column i.
void MainWindow::ToggleColumn(int entry) {
  const bool show = MenuAction(ControlArrayMember(kColumnFamily, entry))->isChecked();
  details_->setColumnHidden(entry, !show);
  if (show) details_->setColumnWidth(entry, shell::TwipsToPixels(entry == core::kColSize ? 1400 : 1800, logicalDpiX()));
}

void MainWindow::SetGridLines(bool on) { details_->setShowGrid(on); }

void MainWindow::OnHeadClicked(int section) {
  core::ClickColumnHead(state_.list, frontEnd_, section + 1);
  listModel_->Reload();
  RestoreSelection();
  UpdateSortIndicators();
}

// A row dragged by hand: from now on the hand-made order is the user's order.
void MainWindow::OnRowDropped(int dragged, int target) {
  if (dragged == target) return;
  state_.list.MoveRow(dragged, target);
  state_.list.sortKey = core::kColListPosition;
  lastSelectedIndex_ = target;
  RefreshPreview();
}

void MainWindow::OnLabelEdited(int position, const QString& text) {
  labelEditing_ = false;
  core::ApplyLabelEdit(List(), position, ToEngineText(text));
  RefreshPreview();
}

// Pictures placed freely: reading order on the screen becomes list order.
void MainWindow::OnIconLayoutChanged() {
  const int count = state_.list.Count();
  if (count == 0) return;
  const int dx = icons_->horizontalScrollBar()->value();
  const int dy = icons_->verticalScrollBar()->value();
  bool moved = false;
  std::string previous;
  for (int position = 1; position <= count; ++position) {
    const QRect place = icons_->visualRect(listModel_->index(position - 1, 0));
    core::FileEntry& row = state_.list.Item(position);
    row[core::kColSortKey] = Padded(place.top() + dy) + "x" + Padded(place.left() + dx);
    if (!previous.empty() && row[core::kColSortKey] < previous) moved = true;
    previous = row[core::kColSortKey];
  }
  if (!moved) return;
  state_.list.sortOrder = 0;
  core::SortRowsByColumn(state_.list, core::kColSortKey);
  state_.list.sortKey = core::kColListPosition;
  RefreshPreview();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == icons_->viewport() && event->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    // Let the view place the item first, then read the places.
    QMetaObject::invokeMethod(
        this, [this] { OnIconLayoutChanged(); }, Qt::QueuedConnection);
  }
  if (watched == icons_->viewport() && event->type() == QEvent::Drop) {
    QMetaObject::invokeMethod(
        this, [this] { OnIconLayoutChanged(); }, Qt::QueuedConnection);
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  QStringList paths;
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) paths << LocalFilePath(url);
  }
  if (paths.isEmpty()) return;
  event->acceptProposedAction();
  AddPaths(paths);
}

void MainWindow::ShowPopup(const QPoint& position) {
  if (!state_.list.Empty()) popup_->popup(position);
}

}  // namespace nomra::ui
