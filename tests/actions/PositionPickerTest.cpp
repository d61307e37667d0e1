// frmPos: what a caret or a selection in a real name gives the dialogs.
#include <gtest/gtest.h>

#include "actions/PositionPicker.h"

namespace nomra::actions {
namespace {

TEST(PositionPicker, ModesByTheNamesTheirCallersGive) {
  EXPECT_EQ(PickModeOf("GetFirst"), PickMode::First);
  EXPECT_EQ(PickModeOf("GetLast"), PickMode::Last);
  EXPECT_EQ(PickModeOf("GetFromTo"), PickMode::FromTo);
  EXPECT_EQ(PickModeOf("frmNumber.txtPos"), PickMode::First);
}

TEST(PositionPicker, CaretCountsFromTheStartAndFromTheEnd) {
  const Picked picked = PickInStem("abcdef", 2, 2, 0);
  EXPECT_EQ(picked.first, 2);
  EXPECT_EQ(picked.last, 4);
}

TEST(PositionPicker, SelectionIsOneBasedAndInclusive) {
  const Picked picked = PickInStem("abcdef", 4, 1, 3);
  EXPECT_EQ(picked.from, 2);
  EXPECT_EQ(picked.to, 4);
}

TEST(PositionPicker, PositionsCountCharactersOfUtf8) {
  const Picked picked = PickInStem("\xC3\xA4\xC3\xB6\xC3\xBC", 1, 0, 0);
  EXPECT_EQ(picked.first, 1);
  EXPECT_EQ(picked.last, 2);
}

TEST(PositionPicker, MarksBeyondTheNameStayInsideIt) {
  const Picked picked = PickInStem("abc", 9, 2, 9);
  EXPECT_EQ(picked.first, 3);
  EXPECT_EQ(picked.last, 0);
  EXPECT_EQ(picked.from, 3);
  EXPECT_EQ(picked.to, 3);
}

TEST(PositionPicker, SpinBarsCountDownFromTheirTop) {
  EXPECT_EQ(SpinBarValue(1, false), 200);
  EXPECT_EQ(SpinBarValue(5, false), 196);
  EXPECT_EQ(SpinBarValue(0, true), 200);
  EXPECT_EQ(SpinBarValue(3, true), 197);
}

}  // namespace
}  // namespace nomra::actions
