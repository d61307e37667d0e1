#include "commit/TakeChanges.h"

#include "base/CaseMap.h"
#include "commit/NotRenamedReport.h"
#include "commit/RenameFiles.h"
#include "lang/MessageKeys.h"

namespace nomra::commit {

namespace {

bool UserAgrees(const CommitContext& context) {
  if (!context.options.securityQuestions[1]) return true;
  return context.frontEnd.Ask(
             {lang::kTakeChangesQuestion, lang::kPendingChangesCaption, core::MessageStyle::YesNo, {}}) ==
         core::Answer::Yes;
}

}  // namespace

std::optional<CommitResult> takeChanges(const CommitContext& context, core::Preview& preview, std::string_view tag,
                                        const CommitServices& services) {
  if (base::EqualsNoCase(tag, "TakeChanges2")) {
    if (services.showSelectAction) services.showSelectAction();
    return std::nullopt;
  }
  if (!tag.empty() && !base::EqualsNoCase(tag, "TakeChanges1")) return std::nullopt;
  if (!UserAgrees(context)) return std::nullopt;
  CommitResult result = mdlRenameFiles(context, kWholeList, services.clock);
  ShowNotRenamed(context, result, services);
  preview.Refresh();
  return result;
}

}  // namespace nomra::commit
