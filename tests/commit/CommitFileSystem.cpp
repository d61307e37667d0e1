#include "commit/CommitFileSystem.h"

#include <sys/stat.h>

#include <cerrno>

#include "base/CaseMap.h"
#include "commit/CommitExecution.h"

namespace nomra::testing {

namespace {

std::pair<std::string, std::string> SplitPath(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return {path.substr(0, slash + 1), path.substr(slash + 1)};
}

}  // namespace

const char* CaseModeName(CaseMode mode) {
  switch (mode) {
    case CaseMode::Sensitive: return "case-sensitive";
    case CaseMode::InsensitiveRules: return "case-insensitive rules";
    case CaseMode::InsensitiveVolume: return "imitated case-insensitive volume";
  }
  return "?";
}

void PrintTo(CaseMode mode, std::ostream* out) { *out << CaseModeName(mode); }

bool CommitFileSystem::IsCaseInsensitiveFolder(const std::string& folder) {
  return mode != CaseMode::Sensitive || real.IsCaseInsensitiveFolder(folder);
}

platform::FileStatus CommitFileSystem::Status(const std::string& path) {
  if (mode != CaseMode::InsensitiveVolume) return real.Status(path);
  const std::optional<std::string> found = FindAnySpelling(path);
  return real.Status(found.value_or(path));
}

platform::RenameResult CommitFileSystem::RenameNoReplace(const std::string& from, const std::string& to) {
  if (!ownFolder.empty() && to.starts_with(ownFolder)) return real.RenameNoReplace(from, to);
  renames.emplace_back(from, to);
  const int number = static_cast<int>(renames.size());
  if (beforeRename) beforeRename(from, to);
  if (const auto refused = refuseWith.find(number); refused != refuseWith.end()) return {false, refused->second};
  if (pretendOnly.contains(number)) return {true, 0};
  if (mode != CaseMode::InsensitiveVolume) return real.RenameNoReplace(from, to);
  // A volume without case finds the source under any spelling and calls the
  // target taken when any spelling of it is there, the source itself included.
  const std::optional<std::string> source = FindAnySpelling(from);
  if (!source) return {false, ENOENT};
  if (FindAnySpelling(to)) return {false, EEXIST};
  return real.RenameNoReplace(*source, to);
}

int CommitFileSystem::TemporaryRenames() const {
  int count = 0;
  for (const auto& [from, to] : renames) {
    if (to.ends_with(commit::kTemporaryMark)) ++count;
  }
  return count;
}

std::optional<std::string> CommitFileSystem::FindAnySpelling(const std::string& path) {
  struct stat exact {};
  if (lstat(path.c_str(), &exact) == 0) return path;
  const auto [folder, leaf] = SplitPath(path);
  const std::string folded = base::ToLower(leaf);
  std::optional<std::string> found;
  real.ListFolder(folder, [&](std::string_view name, platform::EntryKind) {
    if (!found && base::ToLower(name) == folded) found = folder + std::string(name);
  });
  return found;
}

}  // namespace nomra::testing
