#include "fileops/CollisionQuestions.h"

#include "base/DateText.h"
#include "base/NumberText.h"
#include "fileops/FilePaths.h"
#include "lang/MessageKeys.h"

namespace nomra::fileops {

namespace {

constexpr char kLineBreak[] = "\n";

Message FileExistsQuestion(const Collision& collision) {
  return {lang::kFileExists,
          lang::kReplaceCaption,
          MessageStyle::YesNoCancelDefaultNo,
          {NameOf(collision.target), FolderOf(collision.target), FolderOf(collision.source),
           text::FormatGrouped(collision.targetInfo.size), text::FormatListDate(collision.targetInfo.modified.value_or(0)),
           text::FormatGrouped(collision.sourceInfo.size), text::FormatListDate(collision.sourceInfo.modified.value_or(0)),
           kLineBreak}};
}

}  // namespace

CollisionChoice CollisionQuestions::Ask(const Collision& collision, bool moreFollow) {
  const bool replaceable = collision.targetInfo.kind != platform::EntryKind::Folder;
  if (forAll_ && (*forAll_ != CollisionChoice::Replace || replaceable)) return *forAll_;
  const CollisionChoice choice = AskOnce(collision, replaceable);
  if (choice == CollisionChoice::Stop || !moreFollow) return choice;
  if (frontEnd_.Ask({lang::kSameForAll, lang::kReplaceCaption, MessageStyle::YesNo, {}}) == Answer::Yes) forAll_ = choice;
  return choice;
}

CollisionChoice CollisionQuestions::AskOnce(const Collision& collision, bool replaceable) {
  if (replaceable) {
    const Answer answer = frontEnd_.Ask(FileExistsQuestion(collision));
    if (answer == Answer::Yes) return CollisionChoice::Replace;
    if (answer == Answer::Cancel) return CollisionChoice::Stop;
  }
  const Message keepBoth{lang::kKeepBoth, lang::kReplaceCaption, MessageStyle::YesNo,
                         {NameOf(collision.keepBothTarget), kLineBreak}};
  return frontEnd_.Ask(keepBoth) == Answer::Yes ? CollisionChoice::KeepBoth : CollisionChoice::Skip;
}

}  // namespace nomra::fileops
