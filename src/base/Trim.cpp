#include "base/Trim.h"

namespace nomra::base {

std::string_view Trim(std::string_view text, std::string_view characters) {
  const std::size_t first = text.find_first_not_of(characters);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace nomra::base
