#include "commit/CommitRecovery.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/DateText.h"
#include "base/Failure.h"
#include "base/Paths.h"
#include "base/Quoting.h"
#include "commit/CommitExecution.h"
#include "commit/CommitJournal.h"
#include "commit/JournalFormat.h"

namespace nomra::commit {

namespace {

bool IsThere(platform::FileSystem& fileSystem, const std::string& path) {
  return fileSystem.Status(path).kind != platform::EntryKind::Missing;
}

// Moves a file the journal put under a temporary name; nothing when the
// move worked, else the reason.
std::optional<base::Failure> MoveBack(platform::FileSystem& fileSystem, const std::string& temporary,
                                      const std::string& to) {
  const platform::RenameResult renamed = fileSystem.RenameNoReplace(temporary, to);
  if (renamed.ok) return std::nullopt;
  return base::SystemFailure(renamed.error, temporary, to);
}

// A "T" record: the file may have gone from its source to the temporary
// name (the record is flushed before the move, with the plan when the move
// was foreseen, and a foreseen move may never have come), and on to the
// final name at the end of the batch. Cut short in between, it goes on to
// its final name; when that is still taken (the other half of a swap never
// moved), back to its source, so every file ends under its old name or its
// new one, never a temporary one. `planned`: a "P" record names the same
// rename, and will tell of a file under none of its names.
void FinishTemporary(platform::FileSystem& fileSystem, const JournalTemporaryEntry& entry, bool planned,
                     InterruptedCommit& commit) {
  const std::string names = base::Quoted(entry.temporary) + " -> " + base::Quoted(entry.final);
  // Only the batch's own form of a temporary name is ever moved.
  if (entry.temporary != entry.final + std::string(kTemporaryMark)) {
    commit.unresolved.push_back(names + ": the journal's entry is not a temporary name of its final name");
    return;
  }
  if (!IsThere(fileSystem, entry.temporary)) {
    // Moved on to the final name already, or never moved away from the
    // source: both leave the file under a name of its own.
    if (!planned && !IsThere(fileSystem, entry.final) && !IsThere(fileSystem, entry.source)) {
      commit.unresolved.push_back(base::Quoted(entry.source) + " -> " + names +
                                  ": the file is under none of these names");
    }
    return;
  }
  if (!IsThere(fileSystem, entry.final)) {
    if (const auto failure = MoveBack(fileSystem, entry.temporary, entry.final)) {
      commit.unresolved.push_back(names + ": " + failure->systemText);
    } else {
      commit.finished.push_back(names);
    }
    return;
  }
  const std::string back = base::Quoted(entry.temporary) + " -> " + base::Quoted(entry.source);
  if (IsThere(fileSystem, entry.source)) {
    commit.unresolved.push_back(names + ": the final name and the old name " + base::Quoted(entry.source) +
                                " are both taken; the file stays under the temporary name");
    return;
  }
  if (const auto failure = MoveBack(fileSystem, entry.temporary, entry.source)) {
    commit.unresolved.push_back(back + ": " + failure->systemText);
  } else {
    commit.finished.push_back(back + " (back to its old name: the final name is taken)");
  }
}

// A planned rename that left its file under neither name: moved or removed
// from outside. Told, never searched for.
void CheckPlanned(platform::FileSystem& fileSystem, const JournalPlanEntry& entry,
                  const std::unordered_set<std::string>& stillTemporary, InterruptedCommit& commit) {
  if (stillTemporary.contains(entry.final)) return;  // told already
  if (IsThere(fileSystem, entry.source) || IsThere(fileSystem, entry.final)) return;
  commit.unresolved.push_back(base::Quoted(entry.source) + " -> " + base::Quoted(entry.final) +
                              ": the file is under neither name");
}

void ReadJournal(platform::FileSystem& fileSystem, const std::string& text, InterruptedCommit& commit) {
  const JournalContent content = ParseJournal(text);
  if (content.damagedAt != std::string::npos) {
    commit.unresolved.push_back("the journal is unreadable from byte " + std::to_string(content.damagedAt) +
                                "; nothing it holds from there on was touched");
  }
  std::unordered_set<std::string> stillTemporary;
  // Latest first. A move to a temporary name happened because the final
  // name's file hadn't moved yet, and that file's row comes later in the
  // batch: if it went to a temporary name too, its own fate (on, or back
  // into the name this one wants) must be settled first. A cycle cut short
  // before its last plain rename so goes back whole instead of jamming.
  // The plan is in the batch's order; the records of moves are not always
  // (one the plan didn't foresee comes after the foreseen ones of later
  // rows), so they are taken in the order of their rows in the plan. A
  // record without a row in the plan keeps its place after all of those.
  std::unordered_map<std::string, std::size_t> turnOf;
  for (std::size_t turn = 0; turn < content.plan.size(); ++turn) {
    turnOf.try_emplace(content.plan[turn].source + '\0' + content.plan[turn].final, turn);
  }
  std::vector<std::pair<std::size_t, const JournalTemporaryEntry*>> moves;
  for (std::size_t at = 0; at < content.temporaries.size(); ++at) {
    const JournalTemporaryEntry& entry = content.temporaries[at];
    const auto found = turnOf.find(entry.source + '\0' + entry.final);
    moves.emplace_back(found == turnOf.end() ? content.plan.size() + at : found->second, &entry);
  }
  std::stable_sort(moves.begin(), moves.end(),
                   [](const auto& left, const auto& right) { return left.first < right.first; });
  for (auto move = moves.rbegin(); move != moves.rend(); ++move) {
    const std::size_t before = commit.unresolved.size();
    FinishTemporary(fileSystem, *move->second, move->first < content.plan.size(), commit);
    if (commit.unresolved.size() != before) stillTemporary.insert(move->second->final);
  }
  for (const JournalPlanEntry& entry : content.plan) CheckPlanned(fileSystem, entry, stillTemporary, commit);
}

// Kept beside the journal under a name that says when; never replaces one
// kept before.
std::optional<std::string> KeepJournal(platform::FileSystem& fileSystem, const std::string& path,
                                       const base::LocalClock& clock) {
  const std::string stem = path + "." + base::FormatTimeStamp(clock());
  for (int attempt = 0; attempt < 100; ++attempt) {
    const std::string kept = stem + (attempt == 0 ? "" : "-" + std::to_string(attempt)) + ".left";
    const platform::RenameResult renamed = fileSystem.RenameNoReplace(path, kept);
    if (renamed.ok) return kept;
    if (renamed.error != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace

InterruptedCommit RecoverInterruptedCommit(platform::FileSystem& fileSystem, const std::string& dataFolder,
                                           const base::LocalClock& clock) {
  InterruptedCommit commit;
  if (dataFolder.empty()) return commit;
  const std::string path = base::AddBackslash(dataFolder) + kJournalFileName;
  const platform::ExistingLock journal = fileSystem.LockExisting(path);
  if (journal.state == platform::ExistingLock::State::Failed) {
    commit.found = true;
    commit.unresolved.push_back("the journal " + base::Quoted(path) +
                                " can't be read: " + base::SystemErrorText(journal.error));
    return commit;
  }
  // A commit of another Nomra is running, or there is nothing to do.
  if (journal.state != platform::ExistingLock::State::Locked) return commit;
  commit.found = true;

  const std::optional<std::string> text = fileSystem.ReadFile(path);
  if (!text) {
    commit.unresolved.push_back("the journal " + base::Quoted(path) + " can't be read");
  } else {
    ReadJournal(fileSystem, *text, commit);
  }

  if (commit.unresolved.empty()) {
    fileSystem.RemoveFile(path);
  } else if (const std::optional<std::string> kept = KeepJournal(fileSystem, path, clock)) {
    commit.unresolved.push_back("the journal is kept as " + base::Quoted(*kept) + " and will not be read again");
  } else {
    commit.unresolved.push_back("the journal " + base::Quoted(path) + " could not be set aside and will be read again");
  }
  return commit;
}

void ShowUnresolved(core::FrontEnd& frontEnd, const InterruptedCommit& commit) {
  for (const std::string& line : commit.unresolved) frontEnd.ShowFault("interrupted commit: " + line);
}

}  // namespace nomra::commit
