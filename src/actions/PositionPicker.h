#pragma once
#include <string>
#include <string_view>

namespace nomra::actions {

// What frmPos is asked for: a count from the start, from the end, or a
// range, each marked in a real name of the list.
enum class PickMode { First, Last, FromTo };

// The mode by the name its callers give: "GetFirst", "GetLast",
// "GetFromTo"; the position modes of Insert and Numbering
// ("frmNumber.txtPos") pick as GetFirst does, with a side.
PickMode PickModeOf(std::string_view mode);

// What the mark gives, in characters: `caret` and the selection are
// character positions in `stem` counted from 0, as a text box reports them.
struct Picked {
  long first = 0;  // GetFirst, and the position of Insert and Numbering from the left
  long last = 0;   // GetLast, and the position from the right
  long from = 1;   // GetFromTo, 1-based and inclusive
  long to = 1;
};
Picked PickInStem(std::string_view stem, long caret, long selectionStart, long selectionLength);

// The value a caller's spin bar takes for a picked number: 201 less it for
// Replace and Trim, 200 less it for Insert and Numbering, whose bars start at 0.
int SpinBarValue(long number, bool fromZero);

}  // namespace nomra::actions
