#include "core/RemoveRows.h"

#include <functional>

#include "base/CaseMap.h"
#include "base/Fault.h"
#include "lang/MessageKeys.h"

namespace nomra::core {

namespace {

using RowTest = std::function<bool(const FileEntry&)>;

// One removal: the list, the user, and whoever takes pending changes to
// disk before their rows go.
class Removal {
 public:
  Removal(const ListContext& context, RowCommitter* committer) : context_(context), committer_(committer) {}

  RowCommitter& Committer() const {
    if (committer_ == nullptr)
      throw base::RuntimeFault("Pending changes can't be taken here; the rows stay in the list");
    return *committer_;
  }

  Answer AskKeepChanges(const char* textKey) const {
    return context_.frontEnd.Ask({textKey, lang::kPendingChangesCaption, MessageStyle::YesNoCancelDefaultNo, {}});
  }

  bool AnyPendingAmong(const RowTest& picked) const {
    bool any = false;
    context_.List().ForEach([&](const FileEntry& row) {
      if (picked(row) && row.HasPendingChange()) any = true;
    });
    return any;
  }

  // Rows go from position 1 up; the position moves on only past rows that
  // stay. With `commitFirst`, each picked row is taken alone before it goes.
  void RemovePicked(const RowTest& picked, bool commitFirst) const {
    FileList& list = context_.List();
    if (!commitFirst) {
      list.RemoveWhere(picked);
      return;
    }
    int position = 1;
    while (position <= list.Count()) {
      if (picked(list.Item(position))) {
        Committer().CommitRow(position);
        list.Remove(position);
      } else {
        ++position;
      }
    }
  }

  bool RemoveAll() const {
    if (context_.state.changedCount > 0) {
      const Answer answer = AskKeepChanges(lang::kRemoveRowsWithChangesQuestion);
      if (answer == Answer::Cancel) return false;
      if (answer == Answer::Yes) Committer().CommitAll();
    }
    context_.List().Clear();
    return true;
  }

  bool RemoveSome(const RowTest& picked, bool askAlways) const {
    bool commitFirst = false;
    if (askAlways || AnyPendingAmong(picked)) {
      const Answer answer = AskKeepChanges(lang::kRemoveRowsWithChangesQuestion);
      if (answer == Answer::Cancel) return false;
      commitFirst = answer == Answer::Yes;
    }
    RemovePicked(picked, commitFirst);
    return true;
  }

  bool RemoveByTag(std::string_view variant) const {
    const std::string tag = base::ToUpper(variant);
    bool done = false;
    if (tag.empty() || tag == "DELLIST1") {
      done = RemoveAll();
    } else if (tag == "DELLIST2") {
      done = RemoveSome([](const FileEntry& row) { return row.selected; }, false);
    } else if (tag == "DELLIST3") {
      done = RemoveSome([](const FileEntry& row) { return !row.selected; }, false);
    } else if (tag == "DELLIST4") {
      if (context_.state.changedCount < 1) return false;
      done = RemoveSome([](const FileEntry& row) { return row.HasPendingChange(); }, true);
    } else if (tag == "DELLIST5") {
      done = RemoveSome([](const FileEntry& row) { return !row.HasPendingChange(); }, false);
    } else {
      return false;
    }
    if (done) context_.preview.Refresh();
    return done;
  }

 private:
  const ListContext& context_;
  RowCommitter* committer_;
};

}  // namespace

bool deleteFromList(const ListContext& context, RowCommitter* committer, std::string_view variant) {
  try {
    return Removal(context, committer).RemoveByTag(variant);
  } catch (const base::RuntimeFault&) {
    // What was removed before the fault stays removed; the view must show it.
    context.preview.Refresh();
    throw;
  }
}

bool btnBarLeftDel1File(const ListContext& context, RowCommitter* committer, int position) {
  const Removal removal(context, committer);
  FileEntry& row = context.List().Item(position);
  if (row.HasPendingChange()) {
    const Answer answer = removal.AskKeepChanges(lang::kRemoveRowWithChangeQuestion);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes) removal.Committer().CommitRow(position);
  }
  context.List().Remove(position);
  context.preview.Refresh();
  return true;
}

}  // namespace nomra::core
