// The behaviours the structure language is known by, one test each.
#include "structure/StructureFixture.h"

namespace nomra::testing {
namespace {

using LanguageEdgeCases = StructureTest;

TEST_F(LanguageEdgeCases, TagNamesIgnoreCase) {
  EXPECT_EQ(Evaluate("<name>", "song.mp3"), "song");
  EXPECT_EQ(Evaluate("<Name>.<ext>", "song.mp3"), "song.mp3");
}

TEST_F(LanguageEdgeCases, Id3TagsMatchOnlyAsWrittenSoOtherCaseStaysText) {
  EXPECT_EQ(Evaluate("<id3_artist>", "song.mp3"), "<id3_artist>");
}

TEST_F(LanguageEdgeCases, ExtensionBeginsAtTheLastDot) { EXPECT_EQ(Evaluate("<NAME>|<EXT>", "a.b.c"), "a.b|c"); }

TEST_F(LanguageEdgeCases, SecondPathTagSeesWhatTheFirstLeft) {
  EXPECT_EQ(Evaluate("<PATH_L(2)>-<PATH_L(3)>", "x.txt", "Music/Rock"), "Ro-Ro");
}

TEST_F(LanguageEdgeCases, PathRightGivesNothingWhilePathStillGivesTheFolder) {
  EXPECT_EQ(Evaluate("<PATH_R(2)>", "x.txt", "Music/Rock"), "");
  EXPECT_EQ(Evaluate("<PATH_R(2)><PATH>", "x.txt", "Music/Rock"), "Rock");
}

TEST_F(LanguageEdgeCases, MiddleSliceTakesItsEndsInEitherOrder) {
  EXPECT_EQ(Evaluate("<NAME_M(5,2)>", "abcdefg.txt"), "bcde");
  EXPECT_EQ(Evaluate("<NAME_M(2,5)>", "abcdefg.txt"), "bcde");
}

TEST_F(LanguageEdgeCases, NegativeSliceStartCountsBackFromTheEnd) {
  EXPECT_EQ(Evaluate("<NAME_M(-1,0)>", "abcd.txt"), "cd");
}

TEST_F(LanguageEdgeCases, NamePartPicksItsFieldTrimmed) {
  EXPECT_EQ(Evaluate("<NAMEPART(\"-\",2)>", "a - b - c.txt"), "b");
}

TEST_F(LanguageEdgeCases, NamePartWithTrimZeroKeepsTheBlanks) {
  EXPECT_EQ(Evaluate("<NAMEPART(\"-\",2,0)>", "a - b - c.txt"), " b ");
}

TEST_F(LanguageEdgeCases, NamePartSplitsAtACommaStandingInQuotes) {
  EXPECT_EQ(Evaluate("<NAMEPART(\",\",1)>", "first,second.txt"), "first");
  EXPECT_EQ(Evaluate("<NAMEPART(\",\",2)>", "first,second.txt"), "second");
}

TEST_F(LanguageEdgeCases, FindThatMissesGivesAnEmptyLeftPart) {
  EXPECT_EQ(Evaluate("<NAME_L(find(\"x\"))>", "abc.doc"), "");
}

TEST_F(LanguageEdgeCases, FindCutsBeforeTheSecondHyphen) {
  EXPECT_EQ(Evaluate("<NAME_L(find(\"-\",2,-1))>", "a-b-c.txt"), "a-b");
}

TEST_F(LanguageEdgeCases, UpperBracketsResolveBeforeLowerOnes) {
  EXPECT_EQ(Evaluate("<UC><NAME></UC><LC>.TXT</LC>", "Report.doc"), "REPORT.txt");
}

TEST_F(LanguageEdgeCases, OpeningCaseMarkWithoutItsClosingStaysAsText) {
  EXPECT_EQ(Evaluate("<UC><NAME>", "abc.txt"), "<UC>abc");
}

TEST_F(LanguageEdgeCases, EmptyStructureGivesThePendingNameLessControlCharacters) {
  EXPECT_EQ(Evaluate("",
                     "a\tb\x01"
                     "c.txt"),
            "abc.txt");
}

TEST_F(LanguageEdgeCases, PendingNameHoldingTheNameTagEvaluatesToItself) {
  EXPECT_EQ(Evaluate("", "<NAME>.txt"), "<NAME>.txt");
}

// A metadata value that holds case marks is converted, since the brackets
// are resolved behind every tag; it can't bring a name tag in.
class TitleWithMarks final : public structure::MetadataSteps {
 public:
  void Id3AndMpegTags(core::FileEntry&, std::string& s) const override {
    const std::size_t at = s.find("<ID3_Title>");
    if (at != std::string::npos) s.replace(at, 11, "<UC>loud</UC> <NAME>");
  }
};

TEST_F(LanguageEdgeCases, CaseMarksInATagValueAreResolvedButNameTagsAreNot) {
  AddFiles({"song.mp3"});
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "<ID3_Title>", TitleWithMarks()), "LOUD <NAME>");
}

