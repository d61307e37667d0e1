#include <gtest/gtest.h>

#include "base/FileNames.h"
#include "core/ManualEdit.h"
#include "support/ListFixture.h"

namespace nomra::core {
namespace {

class ManualEditTest : public testing::ListTest {};

TEST_F(ManualEditTest, TypedNameBecomesThePendingNameAsTyped) {
  AddFiles({"a.txt"});
  EXPECT_TRUE(ApplyManualEdit(List(), 1, " new name.txt "));
  EXPECT_EQ(state.list.Item(1)[kColNewName], " new name.txt ");
  EXPECT_EQ(state.changedCount, 1);
}

TEST_F(ManualEditTest, NameOfOnlyBlanksIsIgnored) {
  AddFiles({"a.txt"});
  EXPECT_FALSE(ApplyManualEdit(List(), 1, "   "));
  EXPECT_FALSE(ApplyManualEdit(List(), 1, ""));
  EXPECT_EQ(state.list.Item(1)[kColNewName], "a.txt");
}

TEST_F(ManualEditTest, ForbiddenCharactersAreDiscardedWhileTyping) {
  for (char32_t c : {U'\\', U'/', U':', U'?', U'*', U'<', U'>', U'|', U'"'}) {
    EXPECT_TRUE(base::IsForbiddenNameCharacter(c)) << static_cast<int>(c);
  }
  for (char32_t c : {U'a', U' ', U'.', U'-', U'ä', U'€'}) {
    EXPECT_FALSE(base::IsForbiddenNameCharacter(c)) << static_cast<int>(c);
  }
}

TEST_F(ManualEditTest, InPlaceEditRemovesForbiddenCharacters) {
  AddFiles({"a.txt"});
  ApplyLabelEdit(List(), 1, "b<1>:2.txt");
  EXPECT_EQ(state.list.Item(1)[kColNewName], "b12.txt");
}

}  // namespace
}  // namespace nomra::core
