#pragma once
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "lang/LocaliseForm.h"

namespace nomra::lang::testing {

// A control that only records what the localisation sets on it.
class FakeControl : public LocalisableControl {
 public:
  FakeControl(ControlKind kind, std::string name, std::string tag = {})
      : kind_(kind), name_(std::move(name)), tag_(std::move(tag)) {}

  ControlKind Kind() const override { return kind_; }
  std::string Name() const override { return name_; }
  std::string Tag() const override { return tag_; }
  bool IsGraphicalWithoutCaption() const override { return graphical; }
  void SetCaption(const std::string& text) override { caption = text; }
  void SetToolTip(const std::string& text) override { toolTip = text; }

  std::vector<std::string> HeaderTags() const override { return headerTags; }
  void SetHeaderText(int index, const std::string& text) override { headerTexts[index] = text; }

  std::vector<ToolbarButton> Buttons() const override { return buttons; }
  void SetButtonToolTip(int button, const std::string& text) override { buttonTips[button] = text; }
  void SetEntryText(int button, int entry, const std::string& text) override { entryTexts[{button, entry}] = text; }

  std::vector<std::string> TabKeys() const override { return tabKeys; }
  void SetTabCaption(int tab, const std::string& text) override { tabCaptions[tab] = text; }

  void ReplaceRows(const std::vector<std::string>& newRows) override {
    rows = newRows;
    selectedRow = 0;
  }

  // What the dialog is built with.
  bool graphical = false;
  std::vector<std::string> headerTags;
  std::vector<ToolbarButton> buttons;
  std::vector<std::string> tabKeys;
  std::vector<std::string> rows;
  int selectedRow = -1;

  // What the localisation set.
  std::optional<std::string> caption;
  std::optional<std::string> toolTip;
  std::map<int, std::string> headerTexts;
  std::map<int, std::string> buttonTips;
  std::map<std::pair<int, int>, std::string> entryTexts;
  std::map<int, std::string> tabCaptions;

 private:
  ControlKind kind_;
  std::string name_;
  std::string tag_;
};

class FakeForm : public LocalisableForm {
 public:
  explicit FakeForm(std::string name) : name_(std::move(name)) {}

  FakeControl& Add(ControlKind kind, std::string name, std::string tag = {}) {
    return controls_.emplace_back(kind, std::move(name), std::move(tag));
  }

  std::string Name() const override { return name_; }
  void ForEachControl(const std::function<void(LocalisableControl&)>& visit) override {
    for (auto& control : controls_) visit(control);
  }
  void SetCaption(const std::string& text) override { caption = text; }

  std::optional<std::string> caption;

 private:
  std::string name_;
  std::deque<FakeControl> controls_;  // stable addresses for the tests' references
};

}  // namespace nomra::lang::testing
