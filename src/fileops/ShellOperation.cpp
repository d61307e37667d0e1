#include "fileops/ShellOperation.h"

#include <algorithm>
#include <cerrno>

#include "base/Paths.h"
#include "base/Wildcard.h"
#include "fileops/DeleteFiles.h"
#include "fileops/FilePaths.h"
#include "fileops/PathList.h"

namespace nomra::fileops {

namespace {

bool HoldsWildcard(std::string_view path) { return base::NameOf(path).find_first_of("*?") != std::string::npos; }

void AddMatches(const std::string& pattern, platform::FileSystem& fileSystem, std::vector<std::string>& sources) {
  const std::string folder = base::FolderOf(pattern);
  const std::string name = base::NameOf(pattern);
  std::vector<std::string> matches;
  fileSystem.ListFolder(folder, [&](std::string_view entry, platform::EntryKind) {
    if (base::MatchesWildcard(entry, name)) matches.push_back(folder + std::string(entry));
  });
  std::sort(matches.begin(), matches.end());
  for (std::string& match : matches) {
    if (fileSystem.Inspect(match).kind == platform::EntryKind::File) sources.push_back(std::move(match));
  }
}

std::string JoinLines(const std::vector<TransferPair>& pairs, std::string TransferPair::*side) {
  std::string joined;
  for (const TransferPair& pair : pairs) {
    if (!joined.empty()) joined += "\r\n";
    joined += pair.*side;
  }
  return joined;
}

int RunTransfer(ShellOperation& record, OperationServices& services) {
  const std::vector<std::string> sources = ExpandSources(record.pFrom, services.fileSystem);
  const bool multiple = (record.fFlags & FOF_MULTIDESTFILES) != 0;
  const auto pairs = PairTargets(sources, record.pTo, multiple, services.fileSystem);
  const OperationKind kind = record.wFunc == FO_MOVE ? OperationKind::Move : OperationKind::Copy;
  const bool renameOnCollision = (record.fFlags & FOF_RENAMEONCOLLISION) != 0;
  TransferOutcome outcome = TransferFiles(kind, pairs, renameOnCollision, services);
  record.fAnyOperationsAborted = outcome.aborted;
  record.placed = std::move(outcome.placed);
  if ((record.fFlags & FOF_WANTMAPPINGHANDLE) != 0) {
    record.mappedOldNames = JoinLines(outcome.renamed, &TransferPair::from);
    record.mappedNewNames = JoinLines(outcome.renamed, &TransferPair::to);
  }
  return outcome.result;
}

}  // namespace

std::uint16_t TransferFlags(std::string_view sources, std::string_view targets, bool renameOnCollision) {
  std::uint16_t flags = 0;
  if (SplitPathList(targets).size() > 1) flags |= FOF_MULTIDESTFILES;
  if (renameOnCollision) flags |= FOF_RENAMEONCOLLISION | FOF_WANTMAPPINGHANDLE;
  if (sources.find('*') != std::string_view::npos) flags |= FOF_FILESONLY;
  return flags;
}

std::uint16_t DeleteFlags(bool toRecycleBin, bool confirm) {
  std::uint16_t flags = toRecycleBin ? FOF_ALLOWUNDO : 0;
  if (!confirm) flags |= FOF_NOCONFIRMATION;
  return flags;
}

std::vector<std::string> ExpandSources(std::string_view list, platform::FileSystem& fileSystem) {
  std::vector<std::string> sources;
  for (std::string& path : SplitPathList(list)) {
    if (HoldsWildcard(path)) {
      AddMatches(path, fileSystem, sources);
    } else {
      sources.push_back(std::move(path));
    }
  }
  return sources;
}

std::vector<TransferPair> PairTargets(const std::vector<std::string>& sources, std::string_view targets,
                                      bool multipleTargets, platform::FileSystem& fileSystem) {
  const std::vector<std::string> targetPaths = SplitPathList(targets);
  std::vector<TransferPair> pairs;
  if (targetPaths.empty()) return pairs;
  if (multipleTargets) {
    const std::size_t count = std::min(sources.size(), targetPaths.size());
    for (std::size_t i = 0; i < count; ++i) pairs.push_back({sources[i], targetPaths[i]});
    return pairs;
  }
  const std::string& target = targetPaths.front();
  const bool intoFolder = sources.size() > 1 || fileSystem.Inspect(target).kind == platform::EntryKind::Folder;
  for (const std::string& source : sources) {
    pairs.push_back({source, intoFolder ? base::AddBackslash(target) + base::NameOf(source) : target});
  }
  return pairs;
}

ShellOperation TransferRecord(std::uint32_t function, std::string sources, std::string targets,
                              bool renameOnCollision) {
  ShellOperation record;
  record.wFunc = function;
  record.fFlags = TransferFlags(sources, targets, renameOnCollision);
  record.pFrom = std::move(sources);
  record.pTo = std::move(targets);
  return record;
}

int RunShellOperation(ShellOperation& record, OperationServices& services) {
  record.fAnyOperationsAborted = false;
  switch (record.wFunc) {
    case FO_COPY:
    case FO_MOVE: return RunTransfer(record, services);
    case FO_DELETE: {
      const bool toTrash = (record.fFlags & FOF_ALLOWUNDO) != 0;
      const bool confirm = (record.fFlags & FOF_NOCONFIRMATION) == 0;
      const DeleteOutcome outcome =
          DeleteFiles(ExpandSources(record.pFrom, services.fileSystem), toTrash, confirm, services);
      record.fAnyOperationsAborted = outcome.aborted;
      return outcome.result;
    }
    default: return EINVAL;
  }
}

}  // namespace nomra::fileops
