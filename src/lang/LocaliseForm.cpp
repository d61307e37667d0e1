#include "lang/LocaliseForm.h"

#include <string>

#include "lang/ControlKey.h"
#include "lang/DialogCaption.h"
#include "lang/LanguageKeys.h"
#include "lang/ToolbarTexts.h"

namespace nomra::lang {

namespace {

std::string TextOf(const LocalisableControl& control, const TextKey& where, const MessageCatalog& catalog) {
  std::string text = catalog.GetText(where.section, where.key);
  // Menu entries of many dialogs share the main window's texts.
  if (text.empty() && control.Kind() == ControlKind::Menu) text = catalog.GetText(kMenusSection, where.key);
  return text;
}

void SetOwnText(LocalisableControl& control, const std::string& text) {
  // A picture button has no room for a caption: its text is its tool tip.
  if (control.Kind() == ControlKind::CommandButton && control.IsGraphicalWithoutCaption()) {
    control.SetToolTip(WithoutAmpersands(text));
  } else {
    control.SetCaption(text);
  }
}

void LocaliseColumnHeads(LocalisableControl& view, std::string_view dialogSection, const MessageCatalog& catalog) {
  const auto tags = view.HeaderTags();
  for (std::size_t i = 0; i < tags.size(); ++i) {
    if (tags[i].empty()) continue;
    const TextKey where = KeyOfColumnHead(tags[i], dialogSection);
    const std::string text = catalog.GetText(where.section, where.key);
    if (!text.empty()) view.SetHeaderText(static_cast<int>(i), text);
  }
}

void LocaliseTabs(LocalisableControl& tabs, std::string_view dialogSection, const MessageCatalog& catalog) {
  const auto keys = tabs.TabKeys();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::string text = catalog.GetText(dialogSection, keys[i]);
    if (!text.empty()) tabs.SetTabCaption(static_cast<int>(i), text);
  }
}

// The rows of a choice list live in the language file as "key-1", "key-2",
// ... up to the first empty one; a list without them keeps its own rows.
void LocaliseRows(LocalisableControl& list, const TextKey& where, const MessageCatalog& catalog) {
  std::vector<std::string> rows;
  for (int n = 1;; ++n) {
    std::string row = catalog.GetText(where.section, where.key + kRowKeySeparator + std::to_string(n));
    if (row.empty()) break;
    rows.push_back(std::move(row));
  }
  if (!rows.empty()) list.ReplaceRows(rows);
}

void LocaliseControl(LocalisableControl& control, std::string_view dialogSection, const MessageCatalog& catalog) {
  const ControlKind kind = control.Kind();
  const TextKey where = KeyOfControl(kind, control.Name(), control.Tag(), dialogSection);
  const std::string text = TextOf(control, where, catalog);
  if (!text.empty()) SetOwnText(control, text);

  switch (kind) {
    case ControlKind::ListView: LocaliseColumnHeads(control, dialogSection, catalog); break;
    case ControlKind::Toolbar: LocaliseToolbar(control, dialogSection, catalog); break;
    case ControlKind::TabStrip: LocaliseTabs(control, dialogSection, catalog); break;
    case ControlKind::ComboBox:
    case ControlKind::ListBox: LocaliseRows(control, where, catalog); break;
    default: break;
  }
}

}  // namespace

void LocaliseForm(LocalisableForm& form, std::string_view section, const MessageCatalog& catalog,
                  const CaptionSources& sources) {
  const std::string dialogSection = section.empty() ? form.Name() : std::string(section);
  form.ForEachControl([&](LocalisableControl& control) { LocaliseControl(control, dialogSection, catalog); });
  LocaliseDialogCaption(form, dialogSection, catalog, sources);
}

std::string WithoutAmpersands(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (c != '&') out.push_back(c);
  }
  return out;
}

}  // namespace nomra::lang
