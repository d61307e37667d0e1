#include "core/NameHistory.h"

#include <utility>

#include "core/RefreshPreview.h"
#include "lang/MessageKeys.h"

namespace nomra {

bool mnuUndo(MainModel& model) {
  if (model.securityQuestions[0] &&
      model.frontEnd.Ask({lang::kUndoQuestion, "", MessageStyle::YesNo, {}}) != Answer::Yes) {
    return false;
  }
  model.frontEnd.SetBusy(true);
  model.list.ForEach([](FileEntry& row) {
    row[kColNewName] = row[kColHistoryFirst];
    row.PopHistory();
  });
  refreshPreview(model);
  model.frontEnd.SetBusy(false);
  return true;
}

bool mnuRejectChanges(MainModel& model) {
  if (model.securityQuestions[2] &&
      model.frontEnd.Ask({lang::kRejectChangesQuestion, lang::kRejectChangesCaption, MessageStyle::YesNoWarningDefaultNo, {}}) != Answer::Yes) {
    return false;
  }
  model.list.ForEach([](FileEntry& row) {
    row[kColNewName] = row[kColOldName];
    row[kColHistory0] = row[kColOldName];
    for (int column = kColHistoryFirst; column <= kColHistoryLast; ++column) row[column].clear();
  });
  refreshPreview(model);
  return true;
}

}  // namespace nomra
