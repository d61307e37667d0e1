#pragma once
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "support/ForwardingFileSystem.h"

namespace nomra::testing {

// How the volume under a test compares names.
enum class CaseMode {
  Sensitive,          // the real temporary folder, as it is
  InsensitiveRules,   // the engine is told names ignore case; the disk still tells them apart
  InsensitiveVolume,  // a volume without case, imitated: look-ups and renames find any spelling
};

const char* CaseModeName(CaseMode mode);
// How the test names show a mode.
void PrintTo(CaseMode mode, std::ostream* out);

// The real file system with a log of every rename and faults on call.
class CommitFileSystem final : public ForwardingFileSystem {
 public:
  CaseMode mode = CaseMode::Sensitive;

  // Renames within this folder (the data folder: the journal taking its
  // name, a journal set aside) reach the disk unlogged and unbent, so that
  // the numbers below count the renames of the list's files alone.
  std::string ownFolder;
  // Every rename of the list's files asked for, in order.
  std::vector<std::pair<std::string, std::string>> renames;
  // By the number of the rename (from 1): refused with this errno, disk untouched.
  std::map<int, int> refuseWith;
  // By the number of the rename: success reported, disk untouched.
  std::set<int> pretendOnly;
  // Runs before each rename reaches the disk.
  std::function<void(const std::string& from, const std::string& to)> beforeRename;

  bool IsCaseInsensitiveFolder(const std::string& folder) override;
  platform::FileStatus Status(const std::string& path) override;
  platform::RenameResult RenameNoReplace(const std::string& from, const std::string& to) override;

  // The renames that went to a name ending in the temporary mark.
  int TemporaryRenames() const;

 private:
  // The path under which the imitated volume finds `path`, whatever its case.
  std::optional<std::string> FindAnySpelling(const std::string& path);
};

}  // namespace nomra::testing
