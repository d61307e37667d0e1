// Rows dragged within the list, and files dropped from outside.
#include <QHeaderView>
#include <QMimeData>
#include <QTableView>
#include <QUrl>

#include <memory>

#include "core/FileEntry.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class DropTest : public WindowTest {
 protected:
  QStringList ShownOldNames() const {
    QStringList names;
    for (int position = 1; position <= ShownRows(); ++position) names << Shown(position, core::kColOldName).toString();
    return names;
  }
};

TEST_F(DropTest, RowDroppedOnAnotherTakesItsPlace) {
  Open();
  AddFiles({"a.txt", "b.txt", "c.txt"});
  // Sorted by a head first, so the drop has an order to end.
  window->State().list.sortKey = core::kColNewName;
  window->RefreshPreview();
  ASSERT_EQ(ShownOldNames(), QStringList({"a.txt", "b.txt", "c.txt"}));
  ASSERT_TRUE(Details().horizontalHeader()->isSortIndicatorShown());
  FileListModel& model = window->ListModel();
  std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(0, 0)}));
  ASSERT_TRUE(dragged->hasFormat(FileListModel::kRowMimeType));

  model.dropMimeData(dragged.get(), Qt::MoveAction, -1, -1, model.index(2, 0));

  EXPECT_EQ(ShownOldNames(), QStringList({"b.txt", "c.txt", "a.txt"}));
  EXPECT_EQ(window->State().list.sortKey, core::kColListPosition);
  EXPECT_FALSE(Details().horizontalHeader()->isSortIndicatorShown());
  // The hand-made order is the one a refresh keeps.
  window->RefreshPreview();
  EXPECT_EQ(ShownOldNames(), QStringList({"b.txt", "c.txt", "a.txt"}));
}

TEST_F(DropTest, FilesAndFoldersDroppedFromOutsideAreAddedAndMissingOnesPassedOver) {
  Open();
  const std::string file = files.WriteFile("loose.txt", "x");
  files.WriteFile("folder/inner.txt", "y");
  auto dropped = std::make_unique<QMimeData>();
  dropped->setUrls({QUrl::fromLocalFile(QString::fromStdString(file)),
                    QUrl::fromLocalFile(QString::fromStdString(files.Path() + "folder")),
                    QUrl::fromLocalFile(QString::fromStdString(files.Path() + "gone.txt"))});
  FileListModel& model = window->ListModel();
  ASSERT_TRUE(model.canDropMimeData(dropped.get(), Qt::CopyAction, -1, -1, {}));

  EXPECT_TRUE(model.dropMimeData(dropped.get(), Qt::CopyAction, -1, -1, {}));

  EXPECT_EQ(ShownRows(), 2);
  EXPECT_NE(PositionOf("loose.txt"), 0);
  EXPECT_NE(PositionOf("inner.txt"), 0);
  EXPECT_TRUE(faults.empty());
  EXPECT_EQ(Label("Status"), CountsText(2, 2, 0));
  // The window goes on working: a later command acts on what was added.
  window->RunDropDownEntry("DelList", "DelList1");
  EXPECT_EQ(ShownRows(), 0);
}

}  // namespace
}  // namespace nomra::ui::testing
