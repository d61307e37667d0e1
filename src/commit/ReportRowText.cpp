#include "commit/ReportRowText.h"

#include "lang/LanguageKeys.h"

namespace nomra::commit {

std::string ReportRowText(const ReportRow& row, const lang::MessageCatalog& catalog) {
  std::string text = catalog.GetText(lang::kMessagesSection, row.textKey, row.arguments);
  if (text.empty()) return row.Describe();
  if (!row.systemText.empty()) text += "   " + row.systemText;
  if (!row.about.empty()) text = row.about + ": " + text;
  return text;
}

}  // namespace nomra::commit
