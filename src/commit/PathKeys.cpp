#include "commit/PathKeys.h"

#include "base/CaseMap.h"
#include "base/Paths.h"

namespace nomra::commit {

std::string PathKeys::KeyOf(std::string_view path) {
  return IgnoresCase(base::FolderOf(path)) ? base::ToLower(path) : std::string(path);
}

bool PathKeys::IgnoresCase(const std::string& folder) {
  auto found = ignoresCaseByFolder_.find(folder);
  if (found == ignoresCaseByFolder_.end()) {
    found = ignoresCaseByFolder_.emplace(folder, fileSystem_.IsCaseInsensitiveFolder(folder)).first;
  }
  return found->second;
}

}  // namespace nomra::commit
