#pragma once

namespace nomra {

// The key-press filter of the name fields: the nine characters that never
// stand in a file name are swallowed; everything else, "." included, is typed.
bool RefusedInNameField(char32_t character);

}  // namespace nomra
