#include "ui/common/DialogBinder.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWidget>

#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

using dialog::DialogInput;
using dialog::InputKind;

QWidget* WidgetOf(const DialogInput& input, const QWidget& window) {
  const QString key = ToQString(input.Key());
  if (window.objectName() == key) return const_cast<QWidget*>(&window);
  return window.findChild<QWidget*>(key);
}

Qt::CheckState CheckStateOf(int value) {
  return value == 1 ? Qt::Checked : value == 2 ? Qt::PartiallyChecked : Qt::Unchecked;
}

int CheckValueOf(Qt::CheckState state) { return state == Qt::Checked ? 1 : state == Qt::PartiallyChecked ? 2 : 0; }

void ShowRows(QListWidget& list, const DialogInput& input) {
  const QSignalBlocker block(&list);
  if (list.count() != static_cast<int>(input.rows.size())) {
    list.clear();
    for (const std::string& row : input.rows) list.addItem(ToQString(row));
  }
  if (input.kind == InputKind::MultiSelectionList) {
    for (int row = 0; row < list.count(); ++row) {
      const bool selected = row < static_cast<int>(input.rowSelected.size()) && input.rowSelected[row];
      list.item(row)->setSelected(selected);
    }
  } else {
    list.setCurrentRow(input.number);
  }
}

void ShowInput(const DialogInput& input, QWidget& widget) {
  switch (input.kind) {
    case InputKind::Text:
      if (auto* edit = qobject_cast<QLineEdit*>(&widget)) edit->setText(ToQString(input.text));
      return;
    case InputKind::OptionButton:
      if (auto* option = qobject_cast<QRadioButton*>(&widget)) {
        // An exclusive group can't lose its last check by setChecked(false).
        const bool exclusive = option->autoExclusive();
        option->setAutoExclusive(input.selected);
        option->setChecked(input.selected);
        option->setAutoExclusive(exclusive);
      }
      return;
    case InputKind::CheckBox:
      if (auto* check = qobject_cast<QCheckBox*>(&widget)) {
        if (input.number == 2) check->setTristate(true);
        check->setCheckState(CheckStateOf(input.number));
      }
      return;
    case InputKind::VerticalScrollBar:
      if (auto* bar = qobject_cast<QScrollBar*>(&widget)) {
        bar->setRange(input.minimum, input.maximum);
        bar->setValue(input.number);
      }
      return;
    case InputKind::ComboBox:
      if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        if (combo->count() != static_cast<int>(input.rows.size())) {
          combo->clear();
          for (const std::string& row : input.rows) combo->addItem(ToQString(row));
        }
        combo->setCurrentIndex(input.number);
        if (combo->isEditable() && input.number < 0) combo->setEditText(ToQString(input.text));
      }
      return;
    case InputKind::SingleSelectionList:
    case InputKind::MultiSelectionList:
      if (auto* list = qobject_cast<QListWidget*>(&widget)) ShowRows(*list, input);
      return;
    case InputKind::NoValue: return;
  }
}

// A combo box whose text was typed, not chosen, has no row.
int ChosenComboRow(const QComboBox& combo) {
  const int index = combo.currentIndex();
  if (!combo.isEditable() || index < 0) return index;
  return combo.currentText() == combo.itemText(index) ? index : -1;
}

void ReadInput(DialogInput& input, const QWidget& widget) {
  switch (input.kind) {
    case InputKind::Text:
      if (auto* edit = qobject_cast<const QLineEdit*>(&widget)) input.text = ToEngineText(edit->text());
      return;
    case InputKind::OptionButton:
      if (auto* option = qobject_cast<const QRadioButton*>(&widget)) input.selected = option->isChecked();
      return;
    case InputKind::CheckBox:
      if (auto* check = qobject_cast<const QCheckBox*>(&widget)) input.number = CheckValueOf(check->checkState());
      return;
    case InputKind::VerticalScrollBar:
      if (auto* bar = qobject_cast<const QScrollBar*>(&widget)) input.number = bar->value();
      return;
    case InputKind::ComboBox:
      if (auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        input.rows.clear();
        for (int row = 0; row < combo->count(); ++row) input.rows.push_back(ToEngineText(combo->itemText(row)));
        input.number = ChosenComboRow(*combo);
        input.text = ToEngineText(combo->currentText());
      }
      return;
    case InputKind::SingleSelectionList:
    case InputKind::MultiSelectionList:
      if (auto* list = qobject_cast<const QListWidget*>(&widget)) {
        input.rows.clear();
        input.rowSelected.assign(list->count(), false);
        for (int row = 0; row < list->count(); ++row) {
          input.rows.push_back(ToEngineText(list->item(row)->text()));
          input.rowSelected[row] = list->item(row)->isSelected();
        }
        input.number = list->selectedItems().isEmpty() ? -1 : list->currentRow();
      }
      return;
    case InputKind::NoValue: return;
  }
}

}  // namespace

void ShowModelInWidgets(const dialog::DialogModel& model, QWidget& window) {
  for (const DialogInput& input : model.Inputs()) {
    if (QWidget* widget = WidgetOf(input, window)) ShowInput(input, *widget);
  }
}

void ReadWidgetsIntoModel(dialog::DialogModel& model, const QWidget& window) {
  for (DialogInput& input : model.Inputs()) {
    if (const QWidget* widget = WidgetOf(input, window)) ReadInput(input, *widget);
  }
}

QStringList InputsWithoutWidget(const dialog::DialogModel& model, const QWidget& window) {
  QStringList missing;
  for (const DialogInput& input : model.Inputs()) {
    // A menu entry is an action, not a widget.
    const bool isAction = input.kind == InputKind::NoValue && window.findChild<QAction*>(ToQString(input.Key()));
    if (WidgetOf(input, window) == nullptr && !isAction) missing << ToQString(input.Key());
  }
  return missing;
}

}  // namespace nomra::ui
