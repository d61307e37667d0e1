#include "core/NameHistory.h"

#include <utility>

#include "core/BusyPointer.h"
#include "lang/MessageKeys.h"

namespace nomra::core {

bool mnuUndo(const ListContext& context, bool askFirst) {
  if (askFirst && context.frontEnd.Ask({lang::kUndoQuestion, "", MessageStyle::YesNo, {}}) != Answer::Yes) {
    return false;
  }
  BusyPointer busy(context.frontEnd);
  context.List().ForEach([](FileEntry& row) {
    row[kColNewName] = row[kColHistoryFirst];
    row.PopHistory();
  });
  context.preview.Refresh();
  return true;
}

bool mnuRejectChanges(const ListContext& context, bool askFirst) {
  if (askFirst &&
      context.frontEnd.Ask(
          {lang::kRejectChangesQuestion, lang::kRejectChangesCaption, MessageStyle::YesNoWarningDefaultNo, {}}) !=
          Answer::Yes) {
    return false;
  }
  context.List().ForEach([](FileEntry& row) {
    row[kColNewName] = row[kColOldName];
    row[kColHistory0] = row[kColOldName];
    for (int column = kColHistoryFirst; column <= kColHistoryLast; ++column) row[column].clear();
  });
  context.preview.Refresh();
  return true;
}

}  // namespace nomra::core
