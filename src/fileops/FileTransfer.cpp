#include "fileops/FileTransfer.h"

#include <cerrno>

#include "base/Paths.h"

namespace nomra::fileops {

namespace {

constexpr char kWorkFilePrefix[] = ".nomra-part-";
// A folder holding this many work files of earlier runs is given up on.
constexpr int kMostWorkFiles = 1000;
constexpr unsigned kFolderMode = 0777;  // the umask takes what the user withholds

FileResult Failed(base::Failure failure) { return {false, false, std::move(failure)}; }

FileResult Failed(int error, const std::string& from, const std::string& to) {
  base::Failure failure;
  failure.systemError = error;
  failure.path = from;
  failure.target = to;
  return Failed(std::move(failure));
}

// Copies into the first work-file name not in use; "" when stopped or failed.
std::string CopyToWorkFile(platform::FileSystem& fileSystem, const std::string& from, const std::string& folder,
                           const platform::CopyTick& tick, bool durable, int& error) {
  for (int number = 1; number <= kMostWorkFiles; ++number) {
    const std::string work = folder + kWorkFilePrefix + std::to_string(number);
    error = fileSystem.CopyFile(from, work, tick, durable);
    if (error == 0) return work;
    if (error != EEXIST) {
      // The name was ours; whatever of the copy is left there goes.
      fileSystem.RemoveFile(work);
      return {};
    }
  }
  return {};
}

// Without `replace`, a taken `to` fails with EEXIST.
int Rename(platform::FileSystem& fileSystem, const std::string& from, const std::string& to, bool replace) {
  if (replace) return fileSystem.RenameReplacing(from, to);
  const platform::RenameResult renamed = fileSystem.RenameNoReplace(from, to);
  return renamed.ok ? 0 : renamed.error;
}

}  // namespace

std::optional<base::Failure> EnsureFolder(platform::FileSystem& fileSystem, const std::string& folder) {
  std::string path = folder;
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  // A relative path's first folder is the working folder, which exists.
  if (path.empty()) return std::nullopt;
  const platform::FileStatus info = fileSystem.Inspect(path);
  if (info.kind == platform::EntryKind::Folder) return std::nullopt;
  base::Failure failure;
  failure.target = folder;
  if (info.kind != platform::EntryKind::Missing) {
    failure.kind = base::FailureKind::NotAFolder;
    failure.systemError = ENOTDIR;
    failure.obstacle = path;
    return failure;
  }
  if (auto above = EnsureFolder(fileSystem, base::FolderOf(path))) return above;
  failure.systemError = fileSystem.MakeFolder(path, kFolderMode);
  if (failure.systemError == 0 || failure.systemError == EEXIST) return std::nullopt;
  return failure;
}

FileResult PutFile(platform::FileSystem& fileSystem, const std::string& from, const std::string& to,
                   const platform::FileStatus& source, bool move, bool replace, const platform::CopyTick& tick) {
  const std::string folder = base::FolderOf(to);
  if (auto failure = EnsureFolder(fileSystem, folder)) {
    failure->path = from;
    failure->target = to;
    return Failed(std::move(*failure));
  }
  if (move) {
    const int error = Rename(fileSystem, from, to, replace);
    if (error == 0) return {true, false, std::nullopt};
    if (error != EXDEV) return Failed(error, from, to);
  }
  int error = 0;
  const std::string work = CopyToWorkFile(fileSystem, from, folder, tick, move, error);
  if (error == ECANCELED) return {false, true, std::nullopt};
  if (work.empty()) return Failed(error == 0 ? EEXIST : error, from, to);
  if (fileSystem.Inspect(work).size != source.size) {
    fileSystem.RemoveFile(work);
    return Failed(EIO, from, to);
  }
  error = Rename(fileSystem, work, to, replace);
  if (error != 0) {
    fileSystem.RemoveFile(work);
    return Failed(error, from, to);
  }
  if (!move) return {true, false, std::nullopt};
  error = fileSystem.RemoveFile(from);
  if (error == 0) return {true, false, std::nullopt};
  FileResult kept = Failed(error, from, to);
  kept.done = true;
  kept.failure->kind = base::FailureKind::OriginalKept;
  return kept;
}

}  // namespace nomra::fileops
