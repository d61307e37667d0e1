#include "rename/KeyFilter.h"

#include "base/Helpers.h"

namespace nomra {

bool RefusedInNameField(char32_t character) {
  return character < 0x80 && kForbiddenNameCharacters.find(static_cast<char>(character)) != std::string_view::npos;
}

}  // namespace nomra
