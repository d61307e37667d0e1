#pragma once
#include <cstdint>
#include <string_view>

#include "dialog/DialogModel.h"

namespace nomra::actions {

// The number in a dialog's text box, converted as the dialogs always have:
// the structure language's number, halves to the even neighbour. A text
// that is no number, or one beyond the range, is a run-time fault that
// ends the action before any name changes.
std::int16_t ShortNumberOf(const dialog::DialogModel& model, std::string_view key);
std::int32_t LongNumberOf(const dialog::DialogModel& model, std::string_view key);

// The index (from 1) of the selected button of an indexed group; 1 when
// none is.
int ChosenIndex(const dialog::DialogModel& model, std::string_view group, int count);

}  // namespace nomra::actions
