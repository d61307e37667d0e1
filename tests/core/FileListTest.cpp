#include <gtest/gtest.h>

#include "base/Fault.h"
#include "core/FileList.h"
#include "support/ForwardingFileSystem.h"
#include "support/ListFixture.h"

namespace nomra::core {
namespace {

using testing::CaseInsensitiveFileSystem;

std::vector<std::string> Keys(FileList& list) {
  std::vector<std::string> keys;
  list.ForEach([&](const FileEntry& row) { keys.push_back(row.key); });
  return keys;
}

TEST(FileList, AddsRowsInOrderWithPositions) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  list.Add("/x/a");
  list.Add("/x/b");
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Item(2).key, "/x/b");
  EXPECT_EQ(list.Item(2).position, 2);
}

TEST(FileList, RefusesAKeyThatExists) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  ASSERT_NE(list.Add("/x/a"), nullptr);
  EXPECT_EQ(list.Add("/x/a"), nullptr);
  EXPECT_EQ(list.Count(), 1);
}

TEST(FileList, KeysDifferingInCaseAreTwoRowsOnACaseSensitiveVolume) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  list.Add("/tmp/A.txt");
  EXPECT_NE(list.Add("/tmp/a.txt"), nullptr);
  EXPECT_EQ(list.Find("/tmp/A.TXT"), nullptr);
}

TEST(FileList, KeysDifferingInCaseAreOneRowOnACaseInsensitiveVolume) {
  CaseInsensitiveFileSystem fs;
  FileList list(fs);
  list.Add("/card/DCIM/Ä.JPG");
  EXPECT_EQ(list.Add("/card/dcim/ä.jpg"), nullptr);
  ASSERT_NE(list.Find("/CARD/DCIM/ä.jpg"), nullptr);
  EXPECT_EQ(list.Find("/CARD/DCIM/ä.jpg")->key, "/card/DCIM/Ä.JPG");
}

TEST(FileList, ItemOutsideTheListIsAFault) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  list.Add("/x/a");
  EXPECT_THROW(list.Item(0), base::RuntimeFault);
  EXPECT_THROW(list.Item(2), base::RuntimeFault);
}

TEST(FileList, RemoveRenumbersAndFreesTheKey) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  list.Add("/x/a");
  list.Add("/x/b");
  list.Add("/x/c");
  list.Remove(2);
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/x/a", "/x/c"}));
  EXPECT_EQ(list.Item(2).position, 2);
  EXPECT_EQ(list.Find("/x/b"), nullptr);
  EXPECT_NE(list.Add("/x/b"), nullptr);
}

TEST(FileList, RemoveWhereKeepsTheOrderOfTheRest) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  for (const char* key : {"/x/1", "/x/2", "/x/3", "/x/4"}) list.Add(key);
  list.RemoveWhere([](const FileEntry& row) { return row.key == "/x/1" || row.key == "/x/3"; });
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/x/2", "/x/4"}));
  EXPECT_EQ(list.Find("/x/3"), nullptr);
}

TEST(FileList, MoveRowDownTakesTheTargetsPlace) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  for (const char* key : {"/A", "/B", "/C", "/D"}) list.Add(key);
  list.Item(1)[kColNewName] = "carried";
  list.Item(1).sizeTag = "000000000001";
  list.Item(1).colour = RowColour::DarkRed;
  list.MoveRow(1, 3);
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/B", "/C", "/A", "/D"}));
  EXPECT_EQ(list.Item(3)[kColNewName], "carried");
  EXPECT_EQ(list.Item(3).sizeTag, "000000000001");
  EXPECT_EQ(list.Item(3).colour, RowColour::DarkRed);
  EXPECT_EQ(list.Item(3).position, 3);
}

TEST(FileList, MoveRowUpTakesTheTargetsPlace) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  for (const char* key : {"/A", "/B", "/C", "/D"}) list.Add(key);
  list.MoveRow(4, 2);
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/A", "/D", "/B", "/C"}));
}

TEST(FileList, MoveRowOntoItselfDoesNothing) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  for (const char* key : {"/A", "/B"}) list.Add(key);
  list.MoveRow(2, 2);
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/A", "/B"}));
}

TEST(FileList, ChangeKeyRefusesAKeyHeldByAnotherRow) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  FileEntry* a = list.Add("/x/a");
  list.Add("/x/b");
  EXPECT_FALSE(list.ChangeKey(*a, "/x/b"));
  EXPECT_EQ(a->key, "/x/a");
  EXPECT_TRUE(list.ChangeKey(*a, "/x/c"));
  EXPECT_EQ(list.Find("/x/c"), a);
  EXPECT_EQ(list.Find("/x/a"), nullptr);
}

TEST(FileList, ChangeKeyToAnotherCaseOfItselfOnACaseInsensitiveVolume) {
  CaseInsensitiveFileSystem fs;
  FileList list(fs);
  FileEntry* a = list.Add("/x/a.txt");
  EXPECT_TRUE(list.ChangeKey(*a, "/x/A.txt"));
  EXPECT_EQ(list.Find("/x/a.TXT"), a);
}

TEST(FileList, ReorderRefusesAnOrderThatIsNoPermutation) {
  platform::PosixFileSystem fs;
  FileList list(fs);
  for (const char* key : {"/A", "/B"}) list.Add(key);
  EXPECT_THROW(list.Reorder({0, 0}), base::RuntimeFault);
  EXPECT_THROW(list.Reorder({0}), base::RuntimeFault);
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/A", "/B"}));
  list.Reorder({1, 0});
  EXPECT_EQ(Keys(list), (std::vector<std::string>{"/B", "/A"}));
  EXPECT_EQ(list.Item(1).position, 1);
}

}  // namespace
}  // namespace nomra::core
