#include "commit/CommitJournal.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "base/Helpers.h"
#include "platform/posix/NoReplaceRename.h"

namespace nomra {

namespace {

int WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = write(fd, bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return errno;
    if (done == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
  return 0;
}

int SyncFolder(const std::string& folder) {
  const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return errno;
  const int error = fsync(fd) == 0 ? 0 : errno;
  close(fd);
  return error;
}

}  // namespace

CommitJournal::~CommitJournal() { Close(); }

int CommitJournal::Begin(const std::string& dataFolder, const std::vector<JournalPlanEntry>& plan,
                         const std::vector<JournalTemporaryEntry>& temporaries) {
  Close();
  if (dataFolder.empty()) return ENOENT;
  const std::string folder = AddBackslash(dataFolder);
  const std::string path = folder + kJournalFileName;
  // Written under a name of this process first, so the journal's own name
  // only ever shows a whole, locked plan.
  const std::string draft = path + ".new-" + std::to_string(getpid());
  const int fd = open(draft.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (fd < 0) return errno;

  std::string text(kJournalHeader);
  for (const JournalPlanEntry& entry : plan) text += JournalPlanRecord(entry.source, entry.final);
  for (const JournalTemporaryEntry& entry : temporaries) {
    text += JournalTemporaryRecord(entry.source, entry.temporary, entry.final);
  }
  int error = flock(fd, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
  if (error == 0) error = WriteAll(fd, text);
  if (error == 0 && fsync(fd) != 0) error = errno;
  bool published = false;
  if (error == 0) {
    const platform::RenameResult renamed = platform::RenameWithoutReplacing(draft, path);
    published = renamed.ok;
    if (!renamed.ok) error = renamed.error;
  }
  if (error == 0) error = SyncFolder(folder);
  if (error != 0) {
    // Unlinked before the lock goes, so no other start reads it.
    unlink((published ? path : draft).c_str());
    close(fd);
    return error;
  }
  fd_ = fd;
  path_ = path;
  return 0;
}

int CommitJournal::RecordTemporary(std::string_view source, std::string_view temporary, std::string_view final) {
  if (fd_ < 0) return 0;
  int error = WriteAll(fd_, JournalTemporaryRecord(source, temporary, final));
  if (error == 0 && fdatasync(fd_) != 0) error = errno;
  if (error != 0) Close();
  return error;
}

void CommitJournal::Finish() {
  // Removed while still locked, so another start never reads a journal
  // that is half gone. One closed by a failed append goes too: the batch
  // went on without it and is over.
  if (!path_.empty()) unlink(path_.c_str());
  path_.clear();
  Close();
}

void CommitJournal::Close() {
  if (fd_ >= 0) close(fd_);
  fd_ = -1;
}

}  // namespace nomra
