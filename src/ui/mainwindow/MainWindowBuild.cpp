// Builds the widgets, menus and tool bars of the main window. Design texts
// are plain English so that the window is usable without a language file;
// the language file replaces them by the controls' names.
#include <QActionGroup>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <iterator>

#include "shell/CommandState.h"
#include "ui/common/ButtonIcons.h"
#include "ui/common/FormNames.h"
#include "ui/common/NamedControls.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/IconCellDelegate.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/mainwindow/ThumbnailCache.h"
#include "ui/rename/ActionWindows.h"

namespace nomra::ui {

namespace {

// The design captions of the rename commands mnuRename01 to mnuRename10, in
// menu order.
constexpr const char* kRenameTexts[] = {
    "&Numbering...",
    "&Renumbering...",
    "File &extension...",
    "Upper and &lower case...",
    "&Prefix and suffix...",
    "Replace and re&move...",
    "&Insert...",
    "Mo&ve part of name...",
    "&Date and time...",
    "&Trim...",
};
static_assert(std::size(kRenameTexts) == kActionMenuEntries);

// The design captions of mnuDelList1 to mnuDelList5, which the entries of the
// button DelList show too.
constexpr const char* kDelListTexts[] = {
    "&All files",
    "&Selected files",
    "&Unselected files",
    "Files &with pending changes",
    "Files with&out pending changes",
};
static_assert(std::size(kDelListTexts) == kDelListEntries);

// Tool tips of the main bar before any language file speaks.
QString DesignToolTip(const QString& key) {
  static const QHash<QString, QString> tips = {
      {kOpenFileKey, "Open files"},
      {kDelListKey, "Remove from list"},
      {kTakeChangesKey, "Take changes"},
      {kRejectChangesKey, "Reject changes"},
      {kUndoKey, "Undo"},
      {"Rename01", "Numbering"},
      {"Rename02", "Renumbering"},
      {"Rename03", "File extension"},
      {"Rename04", "Upper and lower case"},
      {"Rename05", "Prefix and suffix"},
      {"Rename06", "Replace and remove"},
      {"Rename07", "Insert"},
      {"Rename08", "Move part of name"},
      {"Rename09", "Date and time"},
      {"Rename10", "Trim"},
      {kNameStructureKey, "Name structure"},
      {kImgPreviewKey, "Image preview"},
      {kOptionsKey, "Options"},
      {kEditManKey, "Edit name"},
      {kPropertiesKey, "Properties"},
      {kCancelActionKey, "Cancel"},
      {kStartRecordKey, "Record script"},
      {kStopRecordKey, "Stop recording"},
      {kStartRunKey, "Run script"},
      {kRunSelectedKey, "Run selected script"},
  };
  return tips.value(key, key);
}

}  // namespace

QAction* MainWindow::AddMenuAction(QMenu& menu, const QString& name, const QString& designText,
                                   const QKeySequence& shortcut) {
  auto* action = new QAction(designText, this);
  action->setObjectName(name);
  if (!shortcut.isEmpty()) action->setShortcut(shortcut);
  menu.addAction(action);
  menuActions_.insert(name, action);
  return action;
}

QMenu* MainWindow::AddSubMenu(QMenu& parent, const QString& name, const QString& designText) {
  auto* menu = new QMenu(designText, this);
  menu->menuAction()->setObjectName(name);
  menuActions_.insert(name, menu->menuAction());
  parent.addMenu(menu);
  return menu;
}

QAction* MainWindow::AddToolButton(QToolBar& bar, const QString& key, const QString& designTip) {
  auto* action = new QAction(ButtonIcon(key), designTip, &bar);
  action->setProperty(kKeyProperty, key);
  action->setProperty(kStyleProperty, lang::kButtonStyleDefault);
  action->setToolTip(designTip);
  bar.addAction(action);
  toolActions_.insert(ToolName(bar.objectName(), key), action);
  return action;
}

QAction* MainWindow::ToolAction(const QString& bar, const QString& key) const {
  return toolActions_.value(ToolName(bar, key));
}

void MainWindow::BuildMenus() {
  QMenuBar* bar = menuBar();
  auto topMenu = [&](const QString& name, const QString& text) {
    auto* menu = new QMenu(text, this);
    menu->menuAction()->setObjectName(name);
    menuActions_.insert(name, menu->menuAction());
    bar->addMenu(menu);
    return menu;
  };

  QMenu* file = topMenu("mnuFile", "&File");
  AddMenuAction(*file, kOpenFileEntry, "&Open files...", QKeySequence::Open);
  AddMenuAction(*file, kOpenFromListEntry, "Open from &playlist...");
  file->addSeparator();
  QMenu* take = AddSubMenu(*file, kTakeChangesMenu, "&Take changes");
  AddMenuAction(*take, MenuEntryOf(EntryKey(kTakeChangesKey, 1)), "&Take changes",
                QKeySequence(Qt::CTRL | Qt::Key_Return));
  AddMenuAction(*take, MenuEntryOf(EntryKey(kTakeChangesKey, 2)), "Take changes and &copy or move files...");
  AddMenuAction(*file, kRejectChangesEntry, "&Reject changes", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
  AddMenuAction(*file, kHistoryEntry, "Rename &history...");
  file->addSeparator();
  AddMenuAction(*file, kEndEntry, "E&xit", QKeySequence::Quit);

  QMenu* edit = topMenu(kEditMenu, "&Edit");
  AddMenuAction(*edit, kUndoEntry, "&Undo", QKeySequence::Undo);
  AddMenuAction(*edit, kEditManEntry, "&Edit name...", QKeySequence(Qt::Key_F2));
  edit->addSeparator();
  AddMenuAction(*edit, kCopyOldNameEntry, "Copy &old name");
  AddMenuAction(*edit, kCopyNewNameEntry, "Copy &new name", QKeySequence::Copy);
  AddMenuAction(*edit, kCopyPathEntry, "Copy full &path", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
  edit->addSeparator();
  QMenu* remove = AddSubMenu(*edit, kDelListMenu, "&Remove from list");
  for (int entry = 1; entry <= kDelListEntries; ++entry) {
    AddMenuAction(*remove, MenuEntryOf(EntryKey(kDelListKey, entry)), kDelListTexts[entry - 1]);
  }
  // The removal of the selected files, which the pop-up menu offers too.
  QAction* removeSelected = menuActions_.value(MenuEntryOf(EntryKey(kDelListKey, 2)));
  removeSelected->setShortcut(QKeySequence::Delete);
  edit->addSeparator();
  AddMenuAction(*edit, kCopyFilesEntry, "&Copy files to...");
  AddMenuAction(*edit, kMoveFilesEntry, "&Move files to...");
  AddMenuAction(*edit, kDeleteToTrashEntry, "&Delete files");
  AddMenuAction(*edit, kDeleteEntry, "Delete files &permanently");

  QMenu* rename = topMenu(kRenameMenu, "&Rename");
  for (int stepType = 1; stepType <= kActionMenuEntries; ++stepType) {
    AddMenuAction(*rename, RenameMenuEntry(stepType), kRenameTexts[stepType - 1],
                  QKeySequence(Qt::CTRL | (Qt::Key_0 + stepType % 10)));
  }
  AddMenuAction(*rename, kNameStructureEntry, "Name &structure...");
  rename->addSeparator();
  AddMenuAction(*rename, kNewNamesFromFileEntry, "New names from a &file...");

  QMenu* view = topMenu("mnuView", "&View");
  BuildViewMenu(*view);

  QMenu* script = topMenu(kScriptMenu, "&Script");
  AddMenuAction(*script, kStartRecordEntry, "&Record script");
  AddMenuAction(*script, kStopRecordEntry, "&Stop recording");
  AddMenuAction(*script, kStartRunEntry, "R&un script...");
  AddMenuAction(*script, kRunSelectedEntry, "Run &selected script");

  QMenu* special = topMenu(kSpecialMenu, "S&pecial");
  AddMenuAction(*special, kFileListEntry, "File &list...");
  AddMenuAction(*special, kMp3ListEntry, "&MP3 list...");
  AddMenuAction(*special, kExifListEntry, "&EXIF list...");
  special->addSeparator();
  AddMenuAction(*special, kId3Entry, "&ID3 tags...");
  AddMenuAction(*special, kFileAttributesEntry, "File &attributes and dates...");
  AddMenuAction(*special, kFindDuplicatesEntry, "Find &duplicates...");

  QMenu* tools = topMenu("mnuTools", "&Tools");
  AddMenuAction(*tools, kSyncFoldersEntry, "&Compare and synchronise folders...");
  tools->addSeparator();
  AddMenuAction(*tools, kOptionsEntry, "&Options...", QKeySequence::Preferences);
  AddMenuAction(*tools, kExpertsEntry, "&Expert mode");
  AddMenuAction(*tools, kUpdateEntry, "Check for &updates...");

  QMenu* help = topMenu("mnuHelp", "&Help");
  AddMenuAction(*help, kHelpContentEntry, "&Contents", QKeySequence::HelpContents);
  AddMenuAction(*help, kInfoEntry, "&About Nomra...");

  popup_ = new QMenu(this);
  popup_->setObjectName("mnuPopup1");
  popup_->addAction(menuActions_.value(kEditManEntry));
  popup_->addSeparator();
  popup_->addAction(menuActions_.value(kCopyOldNameEntry));
  popup_->addAction(menuActions_.value(kCopyNewNameEntry));
  popup_->addAction(menuActions_.value(kCopyPathEntry));
  popup_->addSeparator();
  AddMenuAction(*popup_, kId3PopupEntry, "&ID3 tags...");
  AddMenuAction(*popup_, kId3AllPopupEntry, "ID3 tags of &all files...");
  popup_->addSeparator();
  popup_->addAction(removeSelected);
}

void MainWindow::BuildViewMenu(QMenu& menu) {
  viewGroup_ = new QActionGroup(this);
  for (const auto& [name, text] :
       {std::pair{kViewDetailsEntry, "&Details"}, std::pair{kViewDetailsIconsEntry, "Details with &pictures"},
        std::pair{kViewIconsEntry, "&Pictures"}}) {
    QAction* action = AddMenuAction(menu, name, text);
    action->setCheckable(true);
    viewGroup_->addAction(action);
  }
  iconSizeMenu_ = AddSubMenu(menu, "mnuViewIconSizeMain", "Picture &size");
  QMenu* columns = AddSubMenu(menu, kColumnFamily, "&Columns");
  for (int entry = 1; entry <= kColumnEntries; ++entry) {
    QAction* action = AddMenuAction(*columns, ControlArrayMember(kColumnFamily, entry), QString::number(entry));
    action->setCheckable(true);
    action->setChecked(true);
  }
  QMenu* sorting = AddSubMenu(menu, "mnuViewSorting", "&Sorting");
  AddMenuAction(*sorting, kUnsortedEntry, "&Unsorted")->setCheckable(true);
  sorting->addSeparator();
  for (int entry = 1; entry <= kSortEntries; ++entry) {
    AddMenuAction(*sorting, ControlArrayMember(kSortFamily, entry), QString::number(entry))->setCheckable(true);
  }
  menu.addSeparator();
  AddMenuAction(menu, kGridLinesEntry, "&Grid lines")->setCheckable(true);
  AddMenuAction(menu, kImgPreviewEntry, "&Image preview")->setCheckable(true);
  menu.addSeparator();
  QMenu* bars = AddSubMenu(menu, "mnuShowBtnBars", "&Tool bars");
  AddMenuAction(*bars, kShowMainBarEntry, "&Main tool bar")->setCheckable(true);
  AddMenuAction(*bars, kShowScriptBarEntry, "&Script tool bar")->setCheckable(true);
  AddMenuAction(menu, kShowSplashEntry, "Start &window")->setCheckable(true);
  AddMenuAction(menu, kShowAssistantEntry, "&Assistant")->setCheckable(true);
}

void MainWindow::BuildToolBars() {
  mainBar_ = new QToolBar(kMainBar, this);
  mainBar_->setObjectName(kMainBar);
  addToolBar(Qt::TopToolBarArea, mainBar_);
  for (const std::string& key : shell::MainToolBarKeys()) {
    if (key.empty()) {
      mainBar_->addSeparator();
      continue;
    }
    const QString name = ToQString(key);
    AddToolButton(*mainBar_, name, DesignToolTip(name));
  }
  auto addDropDown = [&](const QString& key, const QStringList& entries, const QStringList& designTexts) {
    QAction* button = ToolAction(kMainBar, key);
    button->setProperty(kStyleProperty, lang::kButtonStyleDropDown);
    auto* menu = new QMenu(this);
    for (int i = 0; i < entries.size(); ++i) {
      QAction* entry = menu->addAction(designTexts[i]);
      entry->setProperty(kKeyProperty, entries[i]);
    }
    button->setMenu(menu);
    if (auto* tool = qobject_cast<QToolButton*>(mainBar_->widgetForAction(button))) {
      tool->setPopupMode(QToolButton::MenuButtonPopup);
    }
  };
  addDropDown(kOpenFileKey, {EntryKey(kOpenFileKey, 1), EntryKey(kOpenFileKey, 2)},
              {"System open dialog", "Open dialog with filters"});
  QStringList delEntries, delTexts;
  for (int entry = 1; entry <= kDelListEntries; ++entry) {
    delEntries << EntryKey(kDelListKey, entry);
    delTexts << QString(kDelListTexts[entry - 1]).remove('&');
  }
  addDropDown(kDelListKey, delEntries, delTexts);
  addDropDown(kTakeChangesKey, {EntryKey(kTakeChangesKey, 1), EntryKey(kTakeChangesKey, 2)},
              {"Take changes", "Take changes and copy or move files"});

  leftBar_ = new QToolBar(kLeftBar, this);
  leftBar_->setObjectName(kLeftBar);
  leftBar_->setOrientation(Qt::Vertical);
  addToolBar(Qt::LeftToolBarArea, leftBar_);
  for (const char* key : {kEditManKey, kDelListKey, kPropertiesKey, kCancelActionKey}) {
    AddToolButton(*leftBar_, key, DesignToolTip(key));
  }

  scriptBar_ = new QToolBar(kScriptBar, this);
  scriptBar_->setObjectName(kScriptBar);
  addToolBar(Qt::TopToolBarArea, scriptBar_);
  for (const char* key : {kStartRecordKey, kStopRecordKey, kStartRunKey, kRunSelectedKey}) {
    AddToolButton(*scriptBar_, key, DesignToolTip(key));
  }
  QAction* runSelected = ToolAction(kScriptBar, kRunSelectedKey);
  runSelected->setProperty(kStyleProperty, lang::kButtonStyleDropDown);
  runSelected->setMenu(new QMenu(this));
  auto* frame = new QFrame(scriptBar_);
  frame->setObjectName("frameSelectedScript");
  auto* frameLayout = new QHBoxLayout(frame);
  frameLayout->setContentsMargins(6, 0, 6, 0);
  selectedScript_ = new QLabel(frame);
  selectedScript_->setObjectName("lblSelectedScript");
  frameLayout->addWidget(selectedScript_);
  scriptBar_->addWidget(frame);
}

void MainWindow::BuildCentral() {
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(4, 4, 4, 4);

  auto* scopeRow = new QHBoxLayout;
  QLabel* scopeLabel = AddNamedLabel(*scopeRow, *central, "lblApplyTo", "Apply actions to:");
  applyTo_ = new QComboBox(central);
  applyTo_->setObjectName(kApplyScopeListName);
  scopeLabel->setBuddy(applyTo_);
  scopeRow->addWidget(applyTo_);
  scopeRow->addStretch(1);
  layout->addLayout(scopeRow);

  listModel_ = new FileListModel(state_.list, *thumbnails_, this);
  views_ = new QStackedWidget(central);
  details_ = new QTableView(views_);
  details_->setObjectName("lstFilesDetails");
  details_->setModel(listModel_);
  details_->setSelectionBehavior(QAbstractItemView::SelectRows);
  details_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  details_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  details_->verticalHeader()->hide();
  // Fixed row heights keep 100,000 rows as cheap to scroll as 100.
  details_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  details_->horizontalHeader()->setSectionsClickable(true);
  details_->horizontalHeader()->setHighlightSections(false);
  details_->horizontalHeader()->setStretchLastSection(false);
  details_->setWordWrap(false);
  details_->setShowGrid(false);
  details_->setDragEnabled(true);
  details_->setAcceptDrops(true);
  details_->setDropIndicatorShown(true);
  details_->setDragDropMode(QAbstractItemView::DragDrop);
  details_->setDefaultDropAction(Qt::MoveAction);
  details_->setContextMenuPolicy(Qt::CustomContextMenu);
  views_->addWidget(details_);

  icons_ = new QListView(views_);
  icons_->setObjectName("lstFilesIcons");
  icons_->setModel(listModel_);
  icons_->setSelectionModel(details_->selectionModel());
  icons_->setViewMode(QListView::IconMode);
  icons_->setMovement(QListView::Free);
  icons_->setResizeMode(QListView::Adjust);
  icons_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  icons_->setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
  // Every cell has the grid's size, so 100,000 pictures lay out without
  // measuring each name, and long names still wrap onto three lines.
  iconCells_ = new IconCellDelegate(icons_);
  icons_->setItemDelegate(iconCells_);
  icons_->setUniformItemSizes(true);
  icons_->setTextElideMode(Qt::ElideMiddle);
  icons_->setWordWrap(true);
  icons_->setAcceptDrops(true);
  icons_->setDragEnabled(true);
  icons_->setContextMenuPolicy(Qt::CustomContextMenu);
  icons_->viewport()->installEventFilter(this);
  views_->addWidget(icons_);
  layout->addWidget(views_, 1);

  auto* detail = new QFrame(central);
  detail->setObjectName("frameDetails");
  detail->setFrameShape(QFrame::StyledPanel);
  auto* grid = new QGridLayout(detail);
  auto* heading = new QLabel("Selected file", detail);
  heading->setObjectName("lbl1");
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  grid->addWidget(heading, 0, 0, 1, 2);
  for (int i = 0; i < kDetailFields; ++i) {
    detailCaptions_[i] = new QLabel(detail);
    detailCaptions_[i]->setObjectName(QString("lblDetail%1").arg(i + 1));
    detailFields_[i] = new QLabel(detail);
    detailFields_[i]->setObjectName(ControlArrayMember("lbl2", i + 1));
    detailFields_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(detailCaptions_[i], i + 1, 0);
    grid->addWidget(detailFields_[i], i + 1, 1);
  }
  grid->setColumnStretch(1, 1);
  picture_ = new QLabel(detail);
  picture_->setObjectName("Picture1");
  picture_->setFixedSize(72, 72);
  picture_->setAlignment(Qt::AlignCenter);
  grid->addWidget(picture_, 0, 2, 4, 1);
  layout->addWidget(detail);

  setCentralWidget(central);
}

void MainWindow::BuildStatusBar() {
  status_ = new QLabel(this);
  status_->setObjectName("Status");
  statusBar()->addWidget(status_, 1);
}

}  // namespace nomra::ui
