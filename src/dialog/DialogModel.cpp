#include "dialog/DialogModel.h"

#include <stdexcept>

namespace nomra::dialog {

std::string DialogInput::Key() const {
  if (!index) return name;
  return name + "(" + std::to_string(*index) + ")";
}

DialogInput& DialogModel::Add(InputKind kind, std::string name, std::optional<int> index) {
  DialogInput& input = inputs_.emplace_back();
  input.kind = kind;
  input.name = std::move(name);
  input.index = index;
  return input;
}

DialogInput& DialogModel::AddText(std::string name, std::optional<int> index) {
  return Add(InputKind::Text, std::move(name), index);
}

DialogInput& DialogModel::AddOption(std::string name, std::string group, std::optional<int> index) {
  DialogInput& input = Add(InputKind::OptionButton, std::move(name), index);
  input.group = group.empty() ? input.name : std::move(group);
  return input;
}

DialogInput& DialogModel::AddCheck(std::string name, std::optional<int> index) {
  return Add(InputKind::CheckBox, std::move(name), index);
}

DialogInput& DialogModel::AddScrollBar(std::string name, int minimum, int maximum, std::optional<int> index) {
  DialogInput& input = Add(InputKind::VerticalScrollBar, std::move(name), index);
  input.minimum = minimum;
  input.maximum = maximum;
  input.number = minimum;
  return input;
}

DialogInput& DialogModel::AddCombo(std::string name, std::vector<std::string> rows, std::optional<int> index) {
  DialogInput& input = Add(InputKind::ComboBox, std::move(name), index);
  input.rows = std::move(rows);
  input.number = -1;
  return input;
}

DialogInput& DialogModel::AddList(std::string name, std::vector<std::string> rows, bool multiSelection,
                                  std::optional<int> index) {
  DialogInput& input =
      Add(multiSelection ? InputKind::MultiSelectionList : InputKind::SingleSelectionList, std::move(name), index);
  input.rowSelected.assign(rows.size(), false);
  input.rows = std::move(rows);
  input.number = -1;
  return input;
}

DialogInput& DialogModel::AddNoValue(std::string name, std::optional<int> index) {
  return Add(InputKind::NoValue, std::move(name), index);
}

DialogInput* DialogModel::Find(std::string_view key) {
  for (DialogInput& input : inputs_) {
    if (input.Key() == key) return &input;
  }
  return nullptr;
}

const DialogInput* DialogModel::Find(std::string_view key) const { return const_cast<DialogModel*>(this)->Find(key); }

DialogInput& DialogModel::At(std::string_view key) {
  DialogInput* input = Find(key);
  if (input == nullptr) throw std::out_of_range("dialog " + name_ + " has no input " + std::string(key));
  return *input;
}

const DialogInput& DialogModel::At(std::string_view key) const { return const_cast<DialogModel*>(this)->At(key); }

bool DialogModel::SetText(std::string_view key, std::string text) {
  DialogInput& input = At(key);
  if (input.kind != InputKind::Text && input.kind != InputKind::ComboBox) return false;
  input.text = std::move(text);
  return true;
}

bool DialogModel::SetOption(std::string_view key, bool selected) { return SetOption(At(key), selected); }

bool DialogModel::SetOption(DialogInput& input, bool selected) {
  if (input.kind != InputKind::OptionButton) return false;
  if (selected) {
    for (DialogInput& other : inputs_) {
      if (other.kind == InputKind::OptionButton && other.group == input.group) other.selected = false;
    }
  }
  input.selected = selected;
  return true;
}

bool DialogModel::SetNumber(std::string_view key, int number) { return SetNumber(At(key), number); }

bool DialogModel::SetNumber(DialogInput& input, int number) {
  switch (input.kind) {
    case InputKind::CheckBox:
      if (number < 0 || number > 2) return false;
      break;
    case InputKind::VerticalScrollBar:
      if (number < input.minimum || number > input.maximum) return false;
      break;
    case InputKind::ComboBox:
    case InputKind::SingleSelectionList:
      if (number < -1 || number >= static_cast<int>(input.rows.size())) return false;
      // Choosing a row replaces what was typed into a combo box.
      if (input.kind == InputKind::ComboBox) input.text = number >= 0 ? input.rows[number] : std::string();
      break;
    case InputKind::MultiSelectionList:
      if (number < -1 || number >= static_cast<int>(input.rows.size())) return false;
      break;
    default: return false;
  }
  input.number = number;
  return true;
}

bool DialogModel::SetRowSelected(std::string_view key, int row, bool selected) {
  return SetRowSelected(At(key), row, selected);
}

bool DialogModel::SetRowSelected(DialogInput& input, int row, bool selected) {
  if (input.kind != InputKind::MultiSelectionList && input.kind != InputKind::SingleSelectionList) return false;
  if (row < 0 || row >= static_cast<int>(input.rows.size())) return false;
  if (input.kind == InputKind::SingleSelectionList) {
    input.number = selected ? row : (input.number == row ? -1 : input.number);
    return true;
  }
  input.rowSelected.resize(input.rows.size(), false);
  input.rowSelected[row] = selected;
  return true;
}

}  // namespace nomra::dialog
