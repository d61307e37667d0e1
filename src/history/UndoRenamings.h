#pragma once
#include <functional>
#include <string>
#include <vector>

#include "commit/ReportRow.h"
#include "core/FrontEnd.h"
#include "history/HistoryList.h"
#include "platform/FileSystem.h"

namespace nomra::history {

// What "%1" stands for in the history window's questions: the text breaks
// into paragraphs.
inline constexpr char kParagraphBreak[] = "\n\n";

// What the history's commands work with.
struct HistoryServices {
  platform::FileSystem& fileSystem;
  core::FrontEnd& frontEnd;
  std::string dataFolder;  // holds "renamed.nrp"; ends with the separator
  // Shows a rename that failed at once, before the next one is tried; "%1"
  // and "%2" of its text are the two paths in double quotes. Without it the
  // front end shows the message by its keys, without the system's text.
  std::function<void(const commit::ReportRow& failure)> showFailure;
};

struct UndoOutcome {
  bool confirmed = false;  // the question was answered Yes
  int undone = 0;
  std::vector<commit::ReportRow> failures;  // in the order they were shown
};

// The message a failed undo shows when the front end is told it by its keys.
core::Message FailureMessage(const commit::ReportRow& failure);

// UndoRenamings, the command of cmdUndoRenaming: after a Yes to MsgText18,
// each selected black row, in the order shown, renames its file from the new
// name back to the old one, never over another file. A row whose rename
// worked leaves the list; one that failed shows its message at once and
// stays, in the list and in the protocol. Red rows are passed over. No plan
// orders a chain: undoing it needs the later record first. The undo is not
// logged. Then the protocol is rewritten in the order shown, which throws
// RuntimeFault when it can't be; the renames done stay done.
UndoOutcome UndoRenamings(HistoryList& list, const HistoryServices& services);

// cmdDeleteHistory: after a Yes to MsgText19 the list is cleared and the
// protocol rewritten empty. Answers whether it was. Throws RuntimeFault when
// the protocol can't be written.
bool cmdDeleteHistory(HistoryList& list, const HistoryServices& services);

}  // namespace nomra::history
