#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "commit/JournalFormat.h"
#include "platform/FileSystem.h"

namespace nomra::commit {

// The journal's name in the data folder.
inline constexpr char kJournalFileName[] = "commit.journal";

// The commit journal of one batch: what the batch is about to rename, on
// disk before the first rename, so that a start after a crash or a power
// loss can bring files left under a temporary name to their final names.
//
// While it is open the file is locked, so that a start of another
// Nomra during this commit leaves it alone; the lock goes with the process,
// so a killed commit's journal is free for the next start.
class CommitJournal {
 public:
  explicit CommitJournal(platform::FileSystem& fileSystem) : fileSystem_(fileSystem) {}
  // Closes without removing: a batch that ends by an exception leaves its
  // journal behind for the next start, as a crash would.
  ~CommitJournal();
  CommitJournal(const CommitJournal&) = delete;
  CommitJournal& operator=(const CommitJournal&) = delete;

  // Writes the header, the plan and the moves to temporary names foreseen
  // for it to a file of its own, flushes it and its folder to disk, then
  // gives it the journal's name without replacing one that is there (a
  // journal a crash left, or one of a commit running in another Nomra).
  // Foreseen moves are journaled here, all with one flush, because a flush
  // per move cost more than the renames themselves. Returns 0, or the errno
  // of the failure; then nothing is journaled and no file is left.
  int Begin(const std::string& dataFolder, const std::vector<JournalPlanEntry>& plan,
            const std::vector<JournalTemporaryEntry>& temporaries);
  bool IsOpen() const { return file_ != nullptr; }

  // Appends a "T" record and flushes it before a move to a temporary name
  // that Begin didn't foresee happens (the disk changed since the plan). Returns 0 or the errno of the failure; after a
  // failure the journal is closed (and stays on disk with what it holds).
  int RecordTemporary(std::string_view source, std::string_view temporary, std::string_view final);

  // The batch ended: the journal goes. Its removal isn't flushed: a journal
  // that comes back after a power loss only names renames that are done,
  // which the next start sees on disk and leaves alone.
  void Finish();

  const std::string& Path() const { return path_; }

 private:
  void Close();

  platform::FileSystem& fileSystem_;
  std::unique_ptr<platform::OpenFile> file_;
  std::string path_;
};

}  // namespace nomra::commit
