#include "ui/history/FrmHistoryWindow.h"

#include <QBrush>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "commit/ReportRowText.h"
#include "history/LoadHistory.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/QtFrontEnd.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

// Colour 12 of the sixteen-colour palette: a row whose file no longer has
// its new name.
const QColor kMissingColour(255, 0, 0);
const QColor kPresentColour(0, 0, 0);

QTreeWidget* MakeFileList(QWidget& parent) {
  auto* files = new QTreeWidget(&parent);
  files->setObjectName("lstFiles");
  files->setColumnCount(history::kHistoryColumnCount);
  files->setHeaderLabels({"Date", "Folder", "Old name", "New name"});
  files->setProperty(kHeaderTagsProperty, QStringList{"lstColHead01", "lstColHead02", "lstColHead03", "lstColHead04"});
  files->setRootIsDecorated(false);
  files->setUniformRowHeights(true);
  files->setSelectionMode(QAbstractItemView::ExtendedSelection);
  files->setAllColumnsShowFocus(true);
  files->header()->setSectionsClickable(true);
  files->header()->setSortIndicatorShown(true);
  files->setColumnWidth(0, 150);
  files->setColumnWidth(1, 260);
  files->setColumnWidth(2, 160);
  return files;
}

}  // namespace

FrmHistoryWindow::FrmHistoryWindow(platform::FileSystem& fileSystem, const std::string& dataFolder,
                                   QtFrontEnd& frontEnd, const lang::MessageCatalog& catalog, const QString& appTitle,
                                   QWidget* mainWindow)
    : QDialog(mainWindow), frontEnd_(frontEnd), services_{fileSystem, frontEnd, dataFolder, nullptr} {
  // A failed rename shows its message with the system's own words.
  services_.showFailure = [this, &catalog](const commit::ReportRow& failure) {
    frontEnd_.AskText(history::FailureMessage(failure), ToQString(commit::ReportRowText(failure, catalog)));
  };
  setObjectName("frmHistory");
  setWindowTitle("Rename history");
  resize(820, 440);
  auto* layout = new QVBoxLayout(this);
  files_ = MakeFileList(*this);
  layout->addWidget(files_, 1);

  auto* frame = new QFrame(this);
  frame->setObjectName("FrameButtom");
  auto* buttons = new QHBoxLayout(frame);
  buttons->setContentsMargins(0, 0, 0, 0);
  undo_ = AddNamedButton(*buttons, *frame, "cmdUndoRenaming", "&Undo renaming");
  delete_ = AddNamedButton(*buttons, *frame, "cmdDeleteHistory", "&Delete history");
  buttons->addStretch(1);
  QPushButton* close = AddNamedButton(*buttons, *frame, "cmdClose", "&Close");
  layout->addWidget(frame);

  connect(files_, &QTreeWidget::itemSelectionChanged, this, &FrmHistoryWindow::TakeSelection);
  connect(files_->header(), &QHeaderView::sectionClicked, this, &FrmHistoryWindow::SortByHead);
  connect(undo_, &QPushButton::clicked, this, [this] { Run([this] { history::UndoRenamings(list_, services_); }); });
  connect(delete_, &QPushButton::clicked, this,
          [this] { Run([this] { history::cmdDeleteHistory(list_, services_); }); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  LocaliseDialog(*this, catalog, mainWindow, appTitle);
  Run([this] { history::LoadHistory(list_, services_.dataFolder, services_.fileSystem); });
}

void FrmHistoryWindow::Run(const std::function<void()>& command) {
  RunShowingFault(frontEnd_, command);
  ShowRows();
}

void FrmHistoryWindow::ShowRows() {
  const QSignalBlocker quiet(files_);
  files_->clear();
  QList<QTreeWidgetItem*> items;
  items.reserve(static_cast<qsizetype>(list_.rows.size()));
  for (const history::HistoryRow& row : list_.rows) {
    auto* item = new QTreeWidgetItem;
    for (int column = 0; column < history::kHistoryColumnCount; ++column) {
      item->setText(column, ToQString(row.ColumnText(column)));
      item->setForeground(column, QBrush(row.present ? kPresentColour : kMissingColour));
    }
    item->setData(0, Qt::UserRole, ToQString(row.time));
    items << item;
  }
  files_->addTopLevelItems(items);
  for (std::size_t i = 0; i < list_.rows.size(); ++i) {
    items[static_cast<qsizetype>(i)]->setSelected(list_.rows[i].selected);
  }
  ShowSortArrow();
  EnableButtons();
}

void FrmHistoryWindow::ShowSortArrow() {
  files_->header()->setSortIndicator(list_.sortColumn, list_.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void FrmHistoryWindow::TakeSelection() {
  for (int i = 0; i < files_->topLevelItemCount(); ++i) {
    list_.rows[static_cast<std::size_t>(i)].selected = files_->topLevelItem(i)->isSelected();
  }
  EnableButtons();
}

void FrmHistoryWindow::EnableButtons() {
  undo_->setEnabled(history::CanUndo(list_));
  delete_->setEnabled(history::CanDelete(list_));
}

void FrmHistoryWindow::SortByHead(int column) {
  history::ClickHistoryHead(list_, column);
  ShowRows();
}

void ShowRenameHistory(QWidget* mainWindow, platform::FileSystem& fileSystem, const std::string& dataFolder,
                       QtFrontEnd& frontEnd, const lang::MessageCatalog& catalog, const QString& appTitle) {
  FrmHistoryWindow dialog(fileSystem, dataFolder, frontEnd, catalog, appTitle, mainWindow);
  dialog.exec();
}

}  // namespace nomra::ui
