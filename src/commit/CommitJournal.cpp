#include "commit/CommitJournal.h"

#include <cerrno>

#include "base/Paths.h"

namespace nomra::commit {

CommitJournal::~CommitJournal() { Close(); }

int CommitJournal::Begin(const std::string& dataFolder, const std::vector<JournalPlanEntry>& plan,
                         const std::vector<JournalTemporaryEntry>& temporaries) {
  Close();
  if (dataFolder.empty()) return ENOENT;
  const std::string folder = base::AddBackslash(dataFolder);
  const std::string path = folder + kJournalFileName;
  // Written under a name of this process first, so the journal's own name
  // only ever shows a whole, locked plan.
  std::string draft;
  int error = 0;
  std::unique_ptr<platform::OpenFile> file = fileSystem_.CreateLockedDraft(path, draft, error);

  std::string text(kJournalHeader);
  for (const JournalPlanEntry& entry : plan) text += JournalPlanRecord(entry.source, entry.final);
  for (const JournalTemporaryEntry& entry : temporaries) {
    text += JournalTemporaryRecord(entry.source, entry.temporary, entry.final);
  }
  if (error == 0) error = file->Write(text);
  if (error == 0) error = file->Sync(false);
  bool published = false;
  if (error == 0) {
    const platform::RenameResult renamed = fileSystem_.RenameNoReplace(draft, path);
    published = renamed.ok;
    if (!renamed.ok) error = renamed.error;
  }
  if (error == 0) error = fileSystem_.SyncFolder(folder);
  if (error != 0) {
    // Removed before the lock goes, so no other start reads it.
    if (!draft.empty()) fileSystem_.RemoveFile(published ? path : draft);
    return error;
  }
  file_ = std::move(file);
  path_ = path;
  return 0;
}

int CommitJournal::RecordTemporary(std::string_view source, std::string_view temporary, std::string_view final) {
  if (!file_) return 0;
  int error = file_->Write(JournalTemporaryRecord(source, temporary, final));
  if (error == 0) error = file_->Sync(true);
  if (error != 0) Close();
  return error;
}

void CommitJournal::Finish() {
  // Removed while still locked, so another start never reads a journal
  // that is half gone. One closed by a failed append goes too: the batch
  // went on without it and is over.
  if (!path_.empty()) fileSystem_.RemoveFile(path_);
  path_.clear();
  Close();
}

void CommitJournal::Close() { file_.reset(); }

}  // namespace nomra::commit
