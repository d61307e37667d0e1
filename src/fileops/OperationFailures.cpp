#include "fileops/OperationFailures.h"

#include <cerrno>

#include "fileops/FilePaths.h"
#include "lang/MessageKeys.h"

namespace nomra::fileops {

namespace {

core::Message Stop(const char* key, std::vector<std::string> arguments) {
  return {key, lang::kAttentionCaption, core::MessageStyle::OkStop, std::move(arguments)};
}

core::Message FailureMessage(OperationKind kind, const base::Failure& failure) {
  const std::string targetFolder = base::FolderOf(failure.target);
  switch (failure.kind) {
    case base::FailureKind::OriginalKept:
      return Stop(lang::kOriginalKept, {failure.path, failure.target, base::SystemErrorText(failure.systemError)});
    case base::FailureKind::SourceMissing: return Stop(lang::kSourceMissing, {failure.path});
    case base::FailureKind::NotAFolder: return Stop(lang::kNotAFolder, {failure.obstacle});
    default: break;
  }
  switch (failure.systemError) {
    case ENOSPC:
    case EDQUOT: return Stop(lang::kDiskFull, {failure.path, targetFolder});
    case EACCES:
    case EPERM:
    case EROFS: return Stop(lang::kAccessDenied, {failure.path, targetFolder});
    default: break;
  }
  const char* key = kind == OperationKind::Move ? lang::kMoveFailed : lang::kCopyFailed;
  return Stop(key, {failure.path, failure.target, base::SystemErrorText(failure.systemError)});
}

}  // namespace

void ShowTransferFailure(core::FrontEnd& frontEnd, OperationKind kind, const base::Failure& failure) {
  frontEnd.Ask(FailureMessage(kind, failure));
}

bool AskGoOn(core::FrontEnd& frontEnd, int filesLeft) {
  if (filesLeft <= 0) return true;
  const core::Message question{
      lang::kGoOn, lang::kAttentionCaption, core::MessageStyle::YesNo, {std::to_string(filesLeft)}};
  return frontEnd.Ask(question) == core::Answer::Yes;
}

}  // namespace nomra::fileops
