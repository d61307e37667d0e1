// Numbering: the four systems, the width that follows the last number, the
// place of the number and the random order.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "actions/FrmNumber.h"
#include "base/Fault.h"
#include "rename/ActionFixture.h"
#include "rename/ActionFrame.h"

namespace nomra::actions {
namespace {

using Names = std::vector<std::string>;

TEST(NumberToText, ZeroIsTheDigitInEverySystem) {
  for (int system = 0; system <= 3; ++system) EXPECT_EQ(NumberToText(0, static_cast<NumberSystem>(system)), "0");
}

TEST(NumberToText, DecimalAndHexadecimalOfThe32BitPattern) {
  EXPECT_EQ(NumberToText(-12, NumberSystem::Decimal), "-12");
  EXPECT_EQ(NumberToText(255, NumberSystem::Hexadecimal), "FF");
  EXPECT_EQ(NumberToText(-1, NumberSystem::Hexadecimal), "FFFFFFFF");
}

TEST(NumberToText, LettersCountOnPastZ) {
  EXPECT_EQ(NumberToText(1, NumberSystem::UpperLetters), "A");
  EXPECT_EQ(NumberToText(26, NumberSystem::UpperLetters), "Z");
  EXPECT_EQ(NumberToText(27, NumberSystem::UpperLetters), "AA");
  EXPECT_EQ(NumberToText(52, NumberSystem::UpperLetters), "AZ");
  EXPECT_EQ(NumberToText(703, NumberSystem::UpperLetters), "AAA");
  EXPECT_EQ(NumberToText(-28, NumberSystem::LowerLetters), "-ab");
  EXPECT_EQ(NumberToText(INT32_MIN, NumberSystem::UpperLetters).front(), '-');
}

TEST(TextToNumber, ReadsEachSystemBack) {
  EXPECT_EQ(TextToNumber("", NumberSystem::Decimal), "");
  EXPECT_EQ(TextToNumber("-", NumberSystem::Hexadecimal), "");
  EXPECT_EQ(TextToNumber("12", NumberSystem::Decimal), "12");
  EXPECT_EQ(TextToNumber("x", NumberSystem::Decimal), "");
  EXPECT_EQ(TextToNumber("FF", NumberSystem::Hexadecimal), "255");
  EXPECT_EQ(TextToNumber("ff", NumberSystem::Hexadecimal), "255");
  EXPECT_EQ(TextToNumber("AA", NumberSystem::UpperLetters), "27");
  EXPECT_EQ(TextToNumber("-aaa", NumberSystem::LowerLetters), "-703");
}

TEST(NumberTable, AutoWidthFollowsTheLastNumber) {
  const auto table = NumberTable(1, 1, 120, NumberSystem::Decimal, 0);
  EXPECT_EQ(table.front(), "001");
  EXPECT_EQ(table[98], "099");
  EXPECT_EQ(table.back(), "120");
}

TEST(NumberTable, DescendingAutoIsPaddedToTheLastNotTheFirst) {
  const auto table = NumberTable(120, -1, 120, NumberSystem::Decimal, 0);
  EXPECT_EQ(table.front(), "120");
  EXPECT_EQ(table[110], "10");
  EXPECT_EQ(table.back(), "1");
}

TEST(NumberTable, LettersAreFilledWithBlanks) {
  const auto table = NumberTable(26, 1, 2, NumberSystem::UpperLetters, 3);
  EXPECT_EQ(table, (Names{"  Z", " AA"}));
}

TEST(NumberTable, ZeroInLettersShowsTheDigit) {
  EXPECT_EQ(NumberTable(-1, 1, 3, NumberSystem::UpperLetters, 2), (Names{"-A", " 0", " A"}));
}

TEST(NumberTable, HexadecimalFilledWithZeros) {
  EXPECT_EQ(NumberTable(255, 1, 1, NumberSystem::Hexadecimal, 4), Names{"00FF"});
}

TEST(NumberTable, NegativeStartAndStep) {
  EXPECT_EQ(NumberTable(-2, -3, 3, NumberSystem::Decimal, 1), (Names{"-2", "-5", "-8"}));
}

TEST(NumberTable, ALongerNumberThanTheWidthStaysWhole) {
  EXPECT_EQ(NumberTable(1000, 1, 1, NumberSystem::Decimal, 2), Names{"1000"});
}

TEST(NumberTable, LeavingThirtyTwoBitsIsAFault) {
  EXPECT_THROW(NumberTable(2147483600, 100, 2, NumberSystem::Decimal, 0), base::RuntimeFault);
  EXPECT_THROW(NumberTable(INT32_MIN, 1, 0, NumberSystem::Decimal, 0), base::RuntimeFault)
      << "the last number of an empty scope is start less step";
}

TEST(InsertNumber, AtAPositionFromTheLeftWithTheIntermediateText) {
  EXPECT_EQ(InsertNumber("abcd", "7", 2, false, "-"), "ab-7-cd");
}

TEST(InsertNumber, BeyondTheEndFromTheLeftLandsBeforeTheLastCharacter) {
  EXPECT_EQ(InsertNumber("abcd", "7", 10, false, "-"), "abc-7-d");
}

TEST(InsertNumber, FromTheRight) {
  EXPECT_EQ(InsertNumber("abcd", "7", 1, true, "-"), "abc-7-d");
  EXPECT_EQ(InsertNumber("abcd", "7", 0, true, "-"), "abcd-7");
  EXPECT_EQ(InsertNumber("abcd", "7", 9, true, "-"), "7-abcd");
}

TEST(InsertNumber, EmptyStemIsTheNumberAlone) { EXPECT_EQ(InsertNumber("", "7", 0, false, "-"), "7"); }

class FrmNumberTest : public testing::ActionTest {
 protected:
  dialog::DialogModel& Model() { return dialog.Model(); }
  Names Apply(const Names& files) {
    AddFiles(files);
    EXPECT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
    return PendingNames();
  }
  FrmNumber dialog;
};

TEST_F(FrmNumberTest, PrefixWidthOneAndSeparatorWhenNothingIsStored) {
  EXPECT_TRUE(Model().IsSelected("optPrefix"));
  EXPECT_EQ(Model().Number("cmbAnz"), 1);
  EXPECT_EQ(Model().Number("cmbIChr"), 1);
  EXPECT_EQ(Model().Number("chkRandom"), 0);
  EXPECT_EQ(Model().Number("chkReplace"), 0);
  EXPECT_EQ(Model().Number("chkIntChr"), 0);
  EXPECT_EQ(dialog.Traits().restoreMoment, rename::RestoreMoment::OnFirstActivation);
}

TEST_F(FrmNumberTest, PrefixWithIntermediateText) {
  Model().SetNumber("chkIntChr", 1);
  EXPECT_EQ(Apply({"a.txt", "b.txt"}), (Names{"1 - a.txt", "2 - b.txt"}));
}

TEST_F(FrmNumberTest, SuffixInAutoWidth) {
  Model().SetOption("optSuffix", true);
  Model().SetNumber("cmbAnz", 0);
  Model().SetText("txtInit", "9");
  EXPECT_EQ(Apply({"a.txt", "b.txt"}), (Names{"a09.txt", "b10.txt"}));
  EXPECT_EQ(Model().Number("cmbAlign"), 1) << "a suffix is position 0 from the right";
}

TEST_F(FrmNumberTest, BlankItemIsOneBlank) {
  Model().SetNumber("chkIntChr", 1);
  Model().SetNumber("cmbIChr", 0);
  EXPECT_EQ(Apply({"a.txt"}), Names{"1 a.txt"});
}

TEST_F(FrmNumberTest, ReplacingWithAnEmptyNameLeavesTheNumberWithoutIntermediateText) {
  Model().SetNumber("chkReplace", 1);
  Model().SetNumber("chkIntChr", 1);
  EXPECT_EQ(Apply({"holiday.jpg", "beach.jpg"}), (Names{"1.jpg", "2.jpg"}));
}

TEST_F(FrmNumberTest, ReplacingTheStemWithAName) {
  Model().SetNumber("chkReplace", 1);
  Model().SetText("txtRepName", "Trip");
  Model().SetNumber("chkIntChr", 1);
  Model().SetNumber("cmbIChr", 4);
  EXPECT_EQ(Apply({"x.jpg", "y.jpg"}), (Names{"1_Trip.jpg", "2_Trip.jpg"}));
}

TEST_F(FrmNumberTest, DotFileGetsTheNumberAsStemAndKeepsItsExtension) {
  EXPECT_EQ(Apply({".htaccess"}), Names{"1.htaccess"});
}

TEST_F(FrmNumberTest, OnlyTheScopeIsNumberedInListOrder) {
  AddFiles({"a.txt", "b.txt", "c.txt"});
  state.list.Item(1).selected = true;
  state.list.Item(3).selected = true;
  state.applyScope = core::kScopeSelected;
  ASSERT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(PendingNames(), (Names{"1a.txt", "b.txt", "2c.txt"}));
}

TEST_F(FrmNumberTest, EmptyScopeChangesNothing) {
  AddFiles({"a.txt"});
  state.applyScope = core::kScopeSelected;
  ASSERT_TRUE(rename::ApplyActionDialog(dialog, Actions()));
  EXPECT_EQ(PendingNames(), Names{"a.txt"});
}

TEST_F(FrmNumberTest, RandomOrderHandsOutTheSameNumbersReproduciblyForASeed) {
  Names files;
  for (int i = 0; i < 20; ++i) files.push_back("f" + std::to_string(i) + ".txt");
  Model().SetNumber("chkRandom", 1);
  Model().SetNumber("cmbAnz", 2);
  Model().SetOption("optSuffix", true);
  dialog.SeedRandomOrder(42);
  const Names first = Apply(files);
  Names numbers;
  for (const std::string& name : first) numbers.push_back(name.substr(name.size() - 6, 2));
  Names sorted = numbers;
  std::sort(sorted.begin(), sorted.end());
  Names expected;
  for (int i = 1; i <= 20; ++i) expected.push_back((i < 10 ? "0" : "") + std::to_string(i));
  EXPECT_EQ(sorted, expected) << "each number once";
  EXPECT_NE(numbers, expected) << "in another order";

  FrmNumber again;
  again.Model().SetNumber("chkRandom", 1);
  again.Model().SetNumber("cmbAnz", 2);
  again.Model().SetOption("optSuffix", true);
  again.SeedRandomOrder(42);
  state.list.ForEach([](core::FileEntry& row) { row[core::kColNewName] = row[core::kColOldName]; });
  ASSERT_TRUE(rename::ApplyActionDialog(again, Actions()));
  EXPECT_EQ(PendingNames(), first);
}

TEST_F(FrmNumberTest, NonNumericStartFromAScriptIsAFaultAndNoNameChanges) {
  Model().SetText("txtInit", "one");
  AddFiles({"a.txt"});
  EXPECT_THROW(rename::ApplyActionDialog(dialog, Actions()), base::RuntimeFault);
  EXPECT_EQ(PendingNames(), Names{"a.txt"});
}

TEST_F(FrmNumberTest, StartShownInTheChosenSystemAndBack) {
  Model().SetText("txtInit", "28");
  Model().SetNumber("cmbNumberWith", 2);
  dialog.SystemChosen();
  EXPECT_EQ(Model().Text("txtInitFormat"), "AB");
  Model().SetText("txtInitFormat", "BA");
  dialog.ShownStartEdited();
  EXPECT_EQ(Model().Text("txtInit"), "53");
  Model().SetText("txtInit", "x");
  dialog.StartValueEdited();
  EXPECT_EQ(Model().Text("txtInitFormat"), "");
}

TEST_F(FrmNumberTest, HexadecimalDropsTheSignAndAnEmptyStartBecomesOne) {
  Model().SetText("txtInit", "-5");
  Model().SetNumber("cmbNumberWith", 1);
  dialog.SystemChosen();
  EXPECT_EQ(Model().Text("txtInit"), "5");
  Model().SetText("txtInit", "-");
  Model().SetNumber("cmbNumberWith", 0);
  dialog.SystemChosen();
  EXPECT_EQ(Model().Text("txtInit"), "1");
}

TEST_F(FrmNumberTest, InsertAtEnablesThePositionAndDisablesReplacing) {
  EXPECT_FALSE(dialog.IsEnabled("txtPos"));
  EXPECT_TRUE(dialog.IsEnabled("chkReplace"));
  Model().SetOption("optInsertAt", true);
  EXPECT_TRUE(dialog.IsEnabled("txtPos"));
  EXPECT_TRUE(dialog.IsEnabled("cmbAlign"));
  EXPECT_FALSE(dialog.IsEnabled("chkReplace"));
}

TEST_F(FrmNumberTest, InsertAtAPositionFromTheLeftOfTheList) {
  Model().SetOption("optInsertAt", true);
  Model().SetText("txtPos", "2");
  Model().SetNumber("chkIntChr", 1);
  Model().SetNumber("cmbIChr", 2);
  Model().SetText("txtInit", "7");
  EXPECT_EQ(Apply({"abcd.txt"}), Names{"ab-7-cd.txt"});
}

TEST_F(FrmNumberTest, AHundredThousandRowsAreNumbered) {
  const auto table = NumberTable(1, 1, 100000, NumberSystem::Decimal, 0);
  EXPECT_EQ(table.size(), 100000u);
  EXPECT_EQ(table.front(), "000001");
  EXPECT_EQ(table.back(), "100000");
}

}  // namespace
}  // namespace nomra::actions
