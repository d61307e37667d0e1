// The three layouts of the list and the pictures of the two picture views.
#include <QAction>
#include <QIcon>
#include <QImage>
#include <QListView>
#include <QStackedWidget>
#include <QTableView>

#include "core/FileEntry.h"
#include "shell/WindowPlacement.h"
#include "support/RealFiles.h"
#include "ui/mainwindow/ThumbnailCache.h"
#include "ui/support/WindowFixture.h"

using nomra::testing::Ini;

namespace nomra::ui::testing {
namespace {

class ViewTest : public WindowTest {
 protected:
  QListView& Icons() const { return *window->findChild<QListView*>("lstFilesIcons"); }

  // The picture a row shows in the views' first column, at the cache's size.
  QImage ShownPicture(int position) const {
    const QIcon icon = Shown(position, core::kColDisplay, Qt::DecorationRole).value<QIcon>();
    const int size = window->Thumbnails().Size();
    return icon.pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
  }
  QImage NoPic() const {
    return ThumbnailCache::DrawNoPic(window->Thumbnails().Size()).toImage().convertToFormat(QImage::Format_ARGB32);
  }
};

TEST_F(ViewTest, IconsEntryShowsThePictureListWithTheNewNames) {
  Open();
  AddFiles({"a.txt"});
  SetNewName(1, "z.txt");
  window->RefreshPreview();
  ASSERT_EQ(Shown(1, core::kColDisplay).toString(), "");

  Menu("mnuViewIcons")->trigger();

  EXPECT_EQ(window->CurrentView(), ListView::Icons);
  EXPECT_TRUE(Icons().isVisible());
  EXPECT_FALSE(Details().isVisible());
  EXPECT_EQ(window->findChild<QStackedWidget*>()->currentWidget(), &Icons());
  EXPECT_EQ(Icons().model()->data(Icons().model()->index(0, 0)).toString(), "z.txt");
  EXPECT_TRUE(Menu("mnuViewIcons")->isChecked());
}

TEST_F(ViewTest, DetailsEntryHidesThePictureColumn) {
  Open();
  AddFiles({"a.txt"});
  Menu("mnuViewDetailsIcons")->trigger();
  ASSERT_FALSE(Details().isColumnHidden(core::kColDisplay));

  Menu("mnuViewDetails")->trigger();

  EXPECT_TRUE(Details().isVisible());
  EXPECT_TRUE(Details().isColumnHidden(core::kColDisplay));
  EXPECT_EQ(Shown(1, core::kColDisplay).toString(), "");
  EXPECT_FALSE(Shown(1, core::kColDisplay, Qt::DecorationRole).isValid());
  EXPECT_TRUE(Menu("mnuViewDetails")->isChecked());
}

TEST_F(ViewTest, PictureOfAnImageFileShowsOnceLoaded) {
  Open();
  QImage red(40, 30, QImage::Format_RGB32);
  red.fill(Qt::red);
  const std::string path = files.Path() + "red.png";
  ASSERT_TRUE(red.save(QString::fromStdString(path)));
  window->AddPaths({QString::fromStdString(path)});
  Menu("mnuViewDetailsIcons")->trigger();
  ASSERT_GT(window->Thumbnails().Size(), 0);

  Shown(1, core::kColDisplay, Qt::DecorationRole);  // as the view asks when it paints
  ASSERT_TRUE(WaitFor([&] { return window->Thumbnails().HasPicture(QString::fromStdString(path)); }));

  const QImage shown = ShownPicture(1);
  ASSERT_FALSE(shown.isNull());
  EXPECT_NE(shown, NoPic());
  EXPECT_EQ(QColor(shown.pixel(shown.width() / 2, shown.height() / 2)), QColor(Qt::red));
}

TEST_F(ViewTest, FileThatIsNoPictureShowsNoPic) {
  Open();
  AddFiles({"notes.txt"});
  Menu("mnuViewDetailsIcons")->trigger();

  Shown(1, core::kColDisplay, Qt::DecorationRole);
  const QString path = QString::fromStdString(files.Path() + "notes.txt");
  ASSERT_TRUE(WaitFor([&] { return window->Thumbnails().Failed(path); }));

  const QImage shown = ShownPicture(1);
  ASSERT_FALSE(shown.isNull());
  EXPECT_EQ(shown, NoPic());
}

TEST_F(ViewTest, PictureSizeEntrySetsTheSizeAndStoresIt) {
  Open();
  Menu("mnuViewDetailsIcons")->trigger();
  // The size entries are made from the language file's sizes.
  auto* third = window->findChild<QAction*>("mnuViewIconSize(3)");
  ASSERT_NE(third, nullptr);
  const int size = QString(third->text()).remove('&').toInt();
  ASSERT_GT(size, 0);
  ASSERT_NE(window->Thumbnails().Size(), size);

  third->trigger();

  EXPECT_EQ(window->Thumbnails().Size(), size);
  EXPECT_EQ(window->IconSize(), size);
  EXPECT_TRUE(third->isChecked());
  EXPECT_EQ(Ini(SettingsPath()).ReadInt("Settings", "PreviewImageSize"), 3);
}

TEST_F(ViewTest, ColumnEntryHidesAndShowsTheHeadAfterIt) {
  Open();
  QAction* entry = Menu("mnuViewPre(2)");
  ASSERT_TRUE(entry->isChecked());

  entry->trigger();
  EXPECT_TRUE(Details().isColumnHidden(2));

  entry->trigger();
  EXPECT_FALSE(Details().isColumnHidden(2));
  EXPECT_EQ(Details().columnWidth(2), shell::TwipsToPixels(1800, window->logicalDpiX()));
}

TEST_F(ViewTest, GridLinesEntrySwitchesTheGrid) {
  Open();
  ASSERT_FALSE(Details().showGrid());

  Menu("mnuGridLines")->trigger();
  EXPECT_TRUE(Details().showGrid());
  Menu("mnuGridLines")->trigger();
  EXPECT_FALSE(Details().showGrid());
}

}  // namespace
}  // namespace nomra::ui::testing
