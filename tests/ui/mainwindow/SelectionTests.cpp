// The selection of the list and the detail fields that follow it.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QItemSelectionModel>
#include <QTableView>

#include "core/FileEntry.h"
#include "support/TempFolder.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class SelectionTest : public WindowTest {
 protected:
  void SelectRow(int position) {
    Details().selectionModel()->select(Shown().index(position - 1, 0),
                                       QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
};

TEST_F(SelectionTest, SelectedRowFillsTheDetailFields) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  const int b = PositionOf("b.txt");
  SetNewName(b, "z.txt");
  window->RefreshPreview();
  ASSERT_EQ(Label("lbl2(1)"), "");

  SelectRow(b);

  EXPECT_EQ(Label("lbl2(1)"), QString::fromStdString(files.Path()));
  EXPECT_EQ(Label("lbl2(2)"), "b.txt");
  EXPECT_EQ(Label("lbl2(3)"), "z.txt");
  EXPECT_TRUE(window->State().list.Item(b).selected);
  EXPECT_FALSE(window->State().list.Item(PositionOf("a.txt")).selected);
  EXPECT_TRUE(window->ToolAction("btnBarLeft", "EditMan")->isEnabled());
}

TEST_F(SelectionTest, SelectionSurvivesARefresh) {
  Open();
  AddFiles({"a.txt", "b.txt", "c.txt"});
  const int b = PositionOf("b.txt");
  SelectRow(b);

  window->RefreshPreview();

  EXPECT_TRUE(Details().selectionModel()->isRowSelected(b - 1));
  EXPECT_EQ(Details().selectionModel()->selectedRows().size(), 1);
  EXPECT_TRUE(window->State().list.Item(b).selected);
  EXPECT_EQ(Label("lbl2(2)"), "b.txt");
}

TEST_F(SelectionTest, ChangingTheSelectionClearsTheRowLeft) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  SelectRow(PositionOf("a.txt"));

  SelectRow(PositionOf("b.txt"));

  EXPECT_FALSE(window->State().list.Item(PositionOf("a.txt")).selected);
  EXPECT_TRUE(window->State().list.Item(PositionOf("b.txt")).selected);
  EXPECT_EQ(Label("lbl2(2)"), "b.txt");
}

TEST_F(SelectionTest, NothingSelectedLeavesTheDetailFieldsEmpty) {
  Open();
  AddFiles({"a.txt"});
  SelectRow(1);
  Details().selectionModel()->clear();

  window->RefreshPreview();

  EXPECT_EQ(Label("lbl2(1)"), "");
  EXPECT_EQ(Label("lbl2(2)"), "");
  EXPECT_FALSE(window->ToolAction("btnBarLeft", "EditMan")->isEnabled());
}

TEST_F(SelectionTest, CopyEntriesPutTheSelectedRowsNamesOnTheClipboard) {
  Open();
  const auto paths = AddFiles({"a.txt", "b.txt"});
  const int b = PositionOf("b.txt");
  SetNewName(b, "z.txt");
  window->RefreshPreview();
  SelectRow(b);

  Menu("mnuCopyName1")->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), "b.txt");
  Menu("mnuCopyName2")->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), "z.txt");
  Menu("mnuCopyLink")->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), QString::fromStdString(paths[1]));
}

TEST_F(SelectionTest, LeftBarRemovesTheSelectedRowAfterAskingAboutItsChange) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  const int b = PositionOf("b.txt");
  SetNewName(b, "z.txt");
  window->RefreshPreview();
  SelectRow(b);
  answers = {core::Answer::No};

  window->ToolAction("btnBarLeft", "DelList")->trigger();

  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].message.textKey, "MsgText15");
  ASSERT_EQ(ShownRows(), 1);
  EXPECT_EQ(Shown(1, core::kColOldName).toString(), "a.txt");
  // No dropped the change: the file keeps its name.
  EXPECT_TRUE(nomra::testing::Exists(files.Path() + "b.txt"));
  EXPECT_FALSE(nomra::testing::Exists(files.Path() + "z.txt"));
}

}  // namespace
}  // namespace nomra::ui::testing
