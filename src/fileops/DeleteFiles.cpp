#include "fileops/DeleteFiles.h"

#include "fileops/OperationFailures.h"
#include "lang/MessageKeys.h"

namespace nomra::fileops {

namespace {

constexpr char kLineBreak[] = "\n";

bool UserAgrees(const std::vector<std::string>& paths, bool toTrash, core::FrontEnd& frontEnd) {
  const bool one = paths.size() == 1;
  const char* key = toTrash ? (one ? lang::kTrashOne : lang::kTrashMany) : (one ? lang::kDeleteOne : lang::kDeleteMany);
  const std::string what = one ? paths.front() : std::to_string(paths.size());
  const core::MessageStyle style = toTrash ? core::MessageStyle::YesNo : core::MessageStyle::YesNoWarningDefaultNo;
  return frontEnd.Ask({key, lang::kDeleteCaption, style, {what}}) == core::Answer::Yes;
}

enum class Step { Next, Stop };

Step Record(DeleteOutcome& outcome, int error) {
  if (outcome.result == 0) outcome.result = error;
  return Step::Next;
}

Step DeleteAtOnce(const std::string& path, std::size_t left, DeleteOutcome& outcome, OperationServices& services) {
  const int error = services.fileSystem.RemoveFile(path);
  if (error == 0) return Step::Next;
  Record(outcome, error);
  services.frontEnd.Ask(
      {lang::kDeleteFailed, lang::kAttentionCaption, core::MessageStyle::OkStop, {path, base::SystemErrorText(error)}});
  return AskGoOn(services.frontEnd, static_cast<int>(left)) ? Step::Next : Step::Stop;
}

Step SendToTrash(const std::string& path, std::size_t left, DeleteOutcome& outcome, OperationServices& services) {
  const int error = services.trash.MoveToTrash(path, services.clock());
  if (error == 0) return Step::Next;
  // Deleting for good instead is the user's choice, never ours.
  const core::Message offer{lang::kTrashFailed,
                            lang::kAttentionCaption,
                            core::MessageStyle::YesNoCancelDefaultNo,
                            {path, base::SystemErrorText(error), kLineBreak}};
  switch (services.frontEnd.Ask(offer)) {
    case core::Answer::Yes: return DeleteAtOnce(path, left, outcome, services);
    case core::Answer::Cancel: Record(outcome, error); return Step::Stop;
    default: return Record(outcome, error);
  }
}

}  // namespace

DeleteOutcome DeleteFiles(const std::vector<std::string>& paths, bool toTrash, bool confirm,
                          OperationServices& services) {
  DeleteOutcome outcome;
  if (paths.empty()) return outcome;
  if (confirm && !UserAgrees(paths, toTrash, services.frontEnd)) {
    outcome.aborted = true;
    return outcome;
  }
  core::ProgressStep step;
  step.task = ProgressTaskOf(toTrash ? OperationKind::Trash : OperationKind::Delete);
  step.count = static_cast<int>(paths.size());
  services.progress.Begin(step);
  for (std::size_t index = 0; index < paths.size(); ++index) {
    step.index = static_cast<int>(index) + 1;
    step.path = paths[index];
    const std::size_t left = paths.size() - index - 1;
    if (!services.progress.Tick(step) ||
        (toTrash ? SendToTrash(paths[index], left, outcome, services)
                 : DeleteAtOnce(paths[index], left, outcome, services)) == Step::Stop) {
      outcome.aborted = true;
      break;
    }
  }
  services.progress.End();
  return outcome;
}

}  // namespace nomra::fileops
