// Engine text and QString: names that are not UTF-8 keep every byte, in the
// conversion itself and in the real window over real files.
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QUrl>

#include <memory>
#include <string>
#include <vector>

#include "core/FileEntry.h"
#include "support/TempFolder.h"
#include "ui/common/TextConversion.h"
#include "ui/mainwindow/FileListModel.h"
#include "ui/support/WindowFixture.h"

namespace nomra::ui::testing {
namespace {

using nomra::testing::Exists;
using nomra::testing::ReadWholeFile;

// The UTF-16 units of a text, so that a failure shows which one differs.
std::vector<char16_t> Units(const QString& text) {
  std::vector<char16_t> units;
  for (const QChar unit : text) units.push_back(unit.unicode());
  return units;
}

TEST(TextConversionTest, AsciiAndMultiByteUtf8DecodeAsUsualAndComeBackWhole) {
  const std::vector<std::string> texts = {"", "holiday 2024.jpg",
                                          "Gr\xC3\xB6\xC3\x9F"
                                          "e \xE2\x80\x93 10 \xE2\x82\xAC.txt",
                                          "\xE6\x97\xA5\xE6\x9C\xAC.png", "smile \xF0\x9F\x98\x80.txt"};
  for (const std::string& text : texts) {
    const QString shown = ToQString(text);
    EXPECT_EQ(shown, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) << text;
    EXPECT_EQ(ToEngineText(shown), text) << text;
  }
  // A character beyond the basic plane is a surrogate pair, as Qt keeps it.
  EXPECT_EQ(Units(ToQString("\xF0\x9F\x98\x80")), (std::vector<char16_t>{0xD83D, 0xDE00}));
}

struct StrayBytes {
  const char* what;
  std::string bytes;
  std::vector<char16_t> units;
};

TEST(TextConversionTest, EachByteOfNoValidSequenceIsOneLoneSurrogateAndComesBackAsThatByte) {
  const std::vector<StrayBytes> cases = {
      {"a lone 0xFF",
       "a\xFF"
       "b.txt",
       {'a', 0xDCFF, 'b', '.', 't', 'x', 't'}},
      {"a sequence cut short",
       "x\xE2\x82"
       ".txt",
       {'x', 0xDCE2, 0xDC82, '.', 't', 'x', 't'}},
      {"a sequence cut short by the end", "y\xF0\x9F\x98", {'y', 0xDCF0, 0xDC9F, 0xDC98}},
      {"an overlong slash",
       "a\xC0\xAF"
       "b",
       {'a', 0xDCC0, 0xDCAF, 'b'}},
      {"an overlong slash in three bytes", "\xE0\x80\xAF", {0xDCE0, 0xDC80, 0xDCAF}},
      {"a high surrogate in UTF-8", "\xED\xA0\x80", {0xDCED, 0xDCA0, 0xDC80}},
      // The UTF-8 form of U+DCFF itself must not pass for the stray byte 0xFF.
      {"a low surrogate in UTF-8", "\xED\xB3\xBF", {0xDCED, 0xDCB3, 0xDCBF}},
      {"Latin-1 next to UTF-8", "caf\xE9 \xC3\xA9", {'c', 'a', 'f', 0xDCE9, ' ', 0x00E9}},
  };
  for (const StrayBytes& name : cases) {
    const QString shown = ToQString(name.bytes);
    EXPECT_EQ(Units(shown), name.units) << name.what;
    EXPECT_EQ(ToEngineText(shown), name.bytes) << name.what;
  }
}

TEST(TextConversionTest, LoneSurrogatesThatStandForNoByteBecomeTheReplacementCharacter) {
  const std::string replacement = "\xEF\xBF\xBD";
  EXPECT_EQ(ToEngineText(QString(QChar(0xD800)) + "a"), replacement + "a");
  EXPECT_EQ(ToEngineText(QString(QChar(0xDC41))), replacement);
  EXPECT_EQ(ToEngineText(QString(QChar(0xDD00))), replacement);
  // A pair whose low half lies in the range of stray bytes is still one character.
  const QChar pair[] = {QChar(0xD800), QChar(0xDC80)};
  EXPECT_EQ(ToEngineText(QString(pair, 2)), "\xF0\x90\x82\x80");
}

TEST(TextConversionTest, Utf16PositionCountsAStrayByteAsOneCharacter) {
  const QString text = ToQString(
      "a\xFF\xF0\x9F\x98\x80"
      "b");
  ASSERT_EQ(text.size(), 5);
  EXPECT_EQ(Utf16Position(text, 0), 0);
  EXPECT_EQ(Utf16Position(text, 1), 1);
  EXPECT_EQ(Utf16Position(text, 2), 2);
  EXPECT_EQ(Utf16Position(text, 3), 4);
  EXPECT_EQ(Utf16Position(text, 9), 5);
}

TEST(TextConversionTest, LocalFilePathKeepsTheBytesOfTheUrl) {
  const QUrl stray = QUrl::fromEncoded("file:///tmp/caf%E9%20x.txt");
  EXPECT_EQ(ToEngineText(LocalFilePath(stray)), "/tmp/caf\xE9 x.txt");
  const QUrl utf8 = QUrl::fromEncoded("file:///tmp/caf%C3%A9%20x.txt");
  EXPECT_EQ(LocalFilePath(utf8), utf8.toLocalFile());
  EXPECT_EQ(ToEngineText(LocalFilePath(utf8)), "/tmp/caf\xC3\xA9 x.txt");
}

class NameBytesTest : public WindowTest {};

TEST_F(NameBytesTest, FileWhoseNameIsNotUtf8IsListedAndItsNameConvertsBackToItsBytes) {
  Open();
  const std::string name = "caf\xE9 \xFF.txt";
  AddFiles({name});

  ASSERT_EQ(ShownRows(), 1);
  const QString shown = Shown(1, core::kColOldName).toString();
  EXPECT_TRUE(shown.contains(QChar(0xDCE9))) << shown.toStdString();
  EXPECT_TRUE(shown.contains(QChar(0xDCFF))) << shown.toStdString();
  EXPECT_EQ(ToEngineText(shown), name);
  EXPECT_EQ(ToEngineText(Shown(1, core::kColNewName).toString()), name);
  EXPECT_EQ(window->State().list.Item(1)[core::kColOldName], name);
}

TEST_F(NameBytesTest, NameThatIsNotUtf8IsEditedByHandAndRenamedOnDiskWithItsBytes) {
  Open();
  const std::string name = "caf\xE9.txt";
  AddFiles({name});
  ASSERT_EQ(ShownRows(), 1);
  Details().selectionModel()->select(Shown().index(0, 0),
                                     QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  expectedModals << "frmEditMan";
  modals.SetHandler([](QWidget& modal) {
    auto* field = modal.findChild<QLineEdit*>("txtFileName");
    field->home(false);
    QTest::keyClicks(field, "new ");
    modal.findChild<QPushButton*>("cmdOK")->click();
  });

  Menu("mnuEditMan")->trigger();
  ASSERT_EQ(window->State().list.Item(1)[core::kColNewName], "new " + name);
  window->RunMainToolKey("TakeChanges");

  EXPECT_EQ(ReadWholeFile(files.Path() + "new " + name), name);
  EXPECT_FALSE(Exists(files.Path() + name));
}

TEST_F(NameBytesTest, FileWhoseNameIsNotUtf8DroppedFromOutsideIsAdded) {
  Open();
  const std::string path = files.WriteFile("caf\xE9.txt", "x");
  auto dropped = std::make_unique<QMimeData>();
  const QByteArray bytes(path.data(), static_cast<qsizetype>(path.size()));
  dropped->setUrls({QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"))});

  EXPECT_TRUE(window->ListModel().dropMimeData(dropped.get(), Qt::CopyAction, -1, -1, {}));

  ASSERT_EQ(ShownRows(), 1);
  EXPECT_EQ(ToEngineText(Shown(1, core::kColOldName).toString()), "caf\xE9.txt");
}

}  // namespace
}  // namespace nomra::ui::testing
