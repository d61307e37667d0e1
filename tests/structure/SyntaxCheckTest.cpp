#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Fault.h"
#include "structure/SyntaxCheck.h"
#include "support/ListFixture.h"

namespace nomra::structure {
namespace {

using Arguments = std::vector<std::string>;

const SyntaxTexts kTexts{"Check your input.", "Tags are closed."};
const std::string kHint = "\n\nTags are closed.";

class SyntaxCheckTest : public testing::ListTest {
 protected:
  SyntaxCheckTest() { AddFiles({"holiday.jpg"}); }

  std::optional<SyntaxFailure> Check(const std::string& structure) {
    return CheckStructureSyntax(state.list, structure, kTexts);
  }
  // The message key a structure fails with; "" when it passes.
  std::string FailureKey(const std::string& structure) {
    const auto failure = Check(structure);
    return failure ? failure->message.textKey : std::string();
  }
};

TEST_F(SyntaxCheckTest, WellFormedStructurePasses) {
  EXPECT_EQ(Check("<NAME>_<UC><EXT></UC>.<LC>JPG</LC>"), std::nullopt);
}

TEST_F(SyntaxCheckTest, ClosingBracketWithoutTagFailsAtItsPositionAndSelectsIt) {
  const auto failure = Check("a>b");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.textKey, "msgErrorStructure1");
  EXPECT_EQ(failure->message.arguments, (Arguments{"2", "Check your input."}));
  EXPECT_EQ(failure->selectionStart, 2);
  EXPECT_EQ(failure->selectionLength, 1);
}

TEST_F(SyntaxCheckTest, OpeningBracketInsideAnOpenTagFailsAtItsPosition) {
  const auto failure = Check("<<NAME>");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.textKey, "msgErrorStructure1");
  EXPECT_EQ(failure->message.arguments.front(), "2");
  EXPECT_EQ(failure->selectionStart, 2);
}

TEST_F(SyntaxCheckTest, PositionCountsCharactersNotBytes) {
  const auto failure = Check("\xC3\xA4\xE2\x82\xAC>");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.arguments.front(), "3");
  EXPECT_EQ(failure->selectionStart, 3);
}

TEST_F(SyntaxCheckTest, TagLeftOpenFailsAtTheEndWithAllFromTheLastOpeningBracket) {
  const auto failure = Check("a<b");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.textKey, "msgErrorStructure2");
  EXPECT_EQ(failure->message.arguments, (Arguments{"<b", "Check your input."}));
  EXPECT_EQ(failure->selectionStart, 0);
}

TEST_F(SyntaxCheckTest, EveryFailureIsAWarningUnderTheStructureErrorCaption) {
  for (const std::string structure : {"a>b", "a<b", "<UC>a", "<ERROR>"}) {
    const auto failure = Check(structure);
    ASSERT_TRUE(failure) << structure;
    EXPECT_EQ(failure->message.captionKey, "msgCapErrorStructure") << structure;
    EXPECT_EQ(failure->message.style, core::MessageStyle::OkWarning) << structure;
  }
}

TEST_F(SyntaxCheckTest, ExtraClosingCaseMarkFailsByCount) {
  const auto failure = Check("<UC>a</UC>b</UC>");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.textKey, "msgErrorStructure4");
  EXPECT_EQ(failure->message.arguments, (Arguments{"<UC>", "</UC>", kHint}));
}

TEST_F(SyntaxCheckTest, ClosingCaseMarkBeforeItsOpeningFailsBeforeAnyEvaluation) {
  // The evaluation would fault on this order; the check never gets there.
  const auto failure = Check("</UC>a<UC>");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.textKey, "msgErrorStructure4");
}

TEST_F(SyntaxCheckTest, SecondPairMustOpenBehindTheFirstPairsClose) {
  EXPECT_TRUE(CheckCaseBrackets("<UC>a<UC>b</UC>c</UC>", "UC", kTexts));
  EXPECT_FALSE(CheckCaseBrackets("<UC>a</UC>b<UC>c</UC>", "UC", kTexts));
}

TEST_F(SyntaxCheckTest, LowerCaseBracketsAreCheckedAfterUpperCaseOnes) {
  const auto failure = Check("<lc>a</UC>");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.arguments.front(), "<UC>");
  const auto lower = Check("<lc>a");
  ASSERT_TRUE(lower);
  EXPECT_EQ(lower->message.arguments, (Arguments{"<LC>", "</LC>", kHint}));
}

TEST_F(SyntaxCheckTest, CaseMarksAreFoundWithoutRegardToCase) {
  EXPECT_EQ(CheckCaseBrackets("<uc>a</Uc>", "UC", kTexts), std::nullopt);
  EXPECT_TRUE(CheckCaseBrackets("<uc>a</Uc></uC>", "UC", kTexts));
}

TEST_F(SyntaxCheckTest, TextWithoutCaseMarksPassesTheirCheck) {
  EXPECT_EQ(CheckCaseBrackets("plain <NAME>", "UC", kTexts), std::nullopt);
}

TEST_F(SyntaxCheckTest, MarksOfDifferentCodesMayCross) { EXPECT_EQ(Check("<UC>a<LC>b</UC>c</LC>"), std::nullopt); }

TEST_F(SyntaxCheckTest, OtherCaseCodesAreLeftToTheTestEvaluation) {
  EXPECT_EQ(FailureKey("<WC>a"), "msgErrorStructure3");
  EXPECT_EQ(FailureKey("<1C>a"), "msgErrorStructure3");
  EXPECT_EQ(FailureKey("a</SC>"), "msgErrorStructure3");
}

TEST_F(SyntaxCheckTest, TypedErrorTextFailsInTheTestEvaluation) {
  const auto failure = Check("<ERROR>");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->message.textKey, "msgErrorStructure3");
  EXPECT_EQ(failure->message.arguments, (Arguments{"Check your input." + kHint}));
}

TEST_F(SyntaxCheckTest, TagWithABadArgumentFailsInTheTestEvaluation) {
  EXPECT_EQ(FailureKey("<NAME_L(x)>"), "msgErrorStructure3");
}

TEST_F(SyntaxCheckTest, UnknownTagFailsInTheTestEvaluation) {
  EXPECT_EQ(FailureKey("<id3_artist>"), "msgErrorStructure3");
}

TEST_F(SyntaxCheckTest, TestEvaluationRunsOnTheFirstRow) {
  AddFiles({"second.jpg"});
  SetNewName(2, "a<b>");
  EXPECT_EQ(FailureKey(""), "");
  SetNewName(1, "a<b>");
  EXPECT_EQ(FailureKey(""), "msgErrorStructure3");
}

TEST_F(SyntaxCheckTest, EmptyListLeavesTheTestEvaluationOut) {
  state.list.Clear();
  EXPECT_EQ(Check("<ERROR>"), std::nullopt);
  EXPECT_EQ(FailureKey("a>"), "msgErrorStructure1");
}

TEST_F(SyntaxCheckTest, FaultOfTheTestEvaluationGoesToTheCaller) {
  SetNewName(1, "a-b.jpg");
  EXPECT_THROW(Check("<NAMEPART(\"-\",0)>"), base::RuntimeFault);
}

}  // namespace
}  // namespace nomra::structure
