#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace nomra::actions {

// The four number systems of the numbering dialogs (cmbNumberWith).
enum class NumberSystem : int { Decimal = 0, Hexadecimal = 1, UpperLetters = 2, LowerLetters = 3 };

// A number in a system: 0 is "0" everywhere; hexadecimal shows the 32-bit
// pattern (-1 is FFFFFFFF); letters count A to Z, AA after Z (bijective base
// 26) with "-" before a negative value.
std::string NumberToText(std::int32_t value, NumberSystem system);

// The reverse, as decimal text for the start box: "" for "" and "-", a
// leading "-" kept; decimal text that is no number gives "". Letters are
// not checked: any character counts by its code less 64.
std::string TextToNumber(std::string_view text, NumberSystem system);

}  // namespace nomra::actions
