#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "lang/MessageCatalog.h"

namespace nomra::lang {

// The kinds of control the localisation tells apart.
enum class ControlKind {
  Other,
  CommandButton,  // "cmd"
  ComboBox,       // "cmb"
  ListBox,        // "lst"
  ListView,       // "listview"
  Menu,           // "mnu"
  TabStrip,       // "tabstrip"
  Toolbar,        // "toolbar"
};

// Tool button styles that carry a tool tip: 0 default, 1 check, 5 drop-down.
inline constexpr int kButtonStyleDefault = 0;
inline constexpr int kButtonStyleCheck = 1;
inline constexpr int kButtonStylePlaceholder = 4;
inline constexpr int kButtonStyleSeparator = 3;
inline constexpr int kButtonStyleDropDown = 5;

struct ToolbarButton {
  std::string key;
  int style = kButtonStyleDefault;
  std::vector<std::string> entryKeys;  // drop-down entries, for style 5
};

// One control of a dialog as the localisation sees it. The front end adapts
// its widgets to this; tests use plain objects. Setters a control has no use
// for do nothing.
class LocalisableControl {
 public:
  virtual ~LocalisableControl() = default;

  virtual ControlKind Kind() const = 0;
  // The control's name without the index of a control array: "opt1" for
  // "opt1(2)".
  virtual std::string Name() const = 0;
  virtual std::string Tag() const { return {}; }

  // A command button of the graphical style with an empty caption: its text
  // becomes the tool tip instead.
  virtual bool IsGraphicalWithoutCaption() const { return false; }
  virtual void SetCaption(const std::string& /*text*/) {}
  virtual void SetToolTip(const std::string& /*text*/) {}

  // List views: the tags of the column heads, in order ("" for none).
  virtual std::vector<std::string> HeaderTags() const { return {}; }
  virtual void SetHeaderText(int /*index*/, const std::string& /*text*/) {}

  // Tool bars. Buttons and entries are addressed by their 0-based place in
  // Buttons() and in its entryKeys.
  virtual std::vector<ToolbarButton> Buttons() const { return {}; }
  virtual void SetButtonToolTip(int /*button*/, const std::string& /*text*/) {}
  virtual void SetEntryText(int /*button*/, int /*entry*/, const std::string& /*text*/) {}

  // Tab strips: the key of each tab.
  virtual std::vector<std::string> TabKeys() const { return {}; }
  virtual void SetTabCaption(int /*tab*/, const std::string& /*text*/) {}

  // Combo and list boxes: clear, fill with the rows, select the first.
  virtual void ReplaceRows(const std::vector<std::string>& /*rows*/) {}
};

class LocalisableForm {
 public:
  virtual ~LocalisableForm() = default;
  // The dialog's name, e.g. "frmEditMan".
  virtual std::string Name() const = 0;
  virtual void ForEachControl(const std::function<void(LocalisableControl&)>& visit) = 0;
  virtual void SetCaption(const std::string& text) = 0;
};

// What the caption rules take from outside the dialog.
struct CaptionSources {
  // The caption of a main-window menu entry as it stands, "&" included.
  std::function<std::string(std::string_view menuName)> menuCaption;
  // The text of lstApplyTo, which shows the scope in force in some titles.
  std::string applyScopeText;
  std::string appTitle;
};

// Puts the language's texts on every control of the dialog and then on the
// dialog itself. An empty section means the dialog's name. The capitalisation
// menu of the main window, which takes its texts from the case dialog's
// section, is left to the main window's own set-up.
void LocaliseForm(LocalisableForm& form, std::string_view section, const MessageCatalog& catalog,
                  const CaptionSources& sources);

// Removes every "&": tool tips and window titles show no shortcut marks.
std::string WithoutAmpersands(std::string_view text);

}  // namespace nomra::lang
