#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "base/DateText.h"
#include "base/Fault.h"
#include "core/AddFile.h"
#include "support/ListFixture.h"

namespace nomra::core {
namespace {

class AddFileTest : public testing::ListTest {};

// Reads dates as a file system that keeps none would.
class DatelessFileSystem final : public testing::ForwardingFileSystem {
 public:
  platform::FileStatus Status(const std::string& path) override {
    platform::FileStatus status = real.Status(path);
    status.created.reset();
    status.modified.reset();
    return status;
  }
};

class RecordingExifReader final : public ExifDateReader {
 public:
  std::optional<std::string> ReadExifDate(const std::string& path) override {
    asked.push_back(path);
    return "2001-02-03 04:05:06";
  }
  std::vector<std::string> asked;
};

void SetModified(const std::string& path, std::time_t when) {
  const timespec times[2] = {{when, 0}, {when, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

TEST_F(AddFileTest, AddedFileFillsItsColumns) {
  std::string path = temp.WriteFile("photo.txt", std::string(1234, 'x'));
  SetModified(path, 1700000000);
  AddFile(load, path);
  ASSERT_EQ(state.list.Count(), 1);
  const FileEntry& row = state.list.Item(1);
  EXPECT_EQ(row.key, temp.Path() + "photo.txt");
  EXPECT_EQ(row[kColPath], temp.Path());
  EXPECT_EQ(row[kColOldName], "photo.txt");
  EXPECT_EQ(row[kColNewName], "photo.txt");
  EXPECT_EQ(row[kColSize], "1,234");
  EXPECT_EQ(row.sizeTag, "000000001234");
  EXPECT_EQ(row[kColModified], base::FormatListDate(1700000000));
  EXPECT_EQ(row[kColExifDate], "");
  EXPECT_EQ(row[kColHistory0], "photo.txt");
  EXPECT_EQ(row[kColHistoryFirst], "");
}

TEST_F(AddFileTest, RelativePathBecomesAbsolute) {
  temp.WriteFile("rel.txt");
  temp.MakeFolder("sub");
  const std::string saved = std::filesystem::current_path();
  std::filesystem::current_path(temp.Path());
  std::string path = "./sub/../rel.txt";
  AddFile(load, path);
  std::filesystem::current_path(saved);
  EXPECT_EQ(path, temp.Path() + "rel.txt");
  ASSERT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1).key, temp.Path() + "rel.txt");
}

TEST_F(AddFileTest, FileIsNeverListedTwice) {
  std::string path = temp.WriteFile("a.txt");
  AddFile(load, path);
  std::string again = temp.Path() + "./a.txt";
  AddFile(load, again);
  EXPECT_EQ(state.list.Count(), 1);
}

class AddFileDates : public testing::ListTestOver<DatelessFileSystem> {};

TEST_F(AddFileDates, UnreadableDatesKeepThe1980Text) {
  std::string path = temp.WriteFile("old.txt");
  AddFile(load, path);
  EXPECT_EQ(state.list.Item(1)[kColCreated], "1980-01-01 00:00:00");
  EXPECT_EQ(state.list.Item(1)[kColModified], "1980-01-01 00:00:00");
}

TEST_F(AddFileTest, MissingPathIsSkippedSilentlyWhenExistenceIsChecked) {
  options.checkExistence = true;
  std::string path = temp.Path() + "nothing-here.txt";
  EXPECT_NO_THROW(AddFile(load, path));
  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_TRUE(frontEnd.faults.empty());
}

TEST_F(AddFileTest, MissingPathIsAFaultForTheCallerWhenExistenceIsNotChecked) {
  options.checkExistence = false;
  std::string path = temp.Path() + "nothing-here.txt";
  try {
    AddFile(load, path);
    FAIL() << "a missing path must reach the caller";
  } catch (const base::RuntimeFault& fault) {
    EXPECT_NE(std::string(fault.what()).find("nothing-here.txt"), std::string::npos);
  }
  EXPECT_EQ(state.list.Count(), 0);
}

TEST_F(AddFileTest, FolderIsWalkedWholeFilesBeforeSubfolders) {
  temp.WriteFile("top/sub/deep.txt");
  temp.WriteFile("top/a.txt");
  temp.WriteFile("top/.hidden");
  temp.WriteFile("top/z.txt");
  std::string folder = temp.Path() + "top";
  AddFile(load, folder);
  ASSERT_EQ(state.list.Count(), 4);
  // The files of the folder itself come first, in whatever order the file
  // system gives them; the subfolder's file comes last.
  std::vector<std::string> firstThree;
  for (int i = 1; i <= 3; ++i) firstThree.push_back(state.list.Item(i)[kColOldName]);
  std::sort(firstThree.begin(), firstThree.end());
  EXPECT_EQ(firstThree, (std::vector<std::string>{".hidden", "a.txt", "z.txt"}));
  EXPECT_EQ(state.list.Item(4).key, temp.Path() + "top/sub/deep.txt");
}

TEST_F(AddFileTest, LinkToAFolderIsNotWalked) {
  temp.WriteFile("real/inside.txt");
  temp.MakeFolder("walk");
  ASSERT_EQ(symlink((temp.Path() + "real").c_str(), (temp.Path() + "walk/loop").c_str()), 0);
  ASSERT_EQ(symlink((temp.Path() + "walk").c_str(), (temp.Path() + "walk/self").c_str()), 0);
  std::string folder = temp.Path() + "walk";
  AddFile(load, folder);
  EXPECT_EQ(state.list.Count(), 0);
}

// Refuses to list one folder, as a folder without read permission does for
// anyone but root.
class RefusingFileSystem final : public testing::ForwardingFileSystem {
 public:
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override {
    if (folder.find("/closed") != std::string::npos) return false;
    return real.ListFolder(folder, visit);
  }
};

class AddFileFolders : public testing::ListTestOver<RefusingFileSystem> {};

TEST_F(AddFileFolders, UnreadableFolderIsPassedOver) {
  temp.WriteFile("tree/open/a.txt");
  temp.WriteFile("tree/closed/b.txt");
  std::string folder = temp.Path() + "tree";
  EXPECT_NO_THROW(AddFile(load, folder));
  ASSERT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1)[kColOldName], "a.txt");
}

TEST_F(AddFileTest, NameThatIsNotUtf8KeepsItsBytes) {
  const std::string name = "bad\xE9name.txt";
  const std::string full = temp.Path() + name;
  const int fd = open(full.c_str(), O_CREAT | O_WRONLY, 0644);
  ASSERT_GE(fd, 0);
  close(fd);
  std::string folder = temp.Path();
  AddFile(load, folder);
  ASSERT_EQ(state.list.Count(), 1);
  EXPECT_EQ(state.list.Item(1)[kColOldName], name);
  EXPECT_EQ(state.list.Item(1).key, full);
}

TEST_F(AddFileTest, EventsArePumpedOnEveryHundredthCall) {
  temp.MakeFolder("many");
  for (int i = 0; i < 250; ++i) temp.WriteFile("many/f" + std::to_string(i));
  std::string folder = temp.Path() + "many";
  AddFile(load, folder);
  EXPECT_EQ(state.list.Count(), 250);
  // 251 calls: the folder itself and each file.
  EXPECT_EQ(state.addCounter, 251);
  EXPECT_EQ(progress.ticks, 2);
}

TEST_F(AddFileTest, StatusCountsEachAddedFile) {
  AddFiles({"a", "b"});
  ASSERT_GE(frontEnd.statusTexts.size(), 2u);
  EXPECT_EQ(frontEnd.statusTexts[0], "Adding 1");
  EXPECT_EQ(frontEnd.statusTexts[1], "Adding 2");
  EXPECT_EQ(state.statusCounter, 0) << "the refresh clears the running number";
}

TEST_F(AddFileTest, LateRowGetsTheHistoryLevelsInForce) {
  AddFiles({"first.txt"});
  SetNewName(1, "one.txt");
  preview.Refresh();
  SetNewName(1, "two.txt");
  preview.Refresh();
  ASSERT_EQ(state.undoLevels, 2);
  std::string path = temp.WriteFile("late.txt");
  AddFile(load, path);
  const FileEntry* late = state.list.Find(path);
  ASSERT_NE(late, nullptr);
  EXPECT_EQ((*late)[kColHistory0], "late.txt");
  EXPECT_EQ((*late)[kColHistoryFirst], "late.txt");
  EXPECT_EQ((*late)[kColHistoryFirst + 1], "late.txt");
  EXPECT_EQ((*late)[kColHistoryFirst + 2], "");
}

// A load whose EXIF dates come from a reader that notes each file asked.
class AddFileExif : public testing::ListTest {
 protected:
  RecordingExifReader exif;
  ListLoad withExif{state, fileSystem, frontEnd, progress, exif, options, texts};
};

TEST_F(AddFileExif, JpegFilesAskForTheirExifDateWhenEnabled) {
  options.loadExifDates = true;
  for (const char* name : {"a.JPG", "b.jpeg", "c.png", "d.jpg.txt"}) {
    std::string path = temp.WriteFile(name);
    AddFile(withExif, path);
  }
  ASSERT_EQ(exif.asked.size(), 2u);
  EXPECT_EQ(state.list.Item(1)[kColExifDate], "2001-02-03 04:05:06");
  EXPECT_EQ(state.list.Item(3)[kColExifDate], "");
}

TEST_F(AddFileExif, NoExifDateIsReadWhenDisabled) {
  options.loadExifDates = false;
  std::string path = temp.WriteFile("a.jpg");
  AddFile(withExif, path);
  EXPECT_TRUE(exif.asked.empty());
  EXPECT_EQ(state.list.Item(1)[kColExifDate], "");
}

}  // namespace
}  // namespace nomra::core
