#include "fileops/OperationFailures.h"

#include <cerrno>
#include <system_error>

#include "fileops/FilePaths.h"
#include "fileops/MessageKeys.h"

namespace nomra::fileops {

namespace {

Message Stop(const char* key, std::vector<std::string> arguments) {
  return {key, kAttentionCaption, MessageStyle::OkStop, std::move(arguments)};
}

Message FailureMessage(OperationKind kind, const TransferFailure& failure) {
  const std::string targetFolder = FolderOf(failure.target);
  if (failure.originalKept) {
    return Stop(kOriginalKept, {failure.source, failure.target, SystemText(failure.error)});
  }
  if (failure.sourceMissing) return Stop(kSourceMissing, {failure.source});
  if (!failure.notAFolder.empty()) return Stop(kNotAFolder, {failure.notAFolder});
  switch (failure.error) {
    case ENOSPC:
    case EDQUOT:
      return Stop(kDiskFull, {failure.source, targetFolder});
    case EACCES:
    case EPERM:
    case EROFS:
      return Stop(kAccessDenied, {failure.source, targetFolder});
    default:
      break;
  }
  const char* key = kind == OperationKind::Move ? kMoveFailed : kCopyFailed;
  return Stop(key, {failure.source, failure.target, SystemText(failure.error)});
}

}  // namespace

std::string SystemText(int error) { return std::generic_category().message(error); }

void ShowTransferFailure(FrontEnd& frontEnd, OperationKind kind, const TransferFailure& failure) {
  frontEnd.Ask(FailureMessage(kind, failure));
}

bool AskGoOn(FrontEnd& frontEnd, int filesLeft) {
  if (filesLeft <= 0) return true;
  const Message question{kGoOn, kAttentionCaption, MessageStyle::YesNo, {std::to_string(filesLeft)}};
  return frontEnd.Ask(question) == Answer::Yes;
}

}  // namespace nomra::fileops
