#include "lang/DialogCaption.h"

#include <string>

#include "base/CaseMap.h"
#include "lang/CaptionTable.h"
#include "lang/LanguageKeys.h"

namespace nomra::lang {

namespace {

std::string Without(std::string_view text, std::string_view dropped) {
  std::string out;
  for (char c : text) {
    if (dropped.find(c) == std::string_view::npos) out.push_back(c);
  }
  return out;
}

std::string MenuTitle(const CaptionSources& sources, std::string_view menu) {
  if (!sources.menuCaption) return {};
  return WithoutAmpersands(sources.menuCaption(menu));
}

template <typename Table>
const typename Table::value_type* FindDialog(const Table& table, std::string_view dialog) {
  for (const auto& row : table) {
    if (base::EqualsNoCase(row.dialog, dialog)) return &row;
  }
  return nullptr;
}

// The title the dialog's use takes from elsewhere; "" when it has none.
std::string BorrowedTitle(std::string_view section, const MessageCatalog& catalog, const CaptionSources& sources) {
  if (const auto* row = FindDialog(kScopedMenuCaptions, section)) {
    const std::string menu = MenuTitle(sources, row->menu);
    if (menu.empty()) return {};
    return menu + " (" + sources.applyScopeText + ")";
  }
  if (const auto* row = FindDialog(kPlainMenuCaptions, section)) return MenuTitle(sources, row->menu);
  if (const auto* row = FindDialog(kBorrowedCaptions, section)) {
    return Without(catalog.GetText(row->section, row->key), row->dropped);
  }
  return {};
}

// The protocol window names itself, where it is reached from and whose it is.
std::string HistoryTitle(const std::string& own, const CaptionSources& sources) {
  return own + std::string(kHistoryJoin) + MenuTitle(sources, kHistoryMenu) + std::string(kHistoryArrow) +
         sources.appTitle;
}

void SetOnControlsNamed(LocalisableForm& form, std::string_view name,
                        const std::function<void(LocalisableControl&)>& set) {
  form.ForEachControl([&](LocalisableControl& control) {
    if (base::EqualsNoCase(control.Name(), name)) set(control);
  });
}

// The window that lists failed renames shows the question of the copy and
// move dialog as the label of its own choice.
void LocaliseNotRenamed(LocalisableForm& form, const MessageCatalog& catalog) {
  const std::string question = catalog.GetText(kSelActionSection, kCaptionKey);
  if (question.empty()) return;
  const std::string label = question + std::string(kLabelEnd);
  SetOnControlsNamed(form, kSelActionLabel, [&](LocalisableControl& control) { control.SetCaption(label); });
}

// Both copy buttons of the tag editor share one text with the tag versions
// filled in.
void LocaliseID3Data(LocalisableForm& form, const MessageCatalog& catalog) {
  const std::string tip = WithoutAmpersands(
      catalog.GetText(kButtonsSection, kCopyDataToolTipKey, {std::string(kID3v1), std::string(kID3v2)}));
  if (tip.empty()) return;
  SetOnControlsNamed(form, kCopyDataButton, [&](LocalisableControl& control) { control.SetToolTip(tip); });
}

}  // namespace

void LocaliseDialogCaption(LocalisableForm& form, std::string_view section, const MessageCatalog& catalog,
                           const CaptionSources& sources) {
  const std::string own = catalog.GetText(section, kCaptionKey);
  std::string title;
  if (base::EqualsNoCase(section, kHistoryDialog)) {
    if (!own.empty()) title = HistoryTitle(own, sources);
  } else {
    title = own.empty() ? BorrowedTitle(section, catalog, sources) : own;
  }
  if (!title.empty()) form.SetCaption(title);

  if (base::EqualsNoCase(section, kNotRenamedDialog)) LocaliseNotRenamed(form, catalog);
  if (base::EqualsNoCase(section, kID3DataDialog)) LocaliseID3Data(form, catalog);
}

}  // namespace nomra::lang
