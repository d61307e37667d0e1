#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "structure/EditorFixture.h"
#include "structure/FrmNameStructure.h"

namespace nomra::structure {
namespace {

using Structures = std::vector<StoredStructure>;
using Names = std::vector<std::string>;

const std::string kTwoStructures = "Name;Structure;\r\nUpper;<UC><NAME></UC>.<EXT>;\r\nMarked;x_<NAME>.<EXT>;\r\n";

class FrmNameStructureTest : public testing::StructureDialogTest {
 protected:
  FrmNameStructureTest() { AddFiles({"alpha.txt", "beta.txt"}); }

  void Open(const std::string& structuresFile = kTwoStructures) {
    WriteStructures(structuresFile);
    editor.Load();
  }

  const std::string& Text(const char* input) const { return editor.Model().Text(input); }
  std::vector<std::string> AskedKeys() const {
    std::vector<std::string> keys;
    for (const core::Message& message : frontEnd.asked) keys.push_back(message.textKey);
    return keys;
  }

  FrmNameStructure editor{Actions(), catalog};
};

TEST_F(FrmNameStructureTest, LoadingReadsTheStoredStructuresAndChoosesTheFirst) {
  Open();
  EXPECT_EQ(editor.Structures(), (Structures{{"Upper", "<UC><NAME></UC>.<EXT>"}, {"Marked", "x_<NAME>.<EXT>"}}));
  EXPECT_EQ(editor.Chosen(), 0);
  EXPECT_EQ(Text("txtName"), "Upper");
  EXPECT_EQ(Text("txtStructure"), "<UC><NAME></UC>.<EXT>");
  EXPECT_FALSE(editor.Editing());
  EXPECT_TRUE(editor.EditEnabled());
  EXPECT_TRUE(editor.DeleteEnabled());
}

TEST_F(FrmNameStructureTest, WithoutAFileTheListIsEmptyAndEditAndDeleteAreDisabled) {
  editor.Load();
  EXPECT_TRUE(editor.Structures().empty());
  EXPECT_EQ(editor.Chosen(), -1);
  EXPECT_FALSE(editor.EditEnabled());
  EXPECT_FALSE(editor.DeleteEnabled());
}

TEST_F(FrmNameStructureTest, ElementsComeFromFourListsInOrderAndFunctionsFromTheirOwn) {
  editor.Load();
  EXPECT_EQ(editor.Elements(), (std::vector<TagChoice>{{"Name", "<NAME>"},
                                                       {"Extension", "<EXT>"},
                                                       {"Camera", "<EXIF_Make>"},
                                                       {"Artist", "<ID3_Artist>"},
                                                       {"Short name", "<DOSNAME>"}}));
  EXPECT_EQ(editor.Functions(),
            (std::vector<TagChoice>{{"Upper case", "<UC></UC>"}, {"First letters", "<NAME_L(3)>"}}));
}

TEST_F(FrmNameStructureTest, ReadingATagListStopsAtTheFirstMissingNumber) {
  const lang::MessageCatalog gapped =
      LanguageOf(app, {"[ComboBoxes]", "cmbElements-1=A|<A>", "cmbElements-2=B|<B>", "cmbElements-4=D|<D>"});
  EXPECT_EQ(ReadTagChoices(gapped, "cmbElements"), (std::vector<TagChoice>{{"A", "<A>"}, {"B", "<B>"}}));
}

TEST_F(FrmNameStructureTest, EntryWithoutABarIsLabelAndTagAtOnce) {
  const lang::MessageCatalog bare = LanguageOf(app, {"[ComboBoxes]", "cmbFunctions-1=<BLANK>"});
  EXPECT_EQ(FunctionChoices(bare), (std::vector<TagChoice>{{"<BLANK>", "<BLANK>"}}));
}

TEST_F(FrmNameStructureTest, ChoosingARowShowsItsNameAndStructure) {
  Open();
  editor.Choose(1);
  EXPECT_EQ(Text("txtName"), "Marked");
  EXPECT_EQ(Text("txtStructure"), "x_<NAME>.<EXT>");
}

TEST_F(FrmNameStructureTest, AddPresetsTheNextNameClearsTheStructureAndEdits) {
  Open();
  editor.Add();
  EXPECT_EQ(Text("txtName"), "Structure 3");
  EXPECT_EQ(Text("txtStructure"), "");
  EXPECT_TRUE(editor.Editing());
  EXPECT_EQ(editor.Mode(), StructureEditMode::Add);
}

TEST_F(FrmNameStructureTest, EditKeepsTheTextsAndEdits) {
  Open();
  editor.Edit();
  EXPECT_EQ(editor.Mode(), StructureEditMode::Edit);
  EXPECT_EQ(Text("txtName"), "Upper");
}

TEST_F(FrmNameStructureTest, StructureOkIsEnabledExactlyWhenNameAndStructureHoldText) {
  Open();
  editor.Add();
  EXPECT_FALSE(editor.StructureOkEnabled());
  editor.SetStructure("<NAME>");
  EXPECT_TRUE(editor.StructureOkEnabled());
  editor.SetName("   ");
  EXPECT_FALSE(editor.StructureOkEnabled());
  editor.SetName(" n ");
  editor.SetStructure(" \t ");
  EXPECT_FALSE(editor.StructureOkEnabled());
}

TEST_F(FrmNameStructureTest, AcceptedAddIsAppendedAndChosen) {
  Open();
  editor.Add();
  editor.SetStructure("<NAME>_new.<EXT>");
  EXPECT_TRUE(editor.AcceptEdit());
  EXPECT_EQ(editor.Structures().back(), (StoredStructure{"Structure 3", "<NAME>_new.<EXT>"}));
  EXPECT_EQ(editor.Chosen(), 2);
  EXPECT_FALSE(editor.Editing());
}

TEST_F(FrmNameStructureTest, AcceptedEditOverwritesTheChosenRow) {
  Open();
  editor.Choose(1);
  editor.Edit();
  editor.SetName("Renamed");
  editor.SetStructure("y_<NAME>.<EXT>");
  EXPECT_TRUE(editor.AcceptEdit());
  EXPECT_EQ(editor.Structures(), (Structures{{"Upper", "<UC><NAME></UC>.<EXT>"}, {"Renamed", "y_<NAME>.<EXT>"}}));
  EXPECT_EQ(editor.Chosen(), 1);
}

TEST_F(FrmNameStructureTest, BadSyntaxIsReportedAndEditingGoesOn) {
  Open();
  editor.Edit();
  editor.SetStructure("<NAME>>");
  EXPECT_FALSE(editor.AcceptEdit());
  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{"msgErrorStructure1"}));
  EXPECT_EQ(frontEnd.asked.front().arguments, (std::vector<std::string>{"7", "Check your input."}));
  EXPECT_TRUE(editor.Editing());
  ASSERT_TRUE(editor.LastFailure());
  EXPECT_EQ(editor.LastFailure()->selectionStart, 7);
  EXPECT_EQ(editor.Structures().front().structure, "<UC><NAME></UC>.<EXT>");
}

