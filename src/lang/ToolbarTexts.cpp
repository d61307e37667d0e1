#include "lang/ToolbarTexts.h"

#include <initializer_list>
#include <string>

#include "lang/LanguageKeys.h"

namespace nomra::lang {

namespace {

struct Lookup {
  std::string_view section;
  std::string key;
};

std::string FirstText(const MessageCatalog& catalog, std::initializer_list<Lookup> lookups) {
  for (const auto& lookup : lookups) {
    std::string text = catalog.GetText(lookup.section, lookup.key);
    if (!text.empty()) return text;
  }
  return {};
}

bool CarriesToolTip(int style) {
  return style == kButtonStyleDefault || style == kButtonStyleCheck || style == kButtonStyleDropDown;
}

// A button's own key is tried first, then the names it has as a part of this
// toolbar and as a menu entry, and last the shared button texts.
std::string ToolTipOf(const std::string& key, const std::string& toolbarName, std::string_view section,
                      const MessageCatalog& catalog) {
  return WithoutAmpersands(FirstText(
      catalog, {{section, key}, {section, toolbarName + key}, {section, kMenuPrefix + key}, {kButtonsSection, key}}));
}

std::string EntryTextOf(const std::string& key, const std::string& toolbarName, std::string_view section,
                        const MessageCatalog& catalog) {
  return FirstText(catalog, {{section, toolbarName + key}, {section, kMenuPrefix + key}});
}

}  // namespace

void LocaliseToolbar(LocalisableControl& toolbar, std::string_view dialogSection, const MessageCatalog& catalog) {
  const std::string toolbarName = toolbar.Name();
  const auto buttons = toolbar.Buttons();
  for (std::size_t b = 0; b < buttons.size(); ++b) {
    const auto& button = buttons[b];
    if (!CarriesToolTip(button.style)) continue;
    const int index = static_cast<int>(b);
    const std::string tip = ToolTipOf(button.key, toolbarName, dialogSection, catalog);
    if (!tip.empty()) toolbar.SetButtonToolTip(index, tip);
    if (button.style != kButtonStyleDropDown) continue;
    for (std::size_t e = 0; e < button.entryKeys.size(); ++e) {
      const std::string text = EntryTextOf(button.entryKeys[e], toolbarName, dialogSection, catalog);
      if (!text.empty()) toolbar.SetEntryText(index, static_cast<int>(e), text);
    }
  }
}

}  // namespace nomra::lang
