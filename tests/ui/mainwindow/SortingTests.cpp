// Sorting by a click on a column head of the details view.
#include <QAction>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

#include "core/FileEntry.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

class SortingTest : public WindowTest {
 protected:
  void ClickHead(int section) {
    QHeaderView* header = Details().horizontalHeader();
    const QPoint centre(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                        header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, centre);
  }

  QStringList ShownNewNames() const {
    QStringList names;
    for (int position = 1; position <= ShownRows(); ++position) names << Shown(position, core::kColNewName).toString();
    return names;
  }
};

// Qt's section 3 is the head "New name"; its menu entries are 5 (ascending) and 6.
constexpr int kNewNameSection = 3;

TEST_F(SortingTest, ClickOnNewNameHeadSortsNumbersByValue) {
  Open();
  AddFiles({"file 10.txt", "file 2.txt", "file 1.txt"});
  ASSERT_EQ(Shown().headerData(kNewNameSection, Qt::Horizontal).toString(), LanguageText("frmMain", "lstColHead03"));

  ClickHead(kNewNameSection);

  EXPECT_EQ(ShownNewNames(), QStringList({"file 1.txt", "file 2.txt", "file 10.txt"}));
  QHeaderView* header = Details().horizontalHeader();
  EXPECT_TRUE(header->isSortIndicatorShown());
  EXPECT_EQ(header->sortIndicatorSection(), kNewNameSection);
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
  EXPECT_TRUE(Menu("mnuViewSortingSorted(5)")->isChecked());
  EXPECT_FALSE(Menu("mnuViewSortingUnsorted")->isChecked());
}

TEST_F(SortingTest, SecondClickOnTheSameHeadSortsDescending) {
  Open();
  AddFiles({"file 10.txt", "file 2.txt", "file 1.txt"});

  ClickHead(kNewNameSection);
  ClickHead(kNewNameSection);

  EXPECT_EQ(ShownNewNames(), QStringList({"file 10.txt", "file 2.txt", "file 1.txt"}));
  EXPECT_EQ(Details().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_TRUE(Menu("mnuViewSortingSorted(6)")->isChecked());
  EXPECT_FALSE(Menu("mnuViewSortingSorted(5)")->isChecked());
}

TEST_F(SortingTest, SortOrderSurvivesARefreshWithNewNames) {
  Open();
  AddFiles({"b.txt", "a.txt"});
  ClickHead(kNewNameSection);
  SetNewName(PositionOf("a.txt"), "c.txt");

  window->RefreshPreview();

  EXPECT_EQ(ShownNewNames(), QStringList({"b.txt", "c.txt"}));
}

TEST_F(SortingTest, UnsortedEntryHidesTheIndicatorAndChecksItself) {
  Open();
  AddFiles({"b.txt", "a.txt"});
  ClickHead(kNewNameSection);

  Menu("mnuViewSortingUnsorted")->trigger();

  EXPECT_FALSE(Details().horizontalHeader()->isSortIndicatorShown());
  EXPECT_TRUE(Menu("mnuViewSortingUnsorted")->isChecked());
  EXPECT_FALSE(Menu("mnuViewSortingSorted(5)")->isChecked());
}

}  // namespace
}  // namespace nomra::ui::testing
