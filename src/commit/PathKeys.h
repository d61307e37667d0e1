#pragma once
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/FileSystem.h"

namespace nomra::commit {

// The text a full path compares by during one commit: the path itself on a
// case-sensitive volume, its lower-case form where the folder ignores case.
// Each folder's rule is asked once per commit, so a rule can't change half-way.
class PathKeys {
 public:
  explicit PathKeys(platform::FileSystem& fileSystem) : fileSystem_(fileSystem) {}

  std::string KeyOf(std::string_view path);

 private:
  bool IgnoresCase(const std::string& folder);

  platform::FileSystem& fileSystem_;
  std::unordered_map<std::string, bool> ignoresCaseByFolder_;
};

}  // namespace nomra::commit
