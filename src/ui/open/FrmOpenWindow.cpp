// Nomra's own open dialog: its controls, its keys and its preparation for a
// showing. The folder it shows and its filter list have files of their own.
#include "ui/open/FrmOpenWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QVBoxLayout>

#include "ui/common/ButtonIcons.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/FormNames.h"
#include "ui/common/NamedControls.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

QAction* AddBarButton(QToolBar& bar, const QString& key, const QString& designTip) {
  QAction* action = bar.addAction(ButtonIcon(key), designTip);
  action->setProperty(kKeyProperty, key);
  action->setProperty(kStyleProperty, lang::kButtonStyleDefault);
  action->setObjectName(bar.objectName() + key);
  return action;
}

// The open list of DrvSel shows the levels of the folder indented; the
// closed box shows the chosen row's text alone.
class IndentedRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem indented(option);
    indented.rect.adjust(kIndent * index.data(FrmOpenWindow::kDepthRole).toInt(), 0, 0, 0);
    QStyledItemDelegate::paint(painter, indented, index);
  }

 private:
  static constexpr int kIndent = 14;
};

}  // namespace

FrmOpenWindow::FrmOpenWindow(Services services, QWidget* parent) : QDialog(parent), services_(std::move(services)) {
  setObjectName(kOpenDialogName);
  setWindowTitle("Open files");
  filters_ = open::ReadPowerFilters(services_.settingsFile);
  BuildLayout();
  FillFilterList();
  resize(780, 500);
}

