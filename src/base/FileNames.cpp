#include "base/FileNames.h"

namespace nomra::base {

bool IsForbiddenNameCharacter(char32_t character) {
  return character < 0x80 && kForbiddenNameCharacters.find(static_cast<char>(character)) != std::string_view::npos;
}

std::string CleanFileName(std::string_view name) {
  std::string out;
  out.reserve(name.size());
  for (char c : name) {
    if (kForbiddenNameCharacters.find(c) == std::string_view::npos) out.push_back(c);
  }
  return out;
}

}  // namespace nomra::base
