#include "ui/mainwindow/MainWindow.h"

#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QImageReader>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStackedWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

#include <cstdio>

#include "base/CaseMap.h"
#include "base/NameSplit.h"
#include "base/NumberText.h"
#include "commit/CommitRecovery.h"
#include "core/AddFile.h"
#include "core/SortFileList.h"
#include "formats/IniFile.h"
#include "lang/LanguageKeys.h"
#include "script/ScriptRecording.h"
#include "settings/SettingsKeys.h"
#include "shell/CommandState.h"
#include "shell/StatusTextsOfLanguage.h"
#include "shell/WindowPlacement.h"
#include "ui/common/ButtonIcons.h"
#include "ui/common/FormNames.h"
#include "ui/common/ProductLabels.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/FrmStartWindow.h"
#include "ui/mainwindow/IconCellDelegate.h"
#include "ui/mainwindow/ThumbnailCache.h"
#include "ui/rename/ActionWindows.h"

namespace nomra::ui {

namespace {

// The controls the refresh switches off before it decides what to switch on.
const QStringList& ManagedMenuNames() {
  static const QStringList names = {kDelListMenu, kEditMenu,   kFindDuplicatesEntry, kSpecialMenu, kRejectChangesEntry,
                                    kRenameMenu,  kScriptMenu, kTakeChangesMenu,     kUndoEntry};
  return names;
}

// Commands whose dialogs come with later work: visible, never enabled, never faked.
const QStringList& CommandsNotYetBuilt() {
  static const QStringList names = {kNewNamesFromFileEntry,
                                    kFileListEntry,
                                    kMp3ListEntry,
                                    kExifListEntry,
                                    kId3Entry,
                                    kId3PopupEntry,
                                    kId3AllPopupEntry,
                                    kFileAttributesEntry,
                                    kFindDuplicatesEntry,
                                    kSyncFoldersEntry,
                                    kUpdateEntry,
                                    kHelpContentEntry,
                                    kImgPreviewEntry,
                                    kShowAssistantEntry,
                                    ToolName(kMainBar, kImgPreviewKey)};
  return names;
}

}  // namespace

MainWindow::MainWindow(Services services, QWidget* parent)
    : QMainWindow(parent),
      system_(services.system),
      exifDates_(services.exifDates),
      catalog_(services.languageFile.empty() ? lang::MessageCatalog()
                                             : lang::MessageCatalog(services.system.Files(), services.languageFile)),
      frontEnd_(catalog_, services.appTitle),
      state_(services.system.Files()),
      paths_(std::move(services.paths)),
      appTitle_(services.appTitle),
      version_(services.version) {
  RegisterOwnPictures();
  setObjectName(kMainWindowName);
  setWindowTitle(appTitle_);
  setWindowIcon(ProgramIcon());
  setAcceptDrops(true);
  for (const QString& name : CommandsNotYetBuilt()) notYetBuilt_.insert(name);
  for (int stepType = 1; stepType <= kActionMenuEntries; ++stepType) {
    if (HasActionWindow(stepType)) continue;
    notYetBuilt_.insert(RenameMenuEntry(stepType));
    notYetBuilt_.insert(ToolName(kMainBar, RenameToolKey(stepType)));
  }
  frontEnd_.SetParentWindow(this);

  thumbnails_ = new ThumbnailCache(this);
  BuildMenus();
  BuildToolBars();
  BuildCentral();
  BuildStatusBar();
  frontEnd_.SetStatusLabel(status_);
  BuildCommandTables();
  ConnectCommands();

  shell::LoadStartupSettings(paths_, {system_.Files(), frontEnd_, options_, script_});
  settings_ = shell::ReadMainWindowSettings(SettingsFile(), frontEnd_);
  LoadSettingsIntoWindow();
  ApplyExpertMode();

  // A commit cut short by a crash is set right before any file is listed.
  const commit::InterruptedCommit interrupted = commit::RecoverInterruptedCommit(system_.Files(), options_.dataFolder);
  commit::ShowUnresolved(frontEnd_, interrupted);

  if (paths_.dataFolderUsable) script::ResetScriptTemp(script_, system_.Files());
  ShowLanguageTexts();
}

MainWindow::~MainWindow() {
  // The views go before the model they show.
  delete centralWidget();
}

QAbstractItemView* MainWindow::ActiveListView() const {
  return view_ == ListView::Icons ? static_cast<QAbstractItemView*>(icons_) : details_;
}

void MainWindow::UseLanguage(const std::string& languageFile) {
  catalog_ = lang::MessageCatalog(system_.Files(), languageFile);
  // The drop-down buttons go back to their base tips, so that a language
  // without a tip of its own doesn't take the variant in as part of the base.
  for (auto it = baseToolTips_.constBegin(); it != baseToolTips_.constEnd(); ++it) {
    ToolAction(kMainBar, it.key())->setToolTip(it.value());
  }
  ShowLanguageTexts();
}

void MainWindow::ShowLanguageTexts() {
  LocaliseWidget(*this, QString(), catalog_, lang::CaptionSources{});
  setLngalt();
  // The entries are the scripts' own names, never language texts.
  FillScriptMenu();
  RefreshPreview();
}

// Texts the localisation can't put by name: column heads, status texts, the
// scope list, sort and size entries, and the tool tips of the variants.
void MainWindow::setLngalt() {
  texts_ = shell::StatusTextsOf(catalog_);
  static const char* kDesignHeads[] = {"Picture", "Path",     "Old name",  "New name",
                                       "Created", "Modified", "EXIF date", "Size"};
  QStringList heads;
  for (int column = 0; column < FileListModel::kShownColumns; ++column) {
    const std::string text = catalog_.GetText(kMainWindowName, "lstColHead0" + std::to_string(column));
    heads << (text.empty() ? QString(kDesignHeads[column]) : ToQString(text));
  }
  listModel_->SetHeaderTexts(heads);
  for (int i = 0; i < kDetailFields; ++i) detailCaptions_[i]->setText(heads[i + 1] + ':');

  const int scope = applyTo_->currentIndex();
  applyTo_->clear();
  // The scope is one of the first three removals: all, selected or unselected files.
  for (int entry = 1; entry <= 3; ++entry)
    applyTo_->addItem(MenuAction(MenuEntryOf(EntryKey(kDelListKey, entry)))->text().remove('&'));
  applyTo_->setCurrentIndex(scope < 0 ? state_.applyScope : scope);

  std::string ascending = catalog_.GetText(kMainWindowName, "mnuViewSortingAsc");
  std::string descending = catalog_.GetText(kMainWindowName, "mnuViewSortingDesc");
  if (ascending.empty()) ascending = "(ascending)";
  if (descending.empty()) descending = "(descending)";
  for (int entry = 1; entry <= kSortEntries; ++entry) {
    const QString head = heads[(entry + 1) / 2];
    const std::string& direction = entry % 2 == 1 ? ascending : descending;
    MenuAction(ControlArrayMember(kSortFamily, entry))->setText(head + ' ' + ToQString(direction));
  }
  for (int entry = 1; entry <= kColumnEntries; ++entry)
    MenuAction(ControlArrayMember(kColumnFamily, entry))->setText(heads[entry]);

  // Picture sizes: an entry exists for each numbered key with a text.
  QStringList sizes;
  for (int entry = 1;; ++entry) {
    const std::string text = catalog_.GetText(kMainWindowName, kIconSizeFamily + std::to_string(entry));
    if (text.empty()) break;
    sizes << ToQString(text);
  }
  if (sizes.isEmpty()) sizes = {"32", "48", "64", "96", "128"};
  for (const QAction* old : iconSizeMenu_->actions()) menuActions_.remove(old->objectName());
  iconSizeMenu_->clear();
  auto* group = new QActionGroup(iconSizeMenu_);
  for (int entry = 1; entry <= sizes.size(); ++entry) {
    QAction* action = iconSizeMenu_->addAction(sizes[entry - 1]);
    const QString name = ControlArrayMember(kIconSizeFamily, entry);
    action->setObjectName(name);
    action->setCheckable(true);
    action->setChecked(entry == iconSizeEntry_);
    group->addAction(action);
    menuActions_.insert(name, action);
    ConnectMenuEntry(*action);
  }
  if (iconSizeEntry_ > sizes.size()) iconSizeEntry_ = 1;

  for (const char* key : {kOpenFileKey, kDelListKey, kTakeChangesKey}) {
    baseToolTips_.insert(key, ToolAction(kMainBar, key)->toolTip());
  }
  UpdateToolTips();
}

int MainWindow::IconSize() const {
  const QAction* entry = iconSizeMenu_->actions().value(iconSizeEntry_ - 1);
  return entry == nullptr ? 0 : entry->text().remove('&').toInt();
}

// Each drop-down button shows its base tip and the variant in force; the
// variant's text is a menu caption, whose shortcut marks a tip doesn't show.
void MainWindow::UpdateToolTips() {
  for (auto it = baseToolTips_.constBegin(); it != baseToolTips_.constEnd(); ++it) {
    QAction* button = ToolAction(kMainBar, it.key());
    const QList<QAction*> entries = button->menu()->actions();
    // No variant chosen yet acts as the first one, so the tip names that.
    QString variant = variants_.value(it.key());
    if (variant.isEmpty() && !entries.isEmpty()) variant = entries.first()->property(kKeyProperty).toString();
    QString variantText;
    for (QAction* entry : entries) {
      if (entry->property(kKeyProperty).toString().compare(variant, Qt::CaseInsensitive) == 0) {
        variantText = entry->text().remove('&');
      }
    }
    button->setToolTip(it.value() + " [" + variantText + "]");
  }
}

void MainWindow::LoadSettingsIntoWindow() {
  MenuAction(kShowMainBarEntry)->setChecked(settings_.btnbarMain == 1);
  MenuAction(kShowScriptBarEntry)->setChecked(settings_.btnbarScript == 1);
  mainBar_->setVisible(settings_.btnbarMain == 1);
  scriptBar_->setVisible(settings_.btnbarScript == 1);

  const double dpi = logicalDpiX();
  for (int head = 1; head <= shell::kColumnHeadCount; ++head) {
    long width = shell::ColumnWidthToApply(head, settings_.columnWidths[head - 1]);
    // A date column without a stored width shows the whole date at any font size.
    const bool date = head - 1 == core::kColCreated || head - 1 == core::kColModified;
    if (settings_.columnWidths[head - 1] < 0 && date) {
      width =
          std::max<long>(width, shell::PixelsToTwips(fontMetrics().horizontalAdvance("0000-00-00 00:00:00") + 16, dpi));
    }
    if (width >= 0) details_->setColumnWidth(head - 1, shell::TwipsToPixels(static_cast<int>(width), dpi));
    if (width == 0) details_->setColumnHidden(head - 1, true);
  }
  const auto checks = shell::ColumnMenuChecks(settings_.columnWidths);
  for (int entry = 1; entry <= kColumnEntries; ++entry) {
    MenuAction(ControlArrayMember(kColumnFamily, entry))->setChecked(checks[entry - 1]);
  }

  if (settings_.previewSortKey >= 0) state_.list.sortKey = static_cast<int>(settings_.previewSortKey);
  if (settings_.previewSortOrder >= 0) state_.list.sortOrder = static_cast<int>(settings_.previewSortOrder);

  iconSizeEntry_ = settings_.previewImageSize > 0 ? static_cast<int>(settings_.previewImageSize) : 1;
  if (settings_.previewStyle == kDetailsIconsStyle) {
    view_ = ListView::DetailsIcons;
  } else if (settings_.previewStyle == kIconsStyle) {
    view_ = ListView::Icons;
  } else {
    view_ = ListView::Details;
  }
  MenuAction(kGridLinesEntry)->setChecked(settings_.previewGridLines);
  details_->setShowGrid(settings_.previewGridLines);

  variants_.insert(kOpenFileKey, ToQString(shell::OpenFileTagFromStyle(settings_.dialogueStyle)));
  variants_.insert(kTakeChangesKey, ToQString(shell::TakeChangesTagFromStyle(settings_.renameStyle)));
  variants_.insert(kDelListKey, QString());
  MenuAction(kShowSplashEntry)->setChecked(settings_.splash != 0);

  ApplyWindowPlacement();
}

// The stored place, kept on the screen: at least 1000 twips of the window
// stay visible on the left and top, and 500 on the right and bottom.
void MainWindow::ApplyWindowPlacement() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double dpi = screen != nullptr ? screen->logicalDotsPerInchX() : 96.0;
  const QSize screenSize = screen != nullptr ? screen->availableGeometry().size() : QSize(1280, 800);
  resize(std::min(1100, screenSize.width()), std::min(720, screenSize.height()));
  const shell::WindowPlacement placement = shell::PlaceWindow(
      settings_, shell::TwipsSize{shell::PixelsToTwips(width(), dpi), shell::PixelsToTwips(height(), dpi)},
      shell::TwipsSize{shell::PixelsToTwips(screenSize.width(), dpi), shell::PixelsToTwips(screenSize.height(), dpi)});
  int w = width(), h = height();
  if (placement.applyWidth) w = shell::TwipsToPixels(placement.width, dpi);
  if (placement.applyHeight) h = shell::TwipsToPixels(placement.height, dpi);
  resize(w, h);
  move(shell::TwipsToPixels(placement.left, dpi), shell::TwipsToPixels(placement.top, dpi));
  if (placement.applyState && placement.state == 2) setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::ApplyExpertMode() {
  for (const char* name : {kDeleteToTrashEntry, kDeleteEntry, kFileAttributesEntry}) {
    MenuAction(name)->setEnabled(options_.expertMode && !notYetBuilt_.contains(name));
  }
}

void MainWindow::RefreshPreview() {
  const std::string refreshing = catalog_.GetText(kMainWindowName, "RefreshPreview");
  if (!refreshing.empty()) status_->setText(ToQString(refreshing));
  state_.iconView = view_ == ListView::Icons;
  preview_.Refresh();

  const bool pictures = view_ != ListView::Details;
  thumbnails_->SetSize(pictures ? IconSize() : 0);
  listModel_->SetShowThumbnails(pictures);
  listModel_->SetInPlaceEditing(view_ == ListView::Icons);
  views_->setCurrentWidget(view_ == ListView::Icons ? static_cast<QWidget*>(icons_) : details_);
  details_->setColumnHidden(0, !pictures);
  details_->setIconSize(QSize(IconSize(), IconSize()));
  if (pictures) {
    const QString head = listModel_->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString();
    const int headWidth = details_->horizontalHeader()->fontMetrics().horizontalAdvance(head) + 24;
    details_->setColumnWidth(0, std::max(IconSize() + 8, headWidth));
  }
  details_->verticalHeader()->setDefaultSectionSize(
      std::max(fontMetrics().height() + 6, view_ == ListView::DetailsIcons ? IconSize() + 4 : 0));
  icons_->setIconSize(QSize(IconSize(), IconSize()));
  const QSize cell(std::max(IconSize() + 48, 104), IconSize() + 3 * fontMetrics().height() + 10);
  icons_->setGridSize(cell);
  iconCells_->SetCellSize(cell - QSize(6, 6));
  MenuAction(view_ == ListView::Details        ? kViewDetailsEntry
             : view_ == ListView::DetailsIcons ? kViewDetailsIconsEntry
                                               : kViewIconsEntry)
      ->setChecked(true);

  listModel_->Reload();
  RestoreSelection();
  UpdateSortIndicators();
  ApplyCommandStates();
  selectedScript_->setText(ToQString(window_.selectedScriptLabel));
  SelectionHandler();
}

void MainWindow::ApplyCommandStates() {
  const shell::CommandState& state = window_.commands;
  auto allowed = [&](const QString& name) { return !notYetBuilt_.contains(name); };
  for (const QString& name : ManagedMenuNames()) {
    if (QAction* action = MenuAction(name)) action->setEnabled(state.IsEnabled(ToEngineText(name)) && allowed(name));
  }
  for (auto it = menuActions_.constBegin(); it != menuActions_.constEnd(); ++it) {
    if (!ManagedMenuNames().contains(it.key()) && !allowed(it.key())) it.value()->setEnabled(false);
  }
  for (const std::string& key : shell::MainToolBarKeys()) {
    if (key.empty()) continue;
    const QString name = ToQString(key);
    ToolAction(kMainBar, name)->setEnabled(state.IsEnabled(key) && allowed(ToolName(kMainBar, name)));
  }
  for (const char* key : {kRunSelectedKey, kStartRecordKey, kStartRunKey}) {
    ToolAction(kScriptBar, key)->setEnabled(state.IsEnabled(key) && allowed(ToolName(kScriptBar, key)));
  }
  const bool recording = script_.recording != 0;
  ToolAction(kScriptBar, kStopRecordKey)->setEnabled(recording);
  MenuAction(kStartRecordEntry)->setEnabled(!recording);
  MenuAction(kStopRecordEntry)->setEnabled(recording);
  applyTo_->setEnabled(state.IsEnabled(kApplyScopeListName));
  ToolAction(kLeftBar, kCancelActionKey)->setEnabled(loading_);
  for (QAction* button : {ToolAction(kMainBar, kOpenFileKey), ToolAction(kMainBar, kTakeChangesKey)}) {
    for (QAction* entry : button->menu()->actions()) {
      entry->setEnabled(allowed(ToolName(kMainBar, entry->property(kKeyProperty).toString())));
    }
  }
  ApplyExpertMode();
}

void MainWindow::UpdateSortIndicators() {
  QHeaderView* header = details_->horizontalHeader();
  const int column = state_.list.sortKey;
  // The heads after the first show an arrow; the first has no order.
  if (column >= core::kColPath && column <= core::kColSize) {
    header->setSortIndicatorShown(true);
    header->setSortIndicator(column, state_.list.sortOrder == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
  } else {
    header->setSortIndicatorShown(false);
  }
  const int checked = core::CheckedSortMenuEntry(state_.list);
  for (int entry = 1; entry <= kSortEntries; ++entry)
    MenuAction(ControlArrayMember(kSortFamily, entry))->setChecked(entry == checked);
  MenuAction(kUnsortedEntry)->setChecked(checked == 0);
}

void MainWindow::RestoreSelection() {
  QItemSelectionModel* selection = details_->selectionModel();
  const QSignalBlocker quiet(selection);
  QItemSelection ranges;
  int runStart = -1;
  const int count = state_.list.Count();
  const int lastColumn = FileListModel::kShownColumns - 1;
  int row = 0;
  state_.list.ForEach([&](const core::FileEntry& entry) {
    if (entry.selected && runStart < 0) runStart = row;
    if (!entry.selected && runStart >= 0) {
      ranges.select(listModel_->index(runStart, 0), listModel_->index(row - 1, lastColumn));
      runStart = -1;
    }
    ++row;
  });
  if (runStart >= 0) ranges.select(listModel_->index(runStart, 0), listModel_->index(count - 1, lastColumn));
  selection->select(ranges, QItemSelectionModel::ClearAndSelect);
  if (lastSelectedIndex_ >= 1 && lastSelectedIndex_ <= count) {
    selection->setCurrentIndex(listModel_->index(lastSelectedIndex_ - 1, 0), QItemSelectionModel::NoUpdate);
  }
  details_->viewport()->update();
  icons_->viewport()->update();
}

int MainWindow::SelectedPosition() const {
  const QModelIndex current = details_->selectionModel()->currentIndex();
  if (current.isValid() && state_.list.Item(current.row() + 1).selected) return current.row() + 1;
  const QModelIndexList rows = details_->selectionModel()->selectedRows();
  return rows.isEmpty() ? 0 : rows.first().row() + 1;
}

// The detail fields follow the row at the selection.
void MainWindow::SelectionHandler() {
  for (QLabel* field : detailFields_) field->clear();
  const int position = state_.list.Empty() ? 0 : SelectedPosition();
  if (position > 0) {
    lastSelectedIndex_ = position;
    const core::FileEntry& row = state_.list.Item(position);
    detailFields_[0]->setText(ToQString(row[core::kColPath]));
    detailFields_[1]->setText(ToQString(row[core::kColOldName]));
    detailFields_[2]->setText(ToQString(row[core::kColNewName]));
    const bool mp3 = base::EqualsNoCase(base::ExtensionOnly(row.key, false), "mp3");
    for (const char* name : {kId3Entry, kId3PopupEntry})
      MenuAction(name)->setEnabled(mp3 && !notYetBuilt_.contains(name));
  }
  const bool hasRow = !detailFields_[0]->text().isEmpty();
  ToolAction(kLeftBar, kEditManKey)->setEnabled(hasRow && !loading_);
  ToolAction(kLeftBar, kDelListKey)->setEnabled(hasRow && !loading_);
  ToolAction(kLeftBar, kPropertiesKey)
      ->setEnabled(hasRow && !notYetBuilt_.contains(ToolName(kLeftBar, kPropertiesKey)));
  for (const char* name : {kEditManEntry, kCopyOldNameEntry, kCopyNewNameEntry, kCopyPathEntry}) {
    MenuAction(name)->setEnabled(hasRow);
  }
  picture_->clear();
  if (hasRow) {
    const QString path = ToQString(state_.list.Item(position).key);
    QImageReader reader(path);
    if (reader.canRead()) {
      const QSize full = reader.size();
      if (full.isValid()) reader.setScaledSize(full.scaled(picture_->size(), Qt::KeepAspectRatio));
      const QImage image = reader.read();
      if (!image.isNull()) picture_->setPixmap(QPixmap::fromImage(image));
    }
  }
}

void MainWindow::AddPaths(const QStringList& paths) {
  RunLoad([&] {
    for (const QString& path : paths) {
      // The cancel button is let through by the pump inside the loader.
      if (load_.stopAsked) break;
      // A path that vanished since it was dropped is passed over, as the
      // existence check would.
      std::string text = ToEngineText(path);
      if (system_.Files().Status(text).kind == platform::EntryKind::Missing) continue;
      // A path that fails is told, and the next one loads.
      RunShowingFault(frontEnd_, [&] { core::AddFile(load_, text); });
    }
  });
}

// While files load, the cancel button is the one control meant to be used.
void MainWindow::SetBusyLoading(bool loading) {
  loading_ = loading;
  frontEnd_.SetBusy(loading);
  menuBar()->setEnabled(!loading);
  mainBar_->setEnabled(!loading);
  scriptBar_->setEnabled(!loading);
  views_->setEnabled(!loading);
  applyTo_->setEnabled(!loading && window_.commands.IsEnabled(kApplyScopeListName));
  for (QAction* action : leftBar_->actions()) {
    if (action->property(kKeyProperty).toString() != QLatin1String(kCancelActionKey)) action->setEnabled(!loading);
  }
  ToolAction(kLeftBar, kCancelActionKey)->setEnabled(loading);
}

void MainWindow::CancelAction() { progress_.RequestStop(); }

void MainWindow::ShowAtStart() {
  show();
  if (MenuAction(kShowSplashEntry)->isChecked()) {
    FrmStartWindow start(catalog_, appTitle_, version_, this);
    start.exec();
  }
}

}  // namespace nomra::ui
