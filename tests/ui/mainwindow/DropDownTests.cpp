// The drop-down buttons of the main bar: the entry chosen becomes the
// button's variant, shows in its tool tip, and runs the button at once.
#include <QAction>
#include <QMenu>

#include "core/FileEntry.h"
#include "support/TempFolder.h"
#include "ui/common/QtLocalisation.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;

class DropDownTest : public WindowTest {
 protected:
  QAction* Entry(const QString& buttonKey, const QString& entryKey) const {
    for (QAction* entry : MainTool(buttonKey)->menu()->actions()) {
      if (entry->property(kKeyProperty).toString() == entryKey) return entry;
    }
    return nullptr;
  }
};

TEST_F(DropDownTest, RemovingRowsWithoutChangesKeepsTheChangedRow) {
  Open();
  AddFiles({"a.txt", "b.txt", "c.txt"});
  SetNewName(PositionOf("b.txt"), "z.txt");
  window->RefreshPreview();

  window->RunDropDownEntry("DelList", "DelList5");

  ASSERT_EQ(ShownRows(), 1);
  EXPECT_EQ(Shown(1, core::kColOldName).toString(), "b.txt");
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(Label("Status"), CountsText(1, 1, 1));
}

TEST_F(DropDownTest, ChosenEntryShowsInTheToolTipAndStaysTheVariant) {
  Open();
  AddFiles({"a.txt"});
  QAction* entry = Entry("DelList", "DelList5");
  ASSERT_NE(entry, nullptr);

  // The entry is a menu caption; a tool tip shows no shortcut marks.
  const QString variantText = QString(entry->text()).remove('&');
  ASSERT_FALSE(variantText.isEmpty());

  window->RunDropDownEntry("DelList", "DelList5");

  EXPECT_TRUE(MainTool("DelList")->toolTip().endsWith(" [" + variantText + "]"))
      << MainTool("DelList")->toolTip().toStdString();
  EXPECT_FALSE(MainTool("DelList")->toolTip().contains('&'));
  EXPECT_EQ(window->ToolVariant("DelList"), "DelList5");
  // A later refresh keeps both.
  window->RefreshPreview();
  EXPECT_EQ(window->ToolVariant("DelList"), "DelList5");
  EXPECT_TRUE(MainTool("DelList")->toolTip().endsWith(" [" + variantText + "]"));
}

TEST_F(DropDownTest, PressingTheButtonAgainRunsTheVariantKept) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  window->RunDropDownEntry("DelList", "DelList5");  // no changes: both go
  AddFiles({"c.txt", "d.txt"});
  SetNewName(PositionOf("d.txt"), "z.txt");
  window->RefreshPreview();

  MainTool("DelList")->trigger();

  ASSERT_EQ(ShownRows(), 1);
  EXPECT_EQ(Shown(1, core::kColOldName).toString(), "d.txt");
}

TEST_F(DropDownTest, RemovingUnselectedRowsWithNothingSelectedEmptiesTheList) {
  Open();
  AddFiles({"a.txt", "b.txt", "c.txt"});

  window->RunDropDownEntry("DelList", "DelList3");

  EXPECT_EQ(ShownRows(), 0);
  EXPECT_EQ(Label("Status"), CountsText(0, 0, 0));
  EXPECT_FALSE(MainTool("DelList")->isEnabled());
}

TEST_F(DropDownTest, TakeChangesEntryChangesTheVariantAndRenamesAtOnce) {
  // The stored style picks the second variant, so the click must change it.
  WriteSettings("[Settings]\nRenameStyle=2\n");
  Open();
  ASSERT_EQ(window->ToolVariant("TakeChanges"), "TakeChanges2");
  const auto paths = AddFiles({"a.txt"});
  SetNewName(1, "renamed.txt");
  window->RefreshPreview();
  QAction* entry = Entry("TakeChanges", "TakeChanges1");
  ASSERT_NE(entry, nullptr);

  entry->trigger();

  EXPECT_EQ(window->ToolVariant("TakeChanges"), "TakeChanges1");
  EXPECT_FALSE(Exists(paths[0]));
  EXPECT_EQ(ReadWholeFile(files.Path() + "renamed.txt"), "a.txt");
  EXPECT_EQ(Shown(1, core::kColOldName).toString(), "renamed.txt");
  EXPECT_TRUE(MainTool("TakeChanges")->toolTip().endsWith(" [" + QString(entry->text()).remove('&') + "]"));
}

}  // namespace
}  // namespace nomra::ui::testing
