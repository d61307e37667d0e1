#include "fileops/OperationFailures.h"

#include <cerrno>

#include "fileops/FilePaths.h"
#include "lang/MessageKeys.h"

namespace nomra::fileops {

namespace {

Message Stop(const char* key, std::vector<std::string> arguments) {
  return {key, lang::kAttentionCaption, MessageStyle::OkStop, std::move(arguments)};
}

Message FailureMessage(OperationKind kind, const Failure& failure) {
  const std::string targetFolder = FolderOf(failure.target);
  switch (failure.kind) {
    case FailureKind::OriginalKept:
      return Stop(lang::kOriginalKept, {failure.path, failure.target, SystemErrorText(failure.systemError)});
    case FailureKind::SourceMissing:
      return Stop(lang::kSourceMissing, {failure.path});
    case FailureKind::NotAFolder:
      return Stop(lang::kNotAFolder, {failure.obstacle});
    default:
      break;
  }
  switch (failure.systemError) {
    case ENOSPC:
    case EDQUOT:
      return Stop(lang::kDiskFull, {failure.path, targetFolder});
    case EACCES:
    case EPERM:
    case EROFS:
      return Stop(lang::kAccessDenied, {failure.path, targetFolder});
    default:
      break;
  }
  const char* key = kind == OperationKind::Move ? lang::kMoveFailed : lang::kCopyFailed;
  return Stop(key, {failure.path, failure.target, SystemErrorText(failure.systemError)});
}

}  // namespace

void ShowTransferFailure(FrontEnd& frontEnd, OperationKind kind, const Failure& failure) {
  frontEnd.Ask(FailureMessage(kind, failure));
}

bool AskGoOn(FrontEnd& frontEnd, int filesLeft) {
  if (filesLeft <= 0) return true;
  const Message question{lang::kGoOn, lang::kAttentionCaption, MessageStyle::YesNo, {std::to_string(filesLeft)}};
  return frontEnd.Ask(question) == Answer::Yes;
}

}  // namespace nomra::fileops
