#include "formats/AtomicFile.h"

#include <cerrno>

namespace nomra::formats {

int MoveFileOver(platform::FileSystem& fileSystem, const std::string& source, const std::string& target) {
  const std::string resolvedTarget = fileSystem.ResolveLink(target);
  const int moved = fileSystem.RenameReplacing(source, resolvedTarget);
  if (moved != EXDEV) return moved;
  const auto content = fileSystem.ReadFile(source);
  if (!content) return EIO;
  if (const int replaced = fileSystem.ReplaceFile(resolvedTarget, *content); replaced != 0) return replaced;
  fileSystem.RemoveFile(source);
  return 0;
}

int WriteThroughTemporary(platform::FileSystem& fileSystem, const std::string& target, const std::string& temporary,
                          std::string_view content) {
  int error = fileSystem.WriteFile(temporary, content, target);
  if (error == 0) error = MoveFileOver(fileSystem, temporary, target);
  if (error != 0) fileSystem.RemoveFile(temporary);
  return error;
}

}  // namespace nomra::formats
