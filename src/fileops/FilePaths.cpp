#include "fileops/FilePaths.h"

#include "base/Paths.h"

namespace nomra::fileops {

std::string NumberedName(std::string_view target, int number) {
  const std::string folder = base::FolderOf(target);
  const std::string name = base::NameOf(target);
  // A leading dot marks a hidden file, not an extension.
  std::size_t dot = name.rfind('.');
  if (dot == 0 || dot == std::string::npos) dot = name.size();
  return folder + name.substr(0, dot) + " (" + std::to_string(number) + ")" + name.substr(dot);
}

}  // namespace nomra::fileops
