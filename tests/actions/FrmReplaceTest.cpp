// Replace and remove: a text, characters by position, the characters of a
// set or all but them, on the stem only, never emptying it, and tags in the
// replacement through the structure language.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/FrmReplace.h"
#include "base/Fault.h"
#include "lang/MessageKeys.h"
#include "rename/ActionFixture.h"
#include "rename/ActionFrame.h"

namespace nomra::actions {
namespace {

using Names = std::vector<std::string>;

class FrmReplaceTest : public testing::ActionTest {
 protected:
  dialog::DialogModel& Model() { return dialog.Model(); }
  void Text(const std::string& find, const std::string& with) {
    Model().SetOption("opttxt2Repl", true);
    Model().SetText("txtToRep", find);
    Model().SetText("txtRepBy", with);
  }
  void Remove() { Model().SetOption("optRemove", true); }
  void Class(int what, int item) {
    Model().SetOption(what == 3 ? "optFollowingChr" : "optAllChrExcept", true);
    Model().SetNumber("cmbRemove", item - 1);
  }
  void Position(const char* where) {
    Model().SetOption("optChr2Repl", true);
    Model().SetOption(where, true);
  }
  Names Apply(const Names& files) {
    AddFiles(files);
    EXPECT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
    return PendingNames();
  }
  std::vector<std::string> AskedKeys() const {
    std::vector<std::string> keys;
    for (const core::Message& message : frontEnd.asked) keys.push_back(message.textKey);
    return keys;
  }