TEST_F(FrmNameStructureTest, FaultOfTheTestEvaluationIsShownAndEditingGoesOn) {
  Open();
  SetNewName(1, "a-b.txt");
  editor.Edit();
  editor.SetStructure("<NAMEPART(\"-\",0)>");
  EXPECT_FALSE(editor.AcceptEdit());
  EXPECT_EQ(frontEnd.faults.size(), 1u);
  EXPECT_TRUE(editor.Editing());
}

TEST_F(FrmNameStructureTest, CancelledEditStoresNothingAndShowsTheChosenRowAgain) {
  Open();
  editor.Add();
  editor.SetStructure("<NAME>");
  editor.CancelEdit();
  EXPECT_FALSE(editor.Editing());
  EXPECT_EQ(editor.Structures().size(), 2u);
  EXPECT_EQ(Text("txtName"), "Upper");
  EXPECT_EQ(Text("txtStructure"), "<UC><NAME></UC>.<EXT>");
}

TEST_F(FrmNameStructureTest, DeleteAsksWithNoPresetAndKeepsTheRowOnNo) {
  Open();
  frontEnd.answers = {core::Answer::No};
  editor.Delete();
  ASSERT_EQ(frontEnd.asked.size(), 1u);
  EXPECT_EQ(frontEnd.asked.front().textKey, "msgRemoveStructure");
  EXPECT_EQ(frontEnd.asked.front().captionKey, "msgCapRemoveStructure");
  EXPECT_EQ(frontEnd.asked.front().style, core::MessageStyle::YesNoDefaultNo);
  EXPECT_EQ(editor.Structures().size(), 2u);
}

TEST_F(FrmNameStructureTest, DeleteRemovesTheChosenRowOnYes) {
  Open();
  editor.Choose(1);
  frontEnd.answers = {core::Answer::Yes};
  editor.Delete();
  EXPECT_EQ(editor.Structures(), (Structures{{"Upper", "<UC><NAME></UC>.<EXT>"}}));
  EXPECT_EQ(editor.Chosen(), 0);
  EXPECT_EQ(Text("txtName"), "Upper");
}

TEST_F(FrmNameStructureTest, DeletingTheLastRowDisablesEditAndDelete) {
  Open("Name;Structure;\r\nOnly;<NAME>;\r\n");
  frontEnd.answers = {core::Answer::Yes};
  editor.Delete();
  EXPECT_TRUE(editor.Structures().empty());
  EXPECT_FALSE(editor.EditEnabled());
  EXPECT_FALSE(editor.DeleteEnabled());
  EXPECT_EQ(Text("txtName"), "");
}