void FrmOpenWindow::BuildLayout() {
  auto* layout = new QVBoxLayout(this);

  auto* top = new QHBoxLayout;
  QLabel* lookIn = AddNamedLabel(*top, *this, "lblLookIn", "Look &in:");
  locations_ = new QComboBox(this);
  locations_->setObjectName("DrvSel");
  locations_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  locations_->setMinimumContentsLength(30);
  locations_->setItemDelegate(new IndentedRows(locations_));
  locations_->setIconSize(QSize(16, 16));
  locations_->view()->setIconSize(locations_->iconSize());
  lookIn->setBuddy(locations_);
  top->addWidget(locations_, 1);
  navigation_ = new QToolBar(this);
  navigation_->setObjectName("BtnBar");
  navigation_->setIconSize(QSize(16, 16));
  connect(AddBarButton(*navigation_, "FolderUp", "Up one level"), &QAction::triggered, this, &FrmOpenWindow::FolderUp);
  top->addWidget(navigation_);
  layout->addLayout(top);

  path_ = new QLineEdit(this);
  path_->setObjectName("txtPfad");
  path_->installEventFilter(this);
  layout->addWidget(path_);

  auto* middle = new QHBoxLayout;
  rows_ = new QListWidget(this);
  rows_->setObjectName("lstFiles");
  rows_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  rows_->setViewMode(QListView::ListMode);
  rows_->setFlow(QListView::TopToBottom);
  rows_->setWrapping(true);
  rows_->setResizeMode(QListView::Adjust);
  rows_->setIconSize(QSize(16, 16));
  rows_->installEventFilter(this);
  middle->addWidget(rows_, 3);
  auto* filterColumn = new QVBoxLayout;
  QLabel* type = AddNamedLabel(*filterColumn, *this, "lblType", "&Filters:");
  filterList_ = new QListWidget(this);
  filterList_->setObjectName("lstFilters");
  type->setBuddy(filterList_);
  filterColumn->addWidget(filterList_, 1);
  filterColumn->addWidget(BuildFilterBar());
  middle->addLayout(filterColumn, 1);
  layout->addLayout(middle, 1);

  auto* selected = new QHBoxLayout;
  QLabel* names = AddNamedLabel(*selected, *this, "lblSelected", "File &names:");
  names_ = new QLineEdit(this);
  names_->setObjectName("txtFiles");
  names_->setReadOnly(true);
  names->setBuddy(names_);
  selected->addWidget(names_, 1);
  layout->addLayout(selected);

  auto* bottom = new QHBoxLayout;
  allFiles_ = new QCheckBox("&All files of the folder", this);
  allFiles_->setObjectName("chkAllFiles");
  subFolders_ = new QCheckBox("Include &subfolders", this);
  subFolders_->setObjectName("chkSubFolders");
  subFolders_->setEnabled(false);
  bottom->addWidget(allFiles_);
  bottom->addWidget(subFolders_);
  bottom->addStretch(1);
  QPushButton* open = AddNamedButton(*bottom, *this, "cmdOpen", "&Open");
  open->setDefault(true);
  QPushButton* cancel = AddCancelButton(*bottom, *this);
  cancel->setAutoDefault(false);
  layout->addLayout(bottom);

  connect(locations_, &QComboBox::activated, this, &FrmOpenWindow::OnLocationChosen);
  connect(rows_, &QListWidget::itemDoubleClicked, this, &FrmOpenWindow::OnRowActivated);
  connect(rows_, &QListWidget::itemSelectionChanged, this, &FrmOpenWindow::OnSelectionChanged);
  connect(allFiles_, &QCheckBox::toggled, this, &FrmOpenWindow::OnAllFilesToggled);
  connect(open, &QPushButton::clicked, this, &FrmOpenWindow::cmdOpen);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

QToolBar* FrmOpenWindow::BuildFilterBar() {
  filterBar_ = new QToolBar(this);
  filterBar_->setObjectName("BtnBarFilter");
  filterBar_->setIconSize(QSize(16, 16));
  addFilter_ = AddBarButton(*filterBar_, "Add", "Add filter");
  editFilter_ = AddBarButton(*filterBar_, "EditMan", "Edit filter");
  deleteFilter_ = AddBarButton(*filterBar_, "DelList", "Delete filter");
  connect(addFilter_, &QAction::triggered, this, &FrmOpenWindow::AddFilter);
  connect(editFilter_, &QAction::triggered, this, &FrmOpenWindow::EditFilter);
  connect(deleteFilter_, &QAction::triggered, this, &FrmOpenWindow::DeleteFilter);
  connect(filterList_, &QListWidget::itemChanged, this, &FrmOpenWindow::OnFilterItemChanged);
  connect(filterList_, &QListWidget::currentRowChanged, this, &FrmOpenWindow::UpdateFilterButtons);
  return filterBar_;
}

void FrmOpenWindow::Localise() { LocaliseDialog(*this, services_.catalog, parentWidget(), QString()); }

void FrmOpenWindow::Prepare(bool allFiles, bool subFolders, bool showHiddenFiles, const std::string& folder) {
  showHiddenFiles_ = showHiddenFiles;
  staged_.clear();
  allFiles_->setChecked(allFiles);
  subFolders_->setChecked(subFolders);
  subFolders_->setEnabled(allFiles);
  Localise();
  setPath(folder);
  rows_->setFocus();
}

bool FrmOpenWindow::AllFiles() const { return allFiles_->isChecked(); }

bool FrmOpenWindow::SubFolders() const { return subFolders_->isChecked(); }

// Checking the box takes every file of the folder: a selection would only
// mislead, so it goes.
void FrmOpenWindow::OnAllFilesToggled(bool on) {
  subFolders_->setEnabled(on);
  if (!on) return;
  rows_->clearSelection();
  names_->clear();
}

void FrmOpenWindow::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_A) {
    SelectAllRows();
    return;
  }
  if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_T) {
    InvertSelection();
    return;
  }
  QDialog::keyPressEvent(event);
}

// Enter in the path field goes there, and on a folder row opens the folder;
// neither opens files, which is what the default button would do.
bool FrmOpenWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      if (watched == path_) {
        setPath(ToEngineText(path_->text()));
        return true;
      }
      QListWidgetItem* current = rows_->currentItem();
      if (watched == rows_ && current != nullptr && current->isSelected() && current->data(kFolderRole).toBool()) {
        OnRowActivated(current);
        return true;
      }
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace nomra::ui
