#include "shell/StatusTextsOfLanguage.h"

#include "lang/LanguageKeys.h"
#include "lang/MessageKeys.h"

namespace nomra::shell {

core::StatusTexts StatusTextsOf(const lang::MessageCatalog& catalog) {
  const auto text = [&catalog](const char* key) { return catalog.GetText(lang::kMessagesSection, key); };
  core::StatusTexts texts;
  texts.listSummary = text(lang::kListSummaryStatus);
  texts.adding = text(lang::kAddingStatus);
  texts.renamed = text(lang::kRenamedStatus);
  texts.noScript = text(lang::kNoScriptStatus);
  texts.rowOfCount = text(lang::kRowOfCountStatus);
  return texts;
}

}  // namespace nomra::shell
