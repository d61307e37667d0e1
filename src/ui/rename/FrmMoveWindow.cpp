#include "ui/rename/FrmMoveWindow.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "actions/FrmMove.h"
#include "base/Fault.h"
#include "base/NameSplit.h"
#include "core/ListState.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"
#include "ui/rename/ActionWidgets.h"

namespace nomra::ui {

FrmMoveWindow::FrmMoveWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmMove>(), std::move(services)) {
  setWindowTitle("Move");
  auto* grid = new QGridLayout;
  QLineEdit* name = NamedEdit(*this, "txtFileName");
  name->setReadOnly(true);
  auto* rows = new QScrollBar(Qt::Vertical, this);
  rows->setObjectName("VScroll1");
  rows->setRange(1, std::max(1, Services().context.State().list.Count()));
  rows->setFixedHeight(name->sizeHint().height());
  AddLabelledWidget(*grid, 0, "lblChr", "Select the characters to move:", *name);
  grid->addWidget(rows, 0, 2);
  QLineEdit* from = NamedEdit(*this, "txtFrom");
  QLineEdit* to = NamedEdit(*this, "txtTo");
  from->setReadOnly(true);
  to->setReadOnly(true);
  auto* range = new QHBoxLayout;
  range->addWidget(from);
  range->addWidget(to);
  grid->addLayout(range, 1, 1);
  auto* target = new QScrollBar(Qt::Horizontal, this);
  target->setObjectName("HScroll1");
  target->setRange(1, 200);
  QLineEdit* position = NamedEdit(*this, "txtPos");
  position->setReadOnly(true);
  AddLabelledWidget(*grid, 2, "lblMoveTo", "Move to position:", *target);
  grid->addWidget(position, 2, 2);
  QLineEdit* preview = NamedEdit(*this, "txtPreview");
  preview->setReadOnly(true);
  AddLabelledWidget(*grid, 3, "lblPre", "Preview:", *preview);
  grid->addWidget(NamedCheck(*this, "chkAdd2All", "Apply to all &chosen files"), 4, 1);
  InputArea().addLayout(grid);

  connect(rows, &QScrollBar::valueChanged, this, &FrmMoveWindow::ShowRow);
  connect(name, &QLineEdit::selectionChanged, this, &FrmMoveWindow::SelectionMoved);
  connect(target, &QScrollBar::valueChanged, this, [position, this](int value) {
    position->setText(QString::number(value));
    UpdatePreview();
  });
  FinishBuilding();
}

void FrmMoveWindow::AfterInputsShown() { ShowRow(findChild<QScrollBar*>("VScroll1")->value()); }

// The stem of the row shown; from and to stay and fit the new stem.
void FrmMoveWindow::ShowRow(int row) {
  const core::ListState& state = Services().context.State();
  if (row < 1 || row > state.list.Count()) return;
  const std::string stem = base::NameOnly(state.list.Item(row)[core::kColNewName]);
  findChild<QLineEdit*>("txtFileName")->setText(ToQString(stem));
  UpdatePreview();
}

void FrmMoveWindow::SelectionMoved() {
  const QLineEdit* name = findChild<QLineEdit*>("txtFileName");
  if (!name->hasSelectedText()) return;
  const QString text = name->text();
  const auto characters = [&](int units) { return static_cast<long>(text.left(units).toUcs4().size()); };
  const long from = characters(name->selectionStart()) + 1;
  const long to = characters(name->selectionStart() + static_cast<int>(name->selectedText().size()));
  findChild<QLineEdit*>("txtFrom")->setText(QString::number(from));
  findChild<QLineEdit*>("txtTo")->setText(QString::number(to));
  // The target runs over what is left of the stem.
  const long rest = static_cast<long>(text.toUcs4().size()) - (to - from + 1);
  findChild<QScrollBar*>("HScroll1")->setRange(1, static_cast<int>(std::max(1L, rest + 1)));
  UpdatePreview();
}

void FrmMoveWindow::UpdatePreview() {
  const auto number = [this](const char* box) { return findChild<QLineEdit*>(box)->text().toLong(); };
  const std::string stem = ToEngineText(findChild<QLineEdit*>("txtFileName")->text());
  QString shown;
  try {
    shown = ToQString(actions::MoveInStem(stem, number("txtFrom"), number("txtTo"), number("txtPos")));
  } catch (const base::RuntimeFault&) {
    shown = ToQString(stem);
  }
  findChild<QLineEdit*>("txtPreview")->setText(shown);
}

}  // namespace nomra::ui
