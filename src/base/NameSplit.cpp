#include "base/NameSplit.h"

namespace nomra::base {

std::string NameOnly(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return std::string(dot == std::string_view::npos ? name : name.substr(0, dot));
}

std::string ExtensionOnly(std::string_view name, bool keepDot) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  return std::string(name.substr(keepDot ? dot : dot + 1));
}

void SplitNameExtension(std::string_view name, std::string& stem, std::string& extension) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) {
    stem.assign(name);
    extension.clear();
    return;
  }
  stem.assign(name.substr(0, dot));
  extension.assign(name.substr(dot));
}

}  // namespace nomra::base