TEST_F(LanguageEdgeCases, NameTagsReadThePendingNameNotTheNameOnDisk) {
  EXPECT_EQ(Evaluate("<NAME>", "renamed.txt"), "renamed");
}

TEST_F(LanguageEdgeCases, PathOfAFileAtTheRootIsEmpty) {
  AddFiles({"x.txt"});
  state.list.Item(1)[core::kColPath] = "/";
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "[<PATH>]"), "[]");
}

TEST_F(LanguageEdgeCases, UnknownTagsStayAsText) { EXPECT_EQ(Evaluate("<FOO>_<NAME>", "a.txt"), "<FOO>_a"); }

TEST_F(LanguageEdgeCases, GreaterThanInsideQuotesCutsTheTagThereAndLeavesTheRest) {
  // The tag ends at the first ">", inside the quotes; what follows stays.
  EXPECT_EQ(Evaluate("<NAMEPART(\">\",1)>", "a>b.txt"), "a\",1)>");
}

TEST_F(LanguageEdgeCases, IntCharPairWithNothingInsideGoesWithItsMarks) {
  EXPECT_EQ(Evaluate("a<IntChar>_<IntChar>b", "x.txt"), "a<IntChar>_<IntChar>b");
  EXPECT_EQ(Evaluate("a<IntChar><IntChar>b", "x.txt"), "ab");
  EXPECT_EQ(Evaluate("a<IntChar> x <IntChar>b", "x.txt"), "ab");
}

TEST_F(LanguageEdgeCases, OnlyTheFirstIntCharPairIsLookedAt) {
  EXPECT_EQ(Evaluate("<IntChar>1<IntChar><IntChar><IntChar>", "x.txt"), "<IntChar>1<IntChar><IntChar><IntChar>");
}

TEST_F(LanguageEdgeCases, LoneIntCharStays) { EXPECT_EQ(Evaluate("a<IntChar>b", "x.txt"), "a<IntChar>b"); }

TEST_F(LanguageEdgeCases, IntCharIsMatchedExactly) {
  EXPECT_EQ(Evaluate("<intchar><intchar>", "x.txt"), "<intchar><intchar>");
}

TEST_F(LanguageEdgeCases, ExtensionTagsWithAndWithoutDotAndTheBlank) {
  EXPECT_EQ(Evaluate("<NAME><BLANK><.EXT>|<EXT>", "a.tar.gz"), "a.tar .gz|gz");
  EXPECT_EQ(Evaluate("<NAME>[<EXT>][<.EXT>]", "noext"), "noext[][]");
}

TEST_F(LanguageEdgeCases, ApplyingTwiceWorksOnTheFirstResult) {
  AddFiles({"abc.txt"});
  SetNewName(1, structure::EvaluateStructure(state.list.Item(1), "x<NAME>.<EXT>"));
  EXPECT_EQ(structure::EvaluateStructure(state.list.Item(1), "x<NAME>.<EXT>"), "xxabc.txt");
}

}  // namespace
}  // namespace nomra::testing
