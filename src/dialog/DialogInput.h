#pragma once
#include <optional>
#include <string>
#include <vector>

namespace nomra::dialog {

// The kinds of input a dialog holds. Each kind keeps its value in its own way
// in the settings and in script steps; kinds without a value (labels,
// buttons, frames, menus, horizontal scroll bars, list and tree views) are
// all NoValue.
enum class InputKind {
  Text,
  OptionButton,
  CheckBox,
  VerticalScrollBar,
  ComboBox,
  SingleSelectionList,
  MultiSelectionList,
  NoValue,
};

// One named input. Its name is a file format: the key in the settings file,
// in script steps and in language files, spelled as the control is named.
struct DialogInput {
  InputKind kind = InputKind::NoValue;
  std::string name;
  // Members of an indexed group, such as opt2(1), carry their index.
  std::optional<int> index;
  // Option buttons of one group exclude each other; by default an indexed
  // group is one group, and a plain option button forms a group by itself.
  std::string group;

  std::string text;       // a text box's text; a combo box's typed text
  bool selected = false;  // an option button
  int number = 0;         // a check box (0, 1, 2), a scroll position, a list index (-1: none)
  int minimum = 0;        // a scroll bar's range
  int maximum = 32767;
  std::vector<std::string> rows;  // the rows of a combo box or list
  std::vector<bool> rowSelected;  // a multi-selection list's selection, one per row

  // The name, or name "(" index ")" for a member of a group.
  std::string Key() const;
};

}  // namespace nomra::dialog
