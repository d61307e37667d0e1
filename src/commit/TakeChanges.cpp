#include "commit/TakeChanges.h"

#include "base/CaseMap.h"
#include "commit/NotRenamedReport.h"
#include "commit/RenameFiles.h"
#include "core/RefreshPreview.h"
#include "lang/MessageKeys.h"

namespace nomra {

namespace {

bool UserAgrees(MainModel& model) {
  if (!model.securityQuestions[1]) return true;
  return model.frontEnd.Ask({lang::kTakeChangesQuestion, lang::kPendingChangesCaption, MessageStyle::YesNo, {}}) == Answer::Yes;
}

}  // namespace

std::optional<CommitResult> takeChanges(MainModel& model, std::string_view tag, const CommitServices& services) {
  if (text::EqualsNoCase(tag, "TakeChanges2")) {
    if (services.showSelectAction) services.showSelectAction();
    return std::nullopt;
  }
  if (!tag.empty() && !text::EqualsNoCase(tag, "TakeChanges1")) return std::nullopt;
  if (!UserAgrees(model)) return std::nullopt;
  CommitResult result = mdlRenameFiles(model, kWholeList, services.clock);
  ShowNotRenamed(model, result, services);
  refreshPreview(model);
  return result;
}

}  // namespace nomra