  FrmReplace dialog;
};

TEST_F(FrmReplaceTest, TextThirdOptionsAreOnWhenNothingIsStored) {
  EXPECT_TRUE(Model().IsSelected("opttxt2Repl"));
  EXPECT_TRUE(Model().IsSelected("optChrFirst"));
  EXPECT_TRUE(Model().IsSelected("optReplace"));
  EXPECT_EQ(Model().Text("txtFrom"), "1");
  EXPECT_EQ(Model().Number("VScrollVon"), 200);
  EXPECT_EQ(Model().Number("chkRegExp"), 0);
}

TEST_F(FrmReplaceTest, EveryOccurrenceIsReplacedCaseSensitively) {
  Text("ab", "X");
  EXPECT_EQ(Apply({"abab.txt", "ABAB.txt"}), (Names{"XX.txt", "ABAB.txt"}));
}

TEST_F(FrmReplaceTest, TheExtensionIsNeverTouched) {
  Text("txt", "doc");
  EXPECT_EQ(Apply({"a.txt"}), Names{"a.txt"});
}

TEST_F(FrmReplaceTest, StemOfDigitsOnlyStaysWhenRemovingDigitsLeavesNothing) {
  Class(3, 2);
  Remove();
  EXPECT_EQ(Apply({"2024.txt", "a1b2.txt"}), (Names{"2024.txt", "ab.txt"}));
}

TEST_F(FrmReplaceTest, AllButLettersRemovedKeepsOnlyLettersAndBlanksGoToo) {
  Class(4, 1);
  Remove();
  EXPECT_EQ(Apply({"My Song (1999) - \xC3\x84rger.mp3"}), Names{"MySong\xC3\x84rger.mp3"});
}

TEST_F(FrmReplaceTest, ExceptionsKeepHyphenAndUnderscoreFromTheSpecialCharacters) {
  Class(3, 3);
  Remove();
  Model().SetNumber("chkExceptions", 1);
  Model().SetText("txtExceptions", "-_");
  EXPECT_EQ(Apply({"a-b_c!d#e (f).txt"}), Names{"a-b_cde f.txt"});
  EXPECT_EQ(Model().Text("txtToRep").find('-'), std::string::npos) << "the set shown leaves the exceptions out";
}

TEST_F(FrmReplaceTest, SpecialCharactersLeaveTheBlankLettersAndDigits) {
  const std::string special = CharacterClass(3);
  EXPECT_EQ(special.find(' '), std::string::npos);
  EXPECT_EQ(special.find('a'), std::string::npos);
  EXPECT_EQ(special.find('7'), std::string::npos);
  EXPECT_EQ(special.find("\xC3\xA4"), std::string::npos) << "a letter of the list is no special character";
  EXPECT_NE(special.find('!'), std::string::npos);
  EXPECT_NE(special.find("\xE2\x82\xAC"), std::string::npos) << "the euro sign of code 128";
}

TEST_F(FrmReplaceTest, EachCharacterOfTheSetIsReplaced) {
  Model().SetOption("optFollowingChr", true);
  Model().SetText("txtToRep", "_.");
  Model().SetText("txtRepBy", " ");
  EXPECT_EQ(Apply({"a_b.c_d.txt"}), Names{"a b c d.txt"});
}

TEST_F(FrmReplaceTest, FirstCharactersGiveWayToTheReplacement) {
  Position("optChrFirst");
  Model().SetText("txtPos(0)", "2");
  Model().SetText("txtRepBy", "X");
  EXPECT_EQ(Apply({"abcd.txt", "a.txt"}), (Names{"Xcd.txt", "a.txt"}));
}

TEST_F(FrmReplaceTest, PositionZeroRemovesNothing) {
  Position("optChrFirst");
  Model().SetText("txtPos(0)", "0");
  Remove();
  EXPECT_EQ(Apply({"abcd.txt"}), Names{"abcd.txt"});
}

TEST_F(FrmReplaceTest, LastCharactersAreRemovedAndAWholeStemIsKept) {
  Position("optChrLast");
  Model().SetText("txtPos(1)", "2");
  Remove();
  EXPECT_EQ(Apply({"abcd.txt", "ab.txt", "a.txt"}), (Names{"ab.txt", "ab.txt", "a.txt"}));
}

TEST_F(FrmReplaceTest, RangeIsReplacedAndABackwardRangeIsTurnedRound) {
  Position("optChrFromTo");
  Model().SetText("txtFrom", "4");
  Model().SetText("txtTo", "2");
  Model().SetText("txtRepBy", "-");
  EXPECT_EQ(Apply({"abcdef.txt"}), Names{"a-ef.txt"});
  EXPECT_EQ(Model().Text("txtFrom"), "2");
  EXPECT_EQ(Model().Text("txtTo"), "4");
}

TEST_F(FrmReplaceTest, PositionsCountCharactersNotBytes) {
  Position("optChrFirst");
  Model().SetText("txtPos(0)", "1");
  Remove();
  EXPECT_EQ(Apply({"\xC3\xA4pfel.txt"}), Names{"pfel.txt"});
}

TEST_F(FrmReplaceTest, TagsInTheReplacementAreEvaluated) {
  Text("x", "<NAME_L(2)>");
  // The pending name is the structure: NAME is the name on disk, "abxcd".
  EXPECT_EQ(Apply({"abxcd.txt"}), Names{"ababcd.txt"});
}

TEST_F(FrmReplaceTest, BlankTagBecomesOneBlank) {
  Text("_", "<Blank>");
  EXPECT_EQ(Apply({"a_b.txt"}), Names{"a b.txt"});
}

TEST_F(FrmReplaceTest, EmptyFindTextIsToldAndNothingChanges) {
  script.saveDialogSettings = true;
  Text("", "x");
  AddFiles({"a.txt"});
  EXPECT_FALSE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(AskedKeys(), Names{lang::kFindTextMissing});
  EXPECT_EQ(frontEnd.asked[0].captionKey, lang::kInputMissingCaption);
  EXPECT_EQ(PendingNames(), Names{"a.txt"});
  EXPECT_EQ(SettingsText(), "") << "nothing is remembered of a refused apply";
}

TEST_F(FrmReplaceTest, EmptyReplacementIsToldUnlessRemoving) {
  Text("a", "");
  AddFiles({"a.txt"});
  EXPECT_FALSE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(AskedKeys(), Names{lang::kReplacementMissing});
  Remove();
  EXPECT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(PendingNames(), Names{"a.txt"}) << "removing the whole stem keeps it";
}

TEST_F(FrmReplaceTest, NonNumericPositionIsAFaultAndNoNameChanges) {
  Position("optChrFirst");
  Model().SetText("txtPos(0)", "two");
  Model().SetText("txtRepBy", "X");
  AddFiles({"abc.txt"});
  EXPECT_THROW(rename::ApplyActionDialog(dialog, Actions()), base::RuntimeFault);
  EXPECT_EQ(PendingNames(), Names{"abc.txt"});
}

TEST_F(FrmReplaceTest, FromBelowOneIsAFault) {
  Position("optChrFromTo");
  Model().SetText("txtFrom", "0");
  Model().SetText("txtTo", "2");
  Model().SetText("txtRepBy", "X");
  AddFiles({"abc.txt"});
  EXPECT_THROW(rename::ApplyActionDialog(dialog, Actions()), base::RuntimeFault);
}

TEST_F(FrmReplaceTest, RemembersItsInputsUnderItsOwnSection) {
  script.saveDialogSettings = true;
  Text("a", "b");
  Apply({"a.txt"});
  EXPECT_NE(SettingsText().find("[frmReplace]"), std::string::npos) << SettingsText();
  EXPECT_NE(SettingsText().find("txtToRep=a"), std::string::npos) << SettingsText();
}

TEST_F(FrmReplaceTest, OptionButtonsEnableTheirInputs) {
  EXPECT_TRUE(dialog.IsEnabled("txtToRep"));
  EXPECT_FALSE(dialog.IsEnabled("txtPos(0)"));
  EXPECT_FALSE(dialog.IsEnabled("cmbRemove"));
  Position("optChrLast");
  EXPECT_FALSE(dialog.IsEnabled("txtToRep"));
  EXPECT_TRUE(dialog.IsEnabled("txtPos(1)"));
  EXPECT_FALSE(dialog.IsEnabled("txtPos(0)"));
  EXPECT_TRUE(dialog.IsEnabled("cmdGetPos"));
  Class(3, 1);
  EXPECT_TRUE(dialog.IsEnabled("cmbRemove"));
  EXPECT_FALSE(dialog.IsEnabled("txtExceptions"));
  Model().SetNumber("chkExceptions", 1);
  EXPECT_TRUE(dialog.IsEnabled("txtExceptions"));
  Remove();
  EXPECT_FALSE(dialog.IsEnabled("txtRepBy"));
  EXPECT_FALSE(dialog.IsEnabled("cmdSelectEntry"));
}

TEST_F(FrmReplaceTest, RegularExpressionReplacesWithGroups) {
  Text("^(\\d+) - (.*)$", "$2 ($1)");
  Model().SetNumber("chkRegExp", 1);
  EXPECT_EQ(Apply({"01 - Intro.mp3", "Outro.mp3"}), (Names{"Intro (01).mp3", "Outro.mp3"}));
}

TEST_F(FrmReplaceTest, RegularExpressionThatRemovesEverythingKeepsTheStem) {
  Text(".+", "");
  Model().SetNumber("chkRegExp", 1);
  Remove();
  EXPECT_EQ(Apply({"abc.txt"}), Names{"abc.txt"});
}

TEST_F(FrmReplaceTest, BadPatternIsToldWithItsPositionAndNothingChanges) {
  Text("ab(c", "x");
  Model().SetNumber("chkRegExp", 1);
  AddFiles({"abc.txt"});
  EXPECT_FALSE(rename::ApplyActionDialog(dialog, Actions()));
  ASSERT_EQ(AskedKeys(), Names{lang::kPatternFault});
  EXPECT_EQ(frontEnd.asked[0].arguments.at(1), "5");
  EXPECT_EQ(PendingNames(), Names{"abc.txt"});
}

TEST_F(FrmReplaceTest, ReplacementNamingAMissingGroupIsTold) {
  Text("(a)", "$3");
  Model().SetNumber("chkRegExp", 1);
  AddFiles({"abc.txt"});
  EXPECT_FALSE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(AskedKeys(), Names{lang::kPatternReplacementFault});
}

TEST_F(FrmReplaceTest, WithoutTheRegularExpressionSwitchPatternsAreText) {
  Text("a.c", "X");
  EXPECT_EQ(Apply({"abc.txt", "a.c.txt"}), (Names{"abc.txt", "X.txt"}));
}

}  // namespace
}  // namespace nomra::actions
