#include "fileops/CollisionQuestions.h"

#include "base/DateText.h"
#include "base/NumberText.h"
#include "fileops/FilePaths.h"
#include "lang/MessageKeys.h"

namespace nomra::fileops {

namespace {

constexpr char kLineBreak[] = "\n";

core::Message FileExistsQuestion(const Collision& collision) {
  return {
      lang::kFileExists,
      lang::kReplaceCaption,
      core::MessageStyle::YesNoCancelDefaultNo,
      {base::NameOf(collision.target), base::FolderOf(collision.target), base::FolderOf(collision.source),
       base::FormatGrouped(collision.targetInfo.size), base::FormatListDate(collision.targetInfo.modified.value_or(0)),
       base::FormatGrouped(collision.sourceInfo.size), base::FormatListDate(collision.sourceInfo.modified.value_or(0)),
       kLineBreak}};
}

}  // namespace

CollisionChoice CollisionQuestions::Ask(const Collision& collision, bool moreFollow) {
  const bool replaceable = collision.targetInfo.kind != platform::EntryKind::Folder;
  if (forAll_ && (*forAll_ != CollisionChoice::Replace || replaceable)) return *forAll_;
  const CollisionChoice choice = AskOnce(collision, replaceable);
  if (choice == CollisionChoice::Stop || !moreFollow) return choice;
  if (frontEnd_.Ask({lang::kSameForAll, lang::kReplaceCaption, core::MessageStyle::YesNo, {}}) == core::Answer::Yes)
    forAll_ = choice;
  return choice;
}

CollisionChoice CollisionQuestions::AskOnce(const Collision& collision, bool replaceable) {
  if (replaceable) {
    const core::Answer answer = frontEnd_.Ask(FileExistsQuestion(collision));
    if (answer == core::Answer::Yes) return CollisionChoice::Replace;
    if (answer == core::Answer::Cancel) return CollisionChoice::Stop;
  }
  const core::Message keepBoth{lang::kKeepBoth,
                               lang::kReplaceCaption,
                               core::MessageStyle::YesNo,
                               {base::NameOf(collision.keepBothTarget), kLineBreak}};
  return frontEnd_.Ask(keepBoth) == core::Answer::Yes ? CollisionChoice::KeepBoth : CollisionChoice::Skip;
}

}  // namespace nomra::fileops
