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

#include "core/CommandState.h"
#include "ui/common/ButtonIcons.h"
#include "ui/common/QtLocalisation.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/mainwindow/IconCellDelegate.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/mainwindow/ThumbnailCache.h"

namespace nomra::ui {

namespace {

struct DesignEntry {
  const char* name;
  const char* text;
};

// The design captions of the rename commands, in menu order.
constexpr DesignEntry kRenameEntries[] = {
    {"mnuRename01", "&Numbering..."},        {"mnuRename02", "&Renumbering..."},
    {"mnuRename03", "File &extension..."},   {"mnuRename04", "Upper and &lower case..."},
    {"mnuRename05", "&Prefix and suffix..."}, {"mnuRename06", "Replace and re&move..."},
    {"mnuRename07", "&Insert..."},           {"mnuRename08", "Mo&ve part of name..."},
    {"mnuRename09", "&Date and time..."},    {"mnuRename10", "&Trim..."},
    {"mnuRenameStructure", "Name &structure..."},
};

constexpr DesignEntry kDelListEntries[] = {
    {"mnuDelList1", "&All files"},
    {"mnuDelList2", "&Selected files"},
    {"mnuDelList3", "&Unselected files"},
    {"mnuDelList4", "Files &with pending changes"},
    {"mnuDelList5", "Files with&out pending changes"},
};

// Tool tips of the main bar before any language file speaks.
QString DesignToolTip(const QString& key) {
  static const QHash<QString, QString> tips = {
      {"OpenFile", "Open files"},          {"DelList", "Remove from list"},
      {"TakeChanges", "Take changes"},     {"RejectChanges", "Reject changes"},
      {"Undo", "Undo"},                    {"Rename01", "Numbering"},
      {"Rename02", "Renumbering"},         {"Rename03", "File extension"},
      {"Rename04", "Upper and lower case"}, {"Rename05", "Prefix and suffix"},
      {"Rename06", "Replace and remove"},  {"Rename07", "Insert"},
      {"Rename08", "Move part of name"},   {"Rename09", "Date and time"},
      {"Rename10", "Trim"},                {"Rename99", "Name structure"},
      {"ImgPreview", "Image preview"},     {"Options", "Options"},
      {"EditMan", "Edit name"},            {"Properties", "Properties"},
      {"CancelAction", "Cancel"},          {"StartRecordScript", "Record script"},
      {"StopRecordScript", "Stop recording"}, {"StartRunScript", "Run script"},
      {"RunSelectedScript", "Run selected script"},
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
  toolActions_.insert(bar.objectName() + QLatin1Char('/') + key, action);
  return action;
}

QAction* MainWindow::ToolAction(const QString& bar, const QString& key) const {
  return toolActions_.value(bar + QLatin1Char('/') + key);
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
  AddMenuAction(*file, "mnuOpenFile", "&Open files...", QKeySequence::Open);
  AddMenuAction(*file, "mnuOpenFromList", "Open from &playlist...");
  file->addSeparator();
  QMenu* take = AddSubMenu(*file, "mnuTakeChanges", "&Take changes");
  AddMenuAction(*take, "mnuTakeChanges1", "&Take changes", QKeySequence(Qt::CTRL | Qt::Key_Return));
  AddMenuAction(*take, "mnuTakeChanges2", "Take changes and &copy or move files...");
  AddMenuAction(*file, "mnuRejectChanges", "&Reject changes", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
  AddMenuAction(*file, "mnuHistory", "Rename &history...");
  file->addSeparator();
  AddMenuAction(*file, "mnuEnd", "E&xit", QKeySequence::Quit);

  QMenu* edit = topMenu("mnuEdit", "&Edit");
  AddMenuAction(*edit, "mnuUndo", "&Undo", QKeySequence::Undo);
  AddMenuAction(*edit, "mnuEditMan", "&Edit name...", QKeySequence(Qt::Key_F2));
  edit->addSeparator();
  AddMenuAction(*edit, "mnuCopyName1", "Copy &old name");
  AddMenuAction(*edit, "mnuCopyName2", "Copy &new name", QKeySequence::Copy);
  AddMenuAction(*edit, "mnuCopyLink", "Copy full &path", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
  edit->addSeparator();
  QMenu* remove = AddSubMenu(*edit, "mnuDelList", "&Remove from list");
  for (const DesignEntry& entry : kDelListEntries) AddMenuAction(*remove, entry.name, entry.text);
  menuActions_.value("mnuDelList2")->setShortcut(QKeySequence::Delete);
  edit->addSeparator();
  AddMenuAction(*edit, "mnuCopyFiles", "&Copy files to...");
  AddMenuAction(*edit, "mnuMoveFiles", "&Move files to...");
  AddMenuAction(*edit, "mnuDeleteFiles1", "&Delete files");
  AddMenuAction(*edit, "mnuDeleteFiles2", "Delete files &permanently");

  QMenu* rename = topMenu("mnuRename", "&Rename");
  int number = 1;
  for (const DesignEntry& entry : kRenameEntries) {
    const QKeySequence shortcut = number <= 10 ? QKeySequence(Qt::CTRL | (Qt::Key_0 + number % 10)) : QKeySequence();
    AddMenuAction(*rename, entry.name, entry.text, shortcut);
    ++number;
  }
  rename->addSeparator();
  AddMenuAction(*rename, "mnuNewNamesFromFile", "New names from a &file...");

  QMenu* view = topMenu("mnuView", "&View");
  BuildViewMenu(*view);

  QMenu* script = topMenu("mnuScript", "&Script");
  AddMenuAction(*script, "mnuStartRecordScript", "&Record script");
  AddMenuAction(*script, "mnuStopRecordScript", "&Stop recording");
  AddMenuAction(*script, "mnuStartRunScript", "R&un script...");
  AddMenuAction(*script, "mnuRunSelectedScript", "Run &selected script");

  QMenu* special = topMenu("mnuSpecial", "S&pecial");
  AddMenuAction(*special, "mnuFileList", "File &list...");
  AddMenuAction(*special, "mnuMP3List", "&MP3 list...");
  AddMenuAction(*special, "mnuEXIFList", "&EXIF list...");
  special->addSeparator();
  AddMenuAction(*special, "mnuID3Data", "&ID3 tags...");
  AddMenuAction(*special, "mnuFileAttributes", "File &attributes and dates...");
  AddMenuAction(*special, "mnuFindDuplications", "Find &duplicates...");

  QMenu* tools = topMenu("mnuTools", "&Tools");
  AddMenuAction(*tools, "mnuSyncFolders", "&Compare and synchronise folders...");
  tools->addSeparator();
  AddMenuAction(*tools, "mnuOptions", "&Options...", QKeySequence::Preferences);
  AddMenuAction(*tools, "mnuExperts", "&Expert mode");
  AddMenuAction(*tools, "mnuUpdate", "Check for &updates...");

  QMenu* help = topMenu("mnuHelp", "&Help");
  AddMenuAction(*help, "mnuHelpContent", "&Contents", QKeySequence::HelpContents);
  AddMenuAction(*help, "mnuInfo", "&About Nomra...");

  popup_ = new QMenu(this);
  popup_->setObjectName("mnuPopup1");
  popup_->addAction(menuActions_.value("mnuEditMan"));
  popup_->addSeparator();
  popup_->addAction(menuActions_.value("mnuCopyName1"));
  popup_->addAction(menuActions_.value("mnuCopyName2"));
  popup_->addAction(menuActions_.value("mnuCopyLink"));
  popup_->addSeparator();
  AddMenuAction(*popup_, "mnuID3Data1", "&ID3 tags...");
  AddMenuAction(*popup_, "mnuID3Data2", "ID3 tags of &all files...");
  popup_->addSeparator();
  popup_->addAction(menuActions_.value("mnuDelList2"));
}

void MainWindow::BuildViewMenu(QMenu& menu) {
  viewGroup_ = new QActionGroup(this);
  for (const auto& [name, text] : {std::pair{"mnuViewDetails", "&Details"},
                                   std::pair{"mnuViewDetailsIcons", "Details with &pictures"},
                                   std::pair{"mnuViewIcons", "&Pictures"}}) {
    QAction* action = AddMenuAction(menu, name, text);
    action->setCheckable(true);
    viewGroup_->addAction(action);
  }
  iconSizeMenu_ = AddSubMenu(menu, "mnuViewIconSizeMain", "Picture &size");
  QMenu* columns = AddSubMenu(menu, "mnuViewPre", "&Columns");
  for (int entry = 1; entry <= 7; ++entry) {
    QAction* action = AddMenuAction(*columns, QString("mnuViewPre(%1)").arg(entry), QString::number(entry));
    action->setCheckable(true);
    action->setChecked(true);
  }
  QMenu* sorting = AddSubMenu(menu, "mnuViewSorting", "&Sorting");
  AddMenuAction(*sorting, "mnuViewSortingUnsorted", "&Unsorted")->setCheckable(true);
  sorting->addSeparator();
  for (int entry = 1; entry <= 14; ++entry) {
    AddMenuAction(*sorting, QString("mnuViewSortingSorted(%1)").arg(entry), QString::number(entry))->setCheckable(true);
  }
  menu.addSeparator();
  AddMenuAction(menu, "mnuGridLines", "&Grid lines")->setCheckable(true);
  AddMenuAction(menu, "mnuImgPreview", "&Image preview")->setCheckable(true);
  menu.addSeparator();
  QMenu* bars = AddSubMenu(menu, "mnuShowBtnBars", "&Tool bars");
  AddMenuAction(*bars, "mnuShowBtnBarMain", "&Main tool bar")->setCheckable(true);
  AddMenuAction(*bars, "mnuShowBtnBarScript", "&Script tool bar")->setCheckable(true);
  AddMenuAction(menu, "mnuShowSplash", "Start &window")->setCheckable(true);
  AddMenuAction(menu, "mnuShowAssistant", "&Assistant")->setCheckable(true);
}

void MainWindow::BuildToolBars() {
  mainBar_ = new QToolBar("BtnBarMain", this);
  mainBar_->setObjectName("BtnBarMain");
  addToolBar(Qt::TopToolBarArea, mainBar_);
  for (const std::string& key : MainToolBarKeys()) {
    if (key.empty()) {
      mainBar_->addSeparator();
      continue;
    }
    const QString name = QString::fromStdString(key);
    AddToolButton(*mainBar_, name, DesignToolTip(name));
  }
  auto addDropDown = [&](const QString& key, const QStringList& entries, const QStringList& designTexts) {
    QAction* button = ToolAction("BtnBarMain", key);
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
  addDropDown("OpenFile", {"OpenFile1", "OpenFile2"}, {"System open dialog", "Open dialog with filters"});
  QStringList delEntries, delTexts;
  for (int i = 0; i < 5; ++i) {
    delEntries << QString("DelList%1").arg(i + 1);
    delTexts << QString(kDelListEntries[i].text).remove('&');
  }
  addDropDown("DelList", delEntries, delTexts);
  addDropDown("TakeChanges", {"TakeChanges1", "TakeChanges2"}, {"Take changes", "Take changes and copy or move files"});

  leftBar_ = new QToolBar("btnBarLeft", this);
  leftBar_->setObjectName("btnBarLeft");
  leftBar_->setOrientation(Qt::Vertical);
  addToolBar(Qt::LeftToolBarArea, leftBar_);
  for (const char* key : {"EditMan", "DelList", "Properties", "CancelAction"}) AddToolButton(*leftBar_, key, DesignToolTip(key));

  scriptBar_ = new QToolBar("btnbarScript", this);
  scriptBar_->setObjectName("btnbarScript");
  addToolBar(Qt::TopToolBarArea, scriptBar_);
  for (const char* key : {"StartRecordScript", "StopRecordScript", "StartRunScript", "RunSelectedScript"}) {
    AddToolButton(*scriptBar_, key, DesignToolTip(key));
  }
  QAction* runSelected = ToolAction("btnbarScript", "RunSelectedScript");
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
  auto* scopeLabel = new QLabel("Apply actions to:", central);
  scopeLabel->setObjectName("lblApplyTo");
  applyTo_ = new QComboBox(central);
  applyTo_->setObjectName("lstApplyTo");
  scopeLabel->setBuddy(applyTo_);
  scopeRow->addWidget(scopeLabel);
  scopeRow->addWidget(applyTo_);
  scopeRow->addStretch(1);
  layout->addLayout(scopeRow);

  listModel_ = new FileListModel(model_, *thumbnails_, this);
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
  for (int i = 0; i < 3; ++i) {
    auto* caption = new QLabel(detail);
    caption->setObjectName(QString("lblDetail%1").arg(i + 1));
    detailFields_[i] = new QLabel(detail);
    detailFields_[i]->setObjectName(QString("lbl2(%1)").arg(i + 1));
    detailFields_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(caption, i + 1, 0);
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
