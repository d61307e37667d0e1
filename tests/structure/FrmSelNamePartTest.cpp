#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "structure/EditorFixture.h"
#include "structure/FrmSelNamePart.h"

namespace nomra::structure {
namespace {

class FrmSelNamePartTest : public testing::StructureDialogTest {
 protected:
  FrmSelNamePartTest() { AddFiles({"a - b - c.mp3", "x-y.z-w.txt"}); }

  const std::string& Text(const char* input) const { return picker.Model().Text(input); }
  int Number(const char* input) const { return picker.Model().Number(input); }
  // Separator, part index and blanks value after loading the target.
  std::tuple<std::string, int, int> InputsAfterLoading(const std::string& target) {
    picker.Load(target);
    return {Text("txtSeparator"), Number("cmbPartCount"), Number("chkRemoveBlanks")};
  }

  FrmSelNamePart picker{state.list};
};

TEST_F(FrmSelNamePartTest, TargetWithoutTheTagLeavesFirstPartAndTrimmedBlanks) {
  EXPECT_EQ(InputsAfterLoading("<NAME>_plain"), std::make_tuple("", 0, 1));
}

TEST_F(FrmSelNamePartTest, PartNumbersAreOneToNine) {
  EXPECT_EQ(picker.Model().At("cmbPartCount").rows,
            (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
}

TEST_F(FrmSelNamePartTest, LoadTakesSeparatorPartAndBlanksFromTheTargetsTag) {
  EXPECT_EQ(InputsAfterLoading("x_<NamePart(\"-\",3,0)>_y"), std::make_tuple("-", 2, 0));
}

TEST_F(FrmSelNamePartTest, TagIsFoundWithoutRegardToCase) {
  EXPECT_EQ(InputsAfterLoading("<NAMEPART(\"_\",2)>"), std::make_tuple("_", 1, 1));
}

TEST_F(FrmSelNamePartTest, ValuesTheInputsCantTakeArePassedOver) {
  EXPECT_EQ(InputsAfterLoading("<NamePart(\"-\",12,5)>"), std::make_tuple("-", 0, 1));
  EXPECT_EQ(InputsAfterLoading("<NamePart(\"+\",two,yes)>"), std::make_tuple("+", 0, 1));
}

TEST_F(FrmSelNamePartTest, MalformedTagLeavesEveryInput) {
  EXPECT_EQ(InputsAfterLoading("<NamePart(\"-\",2,0)"), std::make_tuple("", 0, 1));
}

TEST_F(FrmSelNamePartTest, PreviewShowsThePartOfThePreviewRowsName) {
  picker.Load("");
  picker.SetSeparator("-");
  picker.SetPartIndex(1);
  EXPECT_EQ(Text("txtFileName"), "a - b - c.mp3");
  EXPECT_EQ(Text("txtResult"), "b");
  picker.SetRemoveBlanks(false);
  EXPECT_EQ(Text("txtResult"), " b ");
}

TEST_F(FrmSelNamePartTest, PreviewSplitsTheStemNotTheExtension) {
  picker.Load("<NamePart(\"-\",3,1)>");
  picker.SetPreviewRow(2);
  EXPECT_EQ(Text("txtFileName"), "x-y.z-w.txt");
  EXPECT_EQ(Text("txtResult"), "w");
}

TEST_F(FrmSelNamePartTest, WithoutASeparatorOkIsDisabledAndNothingShows) {
  picker.Load("<NamePart(\"-\",1,1)>");
  EXPECT_TRUE(picker.OkEnabled());
  EXPECT_EQ(Text("txtResult"), "a");
  picker.SetSeparator("");
  EXPECT_FALSE(picker.OkEnabled());
  EXPECT_EQ(Text("txtResult"), "");
}

TEST_F(FrmSelNamePartTest, OkWritesTheTagWithTheSeparatorInQuotes) {
  picker.Load("");
  picker.SetSeparator(" - ");
  picker.SetPartIndex(8);
  picker.SetRemoveBlanks(false);
  EXPECT_EQ(picker.TagText(), "<NamePart(\" - \",9,0)>");
}

TEST_F(FrmSelNamePartTest, WrittenTagIsReadBackTheSame) {
  picker.Load("<NamePart(\"_\",4,0)>");
  FrmSelNamePart again(state.list);
  again.Load(picker.TagText());
  EXPECT_EQ(again.TagText(), "<NamePart(\"_\",4,0)>");
}

TEST_F(FrmSelNamePartTest, PreviewIsEmptyForAnEmptyList) {
  state.list.Clear();
  picker.Load("<NamePart(\"-\",1,1)>");
  EXPECT_EQ(Text("txtFileName"), "");
  EXPECT_EQ(Text("txtResult"), "");
}

}  // namespace
}  // namespace nomra::structure