TEST_F(FrmNameStructureTest, ApplyRunsTheChosenStructureOnTheRowsInScope) {
  Open();
  state.list.Item(2).selected = true;
  state.applyScope = 1;
  EXPECT_TRUE(editor.Apply());
  EXPECT_EQ(PendingNames(), (Names{"alpha.txt", "BETA.txt"}));
}

TEST_F(FrmNameStructureTest, ApplySavesTheWholeListEvenWhenTheCheckFails) {
  Open("Name;Structure;\r\nBroken;<ERROR>;\r\n");
  editor.Add();
  editor.SetStructure("<NAME>");
  ASSERT_TRUE(editor.AcceptEdit());
  editor.Choose(0);
  EXPECT_FALSE(editor.Apply());
  EXPECT_EQ(testing::ReadWholeFile(StructuresFile()), "Name;Structure;\r\nBroken;<ERROR>;\r\nStructure 2;<NAME>;\r\n");
}

TEST_F(FrmNameStructureTest, FailedApplyEditsTheStructureAndRenamesNothing) {
  Open("Name;Structure;\r\nBroken;<NAME_L(x)>;\r\n");
  EXPECT_FALSE(editor.Apply());
  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{"msgErrorStructure3"}));
  EXPECT_TRUE(editor.Editing());
  EXPECT_EQ(editor.Mode(), StructureEditMode::Edit);
  EXPECT_EQ(PendingNames(), (Names{"alpha.txt", "beta.txt"}));
}

TEST_F(FrmNameStructureTest, OkClosesOnlyWhenTheListShows) {
  Open();
  EXPECT_TRUE(editor.Ok());
  editor.Edit();
  EXPECT_FALSE(editor.Ok());
  EXPECT_TRUE(editor.Editing());
}

TEST_F(FrmNameStructureTest, OkWithAFailingCheckStaysOpen) {
  Open("Name;Structure;\r\nBroken;<ERROR>;\r\n");
  EXPECT_FALSE(editor.Ok());
}

TEST_F(FrmNameStructureTest, EditsWithoutApplyAreNotWritten) {
  Open();
  editor.Add();
  editor.SetStructure("<NAME>");
  ASSERT_TRUE(editor.AcceptEdit());
  EXPECT_EQ(testing::ReadWholeFile(StructuresFile()), kTwoStructures);
}

TEST_F(FrmNameStructureTest, NameAloneGivesAnEmptyStructureThatPassesAndGivesEachEntryItsOwnName) {
  Open("Name;Structure;\r\nNothing;\r\n");
  SetNewName(1, "changed.txt");
  EXPECT_EQ(editor.Structures(), (Structures{{"Nothing", ""}}));
  EXPECT_TRUE(editor.Apply());
  EXPECT_EQ(PendingNames(), (Names{"changed.txt", "beta.txt"}));
  EXPECT_TRUE(frontEnd.asked.empty());
}

TEST_F(FrmNameStructureTest, PreviewShowsThePendingNameAndItsResultOnTheFirstRow) {
  Open();
  EXPECT_EQ(Text("txtFileName"), "alpha.txt");
  EXPECT_EQ(Text("txtResult"), "ALPHA.txt");
}

TEST_F(FrmNameStructureTest, PreviewFollowsTheStructureAsItIsTyped) {
  Open();
  editor.SetStructure("<NAME>-<NAME>");
  EXPECT_EQ(Text("txtResult"), "alpha-alpha");
}

TEST_F(FrmNameStructureTest, PreviewRowRunsFromOneToTheRowCount) {
  Open();
  EXPECT_EQ(editor.Model().At("VScroll1").minimum, 1);
  EXPECT_EQ(editor.Model().At("VScroll1").maximum, 2);
  editor.SetPreviewRow(2);
  EXPECT_EQ(Text("txtFileName"), "beta.txt");
  EXPECT_EQ(Text("txtResult"), "BETA.txt");
  editor.SetPreviewRow(3);
  EXPECT_EQ(Text("txtFileName"), "beta.txt");
}

TEST_F(FrmNameStructureTest, PreviewOfAFaultingStructureShowsWhyInTheResult) {
  Open();
  SetNewName(1, "a-b.txt");
  editor.SetStructure("<NAMEPART(\"-\",0)>");
  EXPECT_NE(Text("txtResult").find("NAMEPART"), std::string::npos);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(FrmNameStructureTest, PreviewIsEmptyForAnEmptyList) {
  state.list.Clear();
  Open();
  EXPECT_EQ(Text("txtFileName"), "");
  EXPECT_EQ(Text("txtResult"), "");
}

TEST_F(FrmNameStructureTest, LoadingLeavesNoMessageAndNoFault) {
  SetNewName(1, "a-b.txt");
  Open("Name;Structure;\r\nFaulting;<NAMEPART(\"-\",0)>;\r\n");
  EXPECT_NE(Text("txtResult"), "");
  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_TRUE(frontEnd.faults.empty());
}

}  // namespace
}  // namespace nomra::structure
