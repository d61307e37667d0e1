#include "fileops/PathList.h"

namespace nomra::fileops {

std::string JoinPathList(const std::vector<std::string>& paths) {
  std::string list;
  for (const std::string& path : paths) {
    list += path;
    list.push_back('\0');
  }
  list.push_back('\0');
  return list;
}

std::string EndPathList(std::string text) {
  const std::size_t size = text.size();
  const bool oneAtEnd = size >= 1 && text[size - 1] == '\0';
  const bool twoAtEnd = size >= 2 && text[size - 2] == '\0' && oneAtEnd;
  if (twoAtEnd) return text;
  text.append(oneAtEnd ? 1 : 2, '\0');
  return text;
}

std::vector<std::string> SplitPathList(std::string_view list) {
  std::vector<std::string> paths;
  std::size_t start = 0;
  while (start < list.size()) {
    std::size_t end = list.find('\0', start);
    if (end == std::string_view::npos) end = list.size();
    // An empty path is the second NUL: the list ends there.
    if (end == start) break;
    paths.emplace_back(list.substr(start, end - start));
    start = end + 1;
  }
  return paths;
}

}  // namespace nomra::fileops
