#include "core/RemoveRows.h"

#include <functional>

#include "base/CaseMap.h"
#include "base/Fault.h"
#include "core/RefreshPreview.h"
#include "lang/MessageKeys.h"

namespace nomra {

namespace {

using RowTest = std::function<bool(const FileEntry&)>;

RowCommitter& Committer(MainModel& model) {
  if (model.committer == nullptr) {
    throw RuntimeFault("Pending changes can't be taken here; the rows stay in the list");
  }
  return *model.committer;
}

Answer AskKeepChanges(MainModel& model, const char* textKey) {
  return model.frontEnd.Ask({textKey, lang::kPendingChangesCaption, MessageStyle::YesNoCancelDefaultNo, {}});
}

bool AnyPendingAmong(MainModel& model, const RowTest& picked) {
  bool any = false;
  model.list.ForEach([&](const FileEntry& row) {
    if (picked(row) && row.HasPendingChange()) any = true;
  });
  return any;
}

// Rows go from position 1 up; the position moves on only past rows that
// stay. With `commitFirst`, each picked row is taken alone before it goes.
void RemovePicked(MainModel& model, const RowTest& picked, bool commitFirst) {
  if (!commitFirst) {
    model.list.RemoveWhere(picked);
    return;
  }
  int position = 1;
  while (position <= model.list.Count()) {
    if (picked(model.list.Item(position))) {
      Committer(model).CommitRow(position);
      model.list.Remove(position);
    } else {
      ++position;
    }
  }
}

bool RemoveAll(MainModel& model) {
  if (model.changedCount > 0) {
    const Answer answer = AskKeepChanges(model, lang::kRemoveRowsWithChangesQuestion);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes) Committer(model).CommitAll();
  }
  model.list.Clear();
  return true;
}

bool RemoveSome(MainModel& model, const RowTest& picked, bool askAlways) {
  bool commitFirst = false;
  if (askAlways || AnyPendingAmong(model, picked)) {
    const Answer answer = AskKeepChanges(model, lang::kRemoveRowsWithChangesQuestion);
    if (answer == Answer::Cancel) return false;
    commitFirst = answer == Answer::Yes;
  }
  RemovePicked(model, picked, commitFirst);
  return true;
}

bool RemoveByTag(MainModel& model) {
  const std::string tag = text::ToUpper(model.delListTag);
  bool done = false;
  if (tag.empty() || tag == "DELLIST1") {
    done = RemoveAll(model);
  } else if (tag == "DELLIST2") {
    done = RemoveSome(model, [](const FileEntry& row) { return row.selected; }, false);
  } else if (tag == "DELLIST3") {
    done = RemoveSome(model, [](const FileEntry& row) { return !row.selected; }, false);
  } else if (tag == "DELLIST4") {
    if (model.changedCount < 1) return false;
    done = RemoveSome(model, [](const FileEntry& row) { return row.HasPendingChange(); }, true);
  } else if (tag == "DELLIST5") {
    done = RemoveSome(model, [](const FileEntry& row) { return !row.HasPendingChange(); }, false);
  } else {
    return false;
  }
  if (done) refreshPreview(model);
  return done;
}

}  // namespace

bool deleteFromList(MainModel& model) {
  try {
    return RemoveByTag(model);
  } catch (const RuntimeFault&) {
    // What was removed before the fault stays removed; the view must show it.
    refreshPreview(model);
    throw;
  }
}

bool btnBarLeftDel1File(MainModel& model, int position) {
  FileEntry& row = model.list.Item(position);
  if (row.HasPendingChange()) {
    const Answer answer = AskKeepChanges(model, lang::kRemoveRowWithChangeQuestion);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes) Committer(model).CommitRow(position);
  }
  model.list.Remove(position);
  refreshPreview(model);
  return true;
}

}  // namespace nomra
