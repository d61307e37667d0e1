#include "commit/PathKeys.h"

#include "base/CaseMap.h"

namespace nomra {

std::string PathKeys::KeyOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  const std::string folder(slash == std::string_view::npos ? std::string_view() : path.substr(0, slash + 1));
  return IgnoresCase(folder) ? text::ToLower(path) : std::string(path);
}

bool PathKeys::IgnoresCase(const std::string& folder) {
  auto found = ignoresCaseByFolder_.find(folder);
  if (found == ignoresCaseByFolder_.end()) {
    found = ignoresCaseByFolder_.emplace(folder, fileSystem_.IsCaseInsensitiveFolder(folder)).first;
  }
  return found->second;
}

}  // namespace nomra
