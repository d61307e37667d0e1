#include "fileops/FilePaths.h"

#include "base/Helpers.h"

namespace nomra::fileops {

std::string FolderOf(std::string_view path) {
  const std::size_t separator = path.rfind(kPathSeparator);
  return separator == std::string_view::npos ? std::string() : std::string(path.substr(0, separator + 1));
}

std::string NameOf(std::string_view path) {
  const std::size_t separator = path.rfind(kPathSeparator);
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string NumberedName(std::string_view target, int number) {
  const std::string folder = FolderOf(target);
  const std::string name = NameOf(target);
  // A leading dot marks a hidden file, not an extension.
  std::size_t dot = name.rfind('.');
  if (dot == 0 || dot == std::string::npos) dot = name.size();
  return folder + name.substr(0, dot) + " (" + std::to_string(number) + ")" + name.substr(dot);
}

}  // namespace nomra::fileops
