#include "ui/rename/FrmPosWindow.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"
#include "ui/rename/ActionWidgets.h"

namespace nomra::ui {

namespace {

constexpr char kSection[] = "frmPos";

}  // namespace

FrmPosWindow::FrmPosWindow(actions::PickMode mode, std::vector<std::string> stems, bool withSide,
                           const lang::MessageCatalog& catalog, QWidget* parent)
    : QDialog(parent), mode_(mode), stems_(std::move(stems)) {
  setObjectName(kSection);
  setWindowTitle("Choose position");
  auto* layout = new QVBoxLayout(this);
  AddNamedLabel(
      *layout, *this, "lblChr",
      mode == actions::PickMode::FromTo ? "Select the characters:" : "Click into the name to mark the position:");
  auto* row = new QHBoxLayout;
  name_ = NamedEdit(*this, "txtFileName");
  name_->setReadOnly(true);
  name_->setMinimumWidth(360);
  rows_ = new QScrollBar(Qt::Vertical, this);
  rows_->setObjectName("VScrollFile");
  rows_->setRange(1, std::max<int>(1, static_cast<int>(stems_.size())));
  rows_->setFixedHeight(name_->sizeHint().height());
  row->addWidget(name_, 1);
  row->addWidget(rows_);
  layout->addLayout(row);
  auto* grid = new QGridLayout;
  position_ = new QLabel(this);
  position_->setObjectName("txtPos");
  AddLabelledWidget(*grid, 0, "lblPos", "Position:", *position_);
  side_ = NamedCombo(*this, "cmbAlign");
  FillCombo(*side_, catalog, kSection, {{"cmbAlign-1", "from the left"}, {"cmbAlign-2", "from the right"}});
  side_->setCurrentIndex(mode == actions::PickMode::Last ? 1 : 0);
  side_->setEnabled(withSide);
  side_->setVisible(mode != actions::PickMode::FromTo);
  grid->addWidget(side_, 0, 2);
  layout->addLayout(grid);
  AddOkCancelRow(*this, *layout);
  LocaliseDialog(*this, catalog, parent, QString());

  connect(rows_, &QScrollBar::valueChanged, this, &FrmPosWindow::ShowRow);
  connect(name_, &QLineEdit::cursorPositionChanged, this, &FrmPosWindow::UpdatePosition);
  connect(name_, &QLineEdit::selectionChanged, this, &FrmPosWindow::UpdatePosition);
  connect(side_, &QComboBox::currentIndexChanged, this, &FrmPosWindow::UpdatePosition);
  ShowRow(1);
}

void FrmPosWindow::ShowRow(int row) {
  if (row < 1 || row > static_cast<int>(stems_.size())) return;
  name_->setText(ToQString(stems_[static_cast<std::size_t>(row - 1)]));
  name_->setCursorPosition(0);
  name_->setFocus();
  UpdatePosition();
}

FrmPosWindow::Result FrmPosWindow::Current() const {
  // Qt counts UTF-16 units; the engine counts characters.
  const QString text = name_->text();
  const auto characters = [&](int units) { return static_cast<long>(text.left(units).toUcs4().size()); };
  const int start = name_->hasSelectedText() ? name_->selectionStart() : name_->cursorPosition();
  const int length = name_->hasSelectedText() ? static_cast<int>(name_->selectedText().size()) : 0;
  Result result;
  result.picked = actions::PickInStem(ToEngineText(text), characters(name_->cursorPosition()), characters(start),
                                      characters(start + length) - characters(start));
  result.fromRight = side_->currentIndex() == 1;
  return result;
}

void FrmPosWindow::UpdatePosition() {
  const Result result = Current();
  if (mode_ == actions::PickMode::FromTo) {
    position_->setText(QString("%1 - %2").arg(result.picked.from).arg(result.picked.to));
  } else {
    position_->setText(QString::number(result.fromRight ? result.picked.last : result.picked.first));
  }
}

std::optional<FrmPosWindow::Result> FrmPosWindow::Pick(actions::PickMode mode, std::vector<std::string> stems,
                                                       bool withSide, const lang::MessageCatalog& catalog,
                                                       QWidget* parent) {
  FrmPosWindow window(mode, std::move(stems), withSide, catalog, parent);
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  return window.Current();
}

void PickRangeInto(QWidget& dialog, const PickedRangeTargets& targets, std::vector<std::string> stems,
                   const lang::MessageCatalog& catalog) {
  const auto checked = [&dialog](const QString& name) { return dialog.findChild<QRadioButton*>(name)->isChecked(); };
  const actions::PickMode mode = checked(targets.firstChoice)  ? actions::PickMode::First
                                 : checked(targets.lastChoice) ? actions::PickMode::Last
                                                               : actions::PickMode::FromTo;
  const auto picked = FrmPosWindow::Pick(mode, std::move(stems), false, catalog, &dialog);
  if (!picked) return;
  const auto show = [&dialog](const QString& bar, const QString& box, long value) {
    ShowPickedNumber(dialog, bar, box, value, false);
  };
  if (mode == actions::PickMode::First) show(targets.firstBar, targets.firstBox, picked->picked.first);
  if (mode == actions::PickMode::Last) show(targets.lastBar, targets.lastBox, picked->picked.last);
  if (mode == actions::PickMode::FromTo) {
    show(targets.fromBar, targets.fromBox, picked->picked.from);
    show(targets.toBar, targets.toBox, picked->picked.to);
  }
}

}  // namespace nomra::ui
