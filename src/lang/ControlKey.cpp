#include "lang/ControlKey.h"

#include <optional>

#include "base/CaseMap.h"
#include "lang/LanguageKeys.h"

namespace nomra::lang {

namespace {

// "key|section" split at the first separator; the section keeps any further one.
std::optional<TextKey> SplitKeyAndSection(std::string_view tag) {
  const std::size_t bar = tag.find(kTagSeparator);
  if (bar == std::string_view::npos) return std::nullopt;
  return TextKey{std::string(tag.substr(0, bar)), std::string(tag.substr(bar + 1))};
}

}  // namespace

TextKey KeyOfControl(ControlKind kind, std::string_view name, std::string_view tag, std::string_view dialogSection) {
  if (tag.empty()) {
    const std::string_view section = kind == ControlKind::CommandButton ? kButtonsSection : dialogSection;
    return TextKey{std::string(name), std::string(section)};
  }
  if (auto both = SplitKeyAndSection(tag)) return std::move(*both);
  if (base::StartsWithNoCase(tag, kDialogPrefix)) return TextKey{std::string(name), std::string(tag)};
  return TextKey{std::string(tag), std::string(dialogSection)};
}

TextKey KeyOfColumnHead(std::string_view tag, std::string_view dialogSection) {
  if (auto both = SplitKeyAndSection(tag)) return std::move(*both);
  return TextKey{std::string(tag), std::string(dialogSection)};
}

}  // namespace nomra::lang
