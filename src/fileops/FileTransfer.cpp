#include "fileops/FileTransfer.h"

#include <cerrno>

#include "fileops/FilePaths.h"

namespace nomra::fileops {

namespace {

constexpr char kWorkFilePrefix[] = ".nomra-part-";
// A folder holding this many work files of earlier runs is given up on.
constexpr int kMostWorkFiles = 1000;
constexpr unsigned kFolderMode = 0777;  // the umask takes what the user withholds

FileResult Failed(TransferFailure failure) { return {false, false, std::move(failure)}; }

FileResult Failed(int error, const std::string& from, const std::string& to) {
  TransferFailure failure;
  failure.error = error;
  failure.source = from;
  failure.target = to;
  return Failed(std::move(failure));
}

// Copies into the first work-file name not in use; "" when stopped or failed.
std::string CopyToWorkFile(OperationSystem& system, const std::string& from, const std::string& folder,
                           const CopyTick& tick, bool durable, int& error) {
  for (int number = 1; number <= kMostWorkFiles; ++number) {
    const std::string work = folder + kWorkFilePrefix + std::to_string(number);
    error = system.CopyFile(from, work, tick, durable);
    if (error == 0) return work;
    if (error != EEXIST) {
      // The name was ours; whatever of the copy is left there goes.
      system.RemoveFile(work);
      return {};
    }
  }
  return {};
}

}  // namespace

std::optional<TransferFailure> EnsureFolder(OperationSystem& system, const std::string& folder) {
  std::string path = folder;
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  // A relative path's first folder is the working folder, which exists.
  if (path.empty()) return std::nullopt;
  const EntryInfo info = system.Inspect(path);
  if (info.type == EntryType::Folder) return std::nullopt;
  TransferFailure failure;
  failure.target = folder;
  if (info.type != EntryType::Missing) {
    failure.error = ENOTDIR;
    failure.notAFolder = path;
    return failure;
  }
  if (auto above = EnsureFolder(system, FolderOf(path))) return above;
  failure.error = system.MakeFolder(path, kFolderMode);
  if (failure.error == 0 || failure.error == EEXIST) return std::nullopt;
  return failure;
}

FileResult PutFile(OperationSystem& system, const std::string& from, const std::string& to, const EntryInfo& source,
                   bool move, bool replace, const CopyTick& tick) {
  const std::string folder = FolderOf(to);
  if (auto failure = EnsureFolder(system, folder)) {
    failure->source = from;
    failure->target = to;
    return Failed(std::move(*failure));
  }
  if (move) {
    const int error = system.Rename(from, to, replace);
    if (error == 0) return {true, false, std::nullopt};
    if (error != EXDEV) return Failed(error, from, to);
  }
  int error = 0;
  const std::string work = CopyToWorkFile(system, from, folder, tick, move, error);
  if (error == ECANCELED) return {false, true, std::nullopt};
  if (work.empty()) return Failed(error == 0 ? EEXIST : error, from, to);
  if (system.Inspect(work).size != source.size) {
    system.RemoveFile(work);
    return Failed(EIO, from, to);
  }
  error = system.Rename(work, to, replace);
  if (error != 0) {
    system.RemoveFile(work);
    return Failed(error, from, to);
  }
  if (!move) return {true, false, std::nullopt};
  error = system.RemoveFile(from);
  if (error == 0) return {true, false, std::nullopt};
  FileResult kept = Failed(error, from, to);
  kept.done = true;
  kept.failure->originalKept = true;
  return kept;
}

}  // namespace nomra::fileops
