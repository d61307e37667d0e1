#pragma once
#include <string>
#include <vector>

#include "base/LocalClock.h"
#include "commit/CommitContext.h"
#include "commit/CommitJournal.h"
#include "commit/CommitResult.h"
#include "commit/PathKeys.h"
#include "commit/ProtocolWriter.h"
#include "commit/RenameFailure.h"

namespace nomra::commit {

// What every part of one commit shares: the model, the report being filled,
// the open protocol and journal, and the case rules asked for this commit.
class CommitBatch {
 public:
  CommitBatch(const CommitContext& context, CommitResult& result, ProtocolWriter& protocol, CommitJournal& journal,
              const base::LocalClock& clock)
      : context(context),
        result(result),
        keys(context.fileSystem),
        protocol_(protocol),
        journal_(journal),
        clock_(clock) {}

  // The failure handler: one numbered report row; the commit goes on.
  void Fail(const std::string& rowKey, const base::Failure& failure, const std::string& src, const std::string& dst);

  // The protocol record of a row whose rename has just worked, taken from
  // its columns before they change; written only when renames are logged.
  void RecordRename(const core::FileEntry& row);

  // Opens the commit journal with the renames the batch will make. A journal
  // that can't be written is one report row and the batch goes on without
  // it: no rename ever replaces a file, so only the repair after a crash is
  // lost, and refusing to rename would cost the user more than that.
  // The moves to temporary names foreseen for the plan go in with it.
  void BeginJournal(const std::vector<JournalPlanEntry>& plan,
                    const std::vector<JournalTemporaryEntry>& temporaries = {});
  // Journals a move to a temporary name that wasn't foreseen, before it
  // happens. The first failure is one report row; the batch goes on
  // without the journal.
  void JournalTemporary(const std::string& source, const std::string& temporary, const std::string& final);
  void FinishJournal() { journal_.Finish(); }

  const CommitContext& context;
  CommitResult& result;
  PathKeys keys;

 private:
  void FailJournal(int error);

  ProtocolWriter& protocol_;
  CommitJournal& journal_;
  const base::LocalClock& clock_;
};

}  // namespace nomra::commit
