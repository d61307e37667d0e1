// Taking changes to disk from the window, and closing it with changes pending.
#include <QAction>
#include <QColor>

#include "core/FileEntry.h"
#include "support/RealFiles.h"
#include "support/TempFolder.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

using nomra::testing::ReadWholeFile;

class CommitAndCloseTest : public WindowTest {};

TEST_F(CommitAndCloseTest, TakeChangesSwapsTwoNamesOnDisk) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  SetNewName(PositionOf("a.txt"), "b.txt");
  SetNewName(PositionOf("b.txt"), "a.txt");
  window->RefreshPreview();
  ASSERT_EQ(Label("Status"), CountsText(2, 1, 2));

  window->RunMainToolKey("TakeChanges");

  EXPECT_EQ(ReadWholeFile(files.Path() + "a.txt"), "b.txt");
  EXPECT_EQ(ReadWholeFile(files.Path() + "b.txt"), "a.txt");
  for (int position = 1; position <= ShownRows(); ++position) {
    EXPECT_FALSE(Shown(position, core::kColOldName, Qt::ForegroundRole).isValid()) << position;
    EXPECT_EQ(Shown(position, core::kColOldName), Shown(position, core::kColNewName));
  }
  EXPECT_EQ(Label("Status"), CountsText(2, 1, 0));
  EXPECT_FALSE(MainTool("TakeChanges")->isEnabled());
}

TEST_F(CommitAndCloseTest, CloseCancelledKeepsTheListAndTheFiles) {
  Open();
  AddFiles({"a.txt", "b.txt"});
  SetNewName(PositionOf("a.txt"), "z.txt");
  window->RefreshPreview();
  answers = {core::Answer::Cancel};

  EXPECT_FALSE(window->close());

  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].message.textKey, "MsgText03");
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(ShownRows(), 2);
  EXPECT_EQ(Shown(PositionOf("a.txt"), core::kColNewName).toString(), "z.txt");
  EXPECT_EQ(Shown(PositionOf("a.txt"), core::kColOldName, Qt::ForegroundRole).value<QColor>(), QColor(128, 0, 0));
  EXPECT_EQ(ReadWholeFile(files.Path() + "a.txt"), "a.txt");
  EXPECT_FALSE(nomra::testing::Exists(files.Path() + "z.txt"));
}

TEST_F(CommitAndCloseTest, CloseAnsweredNoGoesAheadWithoutRenaming) {
  Open();
  AddFiles({"a.txt"});
  SetNewName(1, "z.txt");
  window->RefreshPreview();
  answers = {core::Answer::No};

  EXPECT_TRUE(window->close());

  EXPECT_EQ(asked.size(), 1u);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(ReadWholeFile(files.Path() + "a.txt"), "a.txt");
  EXPECT_FALSE(nomra::testing::Exists(files.Path() + "z.txt"));
}

TEST_F(CommitAndCloseTest, CloseWritesTheLayoutToTheSettings) {
  Open();
  window->MenuAction("mnuViewIcons")->trigger();

  ASSERT_TRUE(window->close());

  const std::string file = SettingsPath();
  for (int head = 1; head <= 8; ++head) {
    EXPECT_NE(Ini(file).ReadString("Main", "Col" + std::to_string(head)), "") << head;
  }
  EXPECT_EQ(Ini(file).ReadString("Settings", "PreviewStyle"), "Icons");
  EXPECT_EQ(Ini(file).ReadInt("Main", "ws"), 0);
  EXPECT_GT(Ini(file).ReadInt("Main", "w"), 0);
  EXPECT_NE(Ini(file).ReadString("Settings", "PreviewSortKey"), "");
  EXPECT_NE(Ini(file).ReadString("Settings", "splash"), "");
}

}  // namespace
}  // namespace nomra::ui::testing
