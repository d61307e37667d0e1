// The filter check list of Nomra's own open dialog and its tool bar.
#include <QAction>
#include <QInputDialog>
#include <QListWidget>

#include <algorithm>

#include "ui/common/TextConversion.h"
#include "ui/open/FrmOpenWindow.h"

namespace nomra::ui {

namespace {

// The prompt of the filter editor is the system's own text in every language.
constexpr char kFilterPrompt[] = "Filter:";

}  // namespace

void FrmOpenWindow::FillFilterList() {
  const QSignalBlocker quiet(filterList_);
  const int current = filterList_->currentRow();
  filterList_->clear();
  for (const open::PowerFilter& filter : filters_) {
    auto* item = new QListWidgetItem(ToQString(filter.pattern), filterList_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(filter.checked ? Qt::Checked : Qt::Unchecked);
  }
  filterList_->setCurrentRow(std::min(current, filterList_->count() - 1));
  UpdateFilterButtons();
}

// Entry 0 is "*.*" and the rules of the list lean on it: it is neither
// edited nor deleted.
void FrmOpenWindow::UpdateFilterButtons() {
  const bool other = filterList_->currentRow() > 0;
  editFilter_->setEnabled(other);
  deleteFilter_->setEnabled(other);
}

void FrmOpenWindow::OnFilterItemChanged(QListWidgetItem* item) {
  const int index = filterList_->row(item);
  if (index < 0 || index >= static_cast<int>(filters_.size())) return;
  const bool checked = item->checkState() == Qt::Checked;
  if (filters_[index].checked == checked) return;
  open::SetFilterChecked(filters_, index, checked);
  FillFilterList();
  Add2lstFiles();
}

// False when the user cancelled or typed nothing that a filter keeps.
bool FrmOpenWindow::AskFilter(const QString& title, QString& text) {
  bool ok = false;
  const QString typed = QInputDialog::getText(this, title, kFilterPrompt, QLineEdit::Normal, text, &ok);
  if (!ok) return false;
  const std::string cleaned = open::CleanFilterText(ToEngineText(typed));
  if (cleaned.empty()) return false;
  text = ToQString(cleaned);
  return true;
}

void FrmOpenWindow::AddFilter() {
  QString text;
  if (!AskFilter(addFilter_->toolTip(), text)) return;
  filters_.push_back({false, ToEngineText(text)});
  open::SetFilterChecked(filters_, static_cast<int>(filters_.size()) - 1, true);
  FillFilterList();
  filterList_->setCurrentRow(filterList_->count() - 1);
  Add2lstFiles();
}

void FrmOpenWindow::EditFilter() {
  const int index = filterList_->currentRow();
  if (index <= 0 || index >= static_cast<int>(filters_.size())) return;
  QString text = ToQString(filters_[index].pattern);
  if (!AskFilter(editFilter_->toolTip(), text)) return;
  filters_[index].pattern = ToEngineText(text);
  FillFilterList();
  Add2lstFiles();
}

void FrmOpenWindow::DeleteFilter() {
  const int index = filterList_->currentRow();
  if (index <= 0 || index >= static_cast<int>(filters_.size())) return;
  const core::Message question{"MsgText16", "MsgCap07", core::MessageStyle::YesNoWarningDefaultNo, {}};
  if (services_.frontEnd.Ask(question) != core::Answer::Yes) return;
  // Clearing its check first lets "*.*" take over when it was the last one checked.
  open::SetFilterChecked(filters_, index, false);
  filters_.erase(filters_.begin() + index);
  FillFilterList();
  Add2lstFiles();
}

}  // namespace nomra::ui
