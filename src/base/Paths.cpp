#include "base/Paths.h"

namespace nomra::base {

std::string AddBackslash(std::string_view path) {
  std::string out(path);
  if (out.empty() || out.back() != kPathSeparator) out.push_back(kPathSeparator);
  return out;
}

std::string FolderOf(std::string_view path) {
  const std::size_t separator = path.rfind(kPathSeparator);
  return separator == std::string_view::npos ? std::string() : std::string(path.substr(0, separator + 1));
}

std::string NameOf(std::string_view path) {
  const std::size_t separator = path.rfind(kPathSeparator);
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string WithoutTrailingSeparators(std::string path) {
  while (path.size() > 1 && path.back() == kPathSeparator) path.pop_back();
  return path;
}

}  // namespace nomra::base
