#include "structure/TagChoices.h"

#include "lang/LanguageKeys.h"

namespace nomra::structure {

namespace {

constexpr char kComboBoxesSection[] = "ComboBoxes";
constexpr std::string_view kElementLists[] = {"cmbElements", "cmbExif", "cmbMP3Tag", "cmbDOSTag"};
constexpr char kFunctionList[] = "cmbFunctions";

}  // namespace

std::vector<TagChoice> ReadTagChoices(const lang::MessageCatalog& catalog, std::string_view list) {
  std::vector<TagChoice> choices;
  const std::string prefix = std::string(list) + lang::kRowKeySeparator;
  for (int n = 1;; ++n) {
    const std::string value = catalog.GetText(kComboBoxesSection, prefix + std::to_string(n));
    if (value.empty()) break;
    const std::size_t bar = value.find(lang::kTagSeparator);
    if (bar == std::string::npos) {
      choices.push_back({value, value});
    } else {
      choices.push_back({value.substr(0, bar), value.substr(bar + 1)});
    }
  }
  return choices;
}

std::vector<TagChoice> ElementChoices(const lang::MessageCatalog& catalog) {
  std::vector<TagChoice> choices;
  for (const std::string_view list : kElementLists) {
    std::vector<TagChoice> more = ReadTagChoices(catalog, list);
    choices.insert(choices.end(), more.begin(), more.end());
  }
  return choices;
}

std::vector<TagChoice> FunctionChoices(const lang::MessageCatalog& catalog) {
  return ReadTagChoices(catalog, kFunctionList);
}

}  // namespace nomra::structure
