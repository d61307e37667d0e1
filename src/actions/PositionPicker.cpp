#include "actions/PositionPicker.h"

#include <algorithm>

#include "base/Utf8.h"

namespace nomra::actions {

PickMode PickModeOf(std::string_view mode) {
  if (mode == "GetLast") return PickMode::Last;
  if (mode == "GetFromTo") return PickMode::FromTo;
  return PickMode::First;
}

Picked PickInStem(std::string_view stem, long caret, long selectionStart, long selectionLength) {
  const long length = static_cast<long>(base::CharCount(stem));
  Picked picked;
  picked.first = std::clamp(caret, 0L, length);
  picked.last = length - picked.first;
  if (selectionLength > 0) {
    const long start = std::clamp(selectionStart, 0L, length);
    picked.from = start + 1;
    picked.to = std::clamp(start + selectionLength, picked.from, length);
  } else {
    picked.from = std::max(1L, picked.first);
    picked.to = picked.from;
  }
  return picked;
}

int SpinBarValue(long number, bool fromZero) { return static_cast<int>((fromZero ? 200 : 201) - number); }

}  // namespace nomra::actions
