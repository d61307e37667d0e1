#pragma once
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "dialog/DialogInput.h"

namespace nomra::dialog {

// A dialog without a window: its inputs in a fixed order, each readable and
// settable by its key. Storing to the settings, recording a script step,
// restoring and the window's binding all walk this one list.
class DialogModel {
 public:
  explicit DialogModel(std::string name) : name_(std::move(name)) {}

  const std::string& Name() const { return name_; }

  // Inputs are listed once, in the order the store visits them. References
  // stay valid as more inputs are added.
  DialogInput& AddText(std::string name, std::optional<int> index = {});
  DialogInput& AddOption(std::string name, std::string group, std::optional<int> index = {});
  DialogInput& AddCheck(std::string name, std::optional<int> index = {});
  DialogInput& AddScrollBar(std::string name, int minimum, int maximum, std::optional<int> index = {});
  DialogInput& AddCombo(std::string name, std::vector<std::string> rows, std::optional<int> index = {});
  DialogInput& AddList(std::string name, std::vector<std::string> rows, bool multiSelection,
                       std::optional<int> index = {});
  DialogInput& AddNoValue(std::string name, std::optional<int> index = {});

  std::deque<DialogInput>& Inputs() { return inputs_; }
  const std::deque<DialogInput>& Inputs() const { return inputs_; }

  // The input of that key ("txtPr", "opt2(1)"); nullptr when there is none.
  DialogInput* Find(std::string_view key);
  const DialogInput* Find(std::string_view key) const;
  // As Find, but a missing key is a programming error: throws std::out_of_range.
  DialogInput& At(std::string_view key);
  const DialogInput& At(std::string_view key) const;

  // Convenience for the actions that read their inputs.
  const std::string& Text(std::string_view key) const { return At(key).text; }
  bool IsSelected(std::string_view key) const { return At(key).selected; }
  int Number(std::string_view key) const { return At(key).number; }

  // Setting a value as the control would take it; false, with the input
  // unchanged, when the control refuses it (a check box value beyond 2, a
  // position outside the scroll range, a list index beyond the rows).
  bool SetText(std::string_view key, std::string text);
  // Selecting an option button deselects the others of its group.
  bool SetOption(std::string_view key, bool selected);
  bool SetNumber(std::string_view key, int number);
  bool SetRowSelected(std::string_view key, int row, bool selected);

  // The same by input, for walks over Inputs().
  bool SetOption(DialogInput& input, bool selected);
  bool SetNumber(DialogInput& input, int number);
  static bool SetRowSelected(DialogInput& input, int row, bool selected);

 private:
  DialogInput& Add(InputKind kind, std::string name, std::optional<int> index);

  std::string name_;
  std::deque<DialogInput> inputs_;
};

}  // namespace nomra::dialog
