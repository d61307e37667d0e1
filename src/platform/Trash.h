#pragma once
#include <ctime>
#include <string>

namespace nomra::platform {

// The desktop's trash, from which the user can bring a file back with the
// file manager.
class Trash {
 public:
  virtual ~Trash() = default;
  // Moves a file (or folder) to the trash, dated `deletedAt`. 0, or the
  // errno that stopped it; then the file is where it was.
  virtual int MoveToTrash(const std::string& path, const std::tm& deletedAt) = 0;
};

}  // namespace nomra::platform
