// The places where the language stops the action instead of writing a
// failure text into the name.
#include "base/Fault.h"
#include "structure/ApplyStructure.h"
#include "structure/StructureFixture.h"

namespace nomra::testing {
namespace {

using RunTimeFaults = StructureTest;

TEST_F(RunTimeFaults, SliceOfAnEmptyStemThatStartsBeforeIt) {
  EXPECT_THROW(Evaluate("<NAME_M(0,0)>", ".profile"), base::RuntimeFault);
  EXPECT_EQ(Evaluate("<NAME_M(1,1)>", ".profile"), "");
}

TEST_F(RunTimeFaults, SlicePositionBeyondThirtyTwoBits) {
  EXPECT_THROW(Evaluate("<NAME_M(1,99999999999)>", "abc.txt"), base::RuntimeFault);
  EXPECT_THROW(Evaluate("<PATH_M(99999999999,1)>", "abc.txt"), base::RuntimeFault);
}

TEST_F(RunTimeFaults, NamePartIndexBelowOneWhereTheDelimiterStands) {
  EXPECT_THROW(Evaluate("<NAMEPART(\"-\",0)>", "a-b.txt"), base::RuntimeFault);
  EXPECT_EQ(Evaluate("<NAMEPART(\"-\",0)>", "ab.txt"), "");
}

TEST_F(RunTimeFaults, NamePartTrimOutsideItsThreeValues) {
  EXPECT_THROW(Evaluate("<NAMEPART(\"-\",1,2)>", "a-b.txt"), base::RuntimeFault);
}

TEST_F(RunTimeFaults, ClosingCaseMarkBeforeItsOpening) {
  EXPECT_THROW(Evaluate("</UC>a<UC>", "x.txt"), base::RuntimeFault);
}

TEST_F(RunTimeFaults, RowsBeforeTheFaultKeepWhatTheyGot) {
  AddFiles({"1.txt", "2.txt", "3-x.txt", "4.txt"});
  texts.rowOfCount = "%1/%2";
  // The list shows the rows in the order they were added.
  ASSERT_EQ(Column(core::kColOldName), (std::vector<std::string>{"1.txt", "2.txt", "3-x.txt", "4.txt"}));

  try {
    structure::ApplyStructure(Actions(), "n<NAMEPART(\"-\",0)><NAME>");
    ADD_FAILURE() << "the action ran to its end";
  } catch (const base::RuntimeFault& fault) {
    EXPECT_EQ(std::string(fault.what()).rfind("Row 3 of 4, 3-x.txt: ", 0), 0u) << fault.what();
  }

  EXPECT_EQ(Column(core::kColNewName), (std::vector<std::string>{"n1", "n2", "3-x.txt", "4.txt"}));
  EXPECT_EQ(state.changedCount, 2);
}

}  // namespace
}  // namespace nomra::testing
