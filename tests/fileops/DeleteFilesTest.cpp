// Deleting files at once, and the list's delete commands.
#include <cerrno>

#include "fileops/DeleteListFiles.h"
#include "fileops/FileListOperations.h"
#include "fileops/ListOperationsFixture.h"
#include "fileops/PathList.h"
#include "support/ScopedEnvironment.h"

namespace nomra::fileops::testing {
namespace {

using nomra::testing::Exists;

class DeleteFilesTest : public OperationsTest {};

TEST_F(DeleteFilesTest, AtOnceWithoutQuestionRemovesEveryFile) {
  const std::string a = temp.WriteFile("a.txt");
  const std::string b = temp.WriteFile("b.txt");

  EXPECT_EQ(DeleteFileList(JoinPathList({a, b}), false, false, services), 0);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_FALSE(Exists(a));
  EXPECT_FALSE(Exists(b));
  EXPECT_FALSE(Exists(temp.Path() + "data"));
}

TEST_F(DeleteFilesTest, AtOnceAsksWithAWarningAndNoKeepsTheFiles) {
  const std::string a = temp.WriteFile("a.txt");
  frontEnd.answers = {core::Answer::No};

  DeleteFileList(JoinPathList({a}), false, true, services);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kDeleteOne});
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoWarningDefaultNo);
  EXPECT_TRUE(Exists(a));
}

TEST_F(DeleteFilesTest, EmptyListAsksNothingAndDoesNothing) {
  EXPECT_EQ(DeleteFileList(JoinPathList({}), true, true, services), 0);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_TRUE(progress.begun.empty());
}

TEST_F(DeleteFilesTest, StopBetweenFilesKeepsTheRest) {
  const std::string a = temp.WriteFile("a.txt");
  const std::string b = temp.WriteFile("b.txt");
  progress.stopAtFile = 2;

  DeleteFileList(JoinPathList({a, b}), false, false, services);

  EXPECT_FALSE(Exists(a));
  EXPECT_TRUE(Exists(b));
}

TEST_F(DeleteFilesTest, FailureIsToldAndTheOthersGoOnWhenAsked) {
  const std::string a = temp.WriteFile("a.txt");
  const std::string folder = temp.MakeFolder("folder");
  const std::string c = temp.WriteFile("c.txt");
  frontEnd.answers = {core::Answer::Ok, core::Answer::Yes};

  EXPECT_NE(DeleteFileList(JoinPathList({a, folder, c}), false, false, services), 0);

  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{lang::kDeleteFailed, lang::kGoOn}));
  EXPECT_TRUE(Exists(folder));
  EXPECT_FALSE(Exists(c));
}

TEST_F(DeleteFilesTest, FailureOfTheCallComesBackAsZero) {
  struct Throwing final : ForwardingFileSystem {
    int RemoveFile(const std::string&) override { throw std::runtime_error("gone wrong"); }
  } throwing;
  platform::FreedesktopTrash withTrash{throwing, nomra::testing::RealLocations()};
  OperationServices with{throwing, withTrash, frontEnd, progress, services.clock};

  EXPECT_EQ(DeleteFileList(JoinPathList({temp.WriteFile("a.txt")}), false, false, with), 0);
}

class DeleteListFilesTest : public ListOperationsTest {
 protected:
  DeleteListFilesTest() { options.expertMode = true; }
  nomra::testing::ScopedEnvironment dataHome{"XDG_DATA_HOME", temp.Path() + "data"};
};

TEST_F(DeleteListFilesTest, WithoutExpertModeNothingHappens) {
  AddFiles({"a.txt"});
  options.expertMode = false;
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_FALSE(DeleteListFiles(List(), options.expertMode, false, services));

  EXPECT_TRUE(Exists(temp.Path() + "a.txt"));
  EXPECT_EQ(state.list.Count(), 1);
}

TEST_F(DeleteListFilesTest, DeletedFilesLeaveTheListAfterTheQuestion) {
  AddFiles({"a.txt", "b.txt"});
  frontEnd.answers = {core::Answer::Yes};

  EXPECT_TRUE(DeleteListFiles(List(), options.expertMode, true, services));

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kTrashMany});
  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_TRUE(Exists(temp.Path() + "data/Trash/files/a.txt"));
  ASSERT_EQ(progress.begun.size(), 1u);
  EXPECT_STREQ(progress.begun[0].task, lang::kTrashing);
  EXPECT_EQ(progress.begun[0].count, 2);
}

TEST_F(DeleteListFilesTest, NoToTheQuestionKeepsFilesAndRows) {
  AddFiles({"a.txt", "b.txt"});
  frontEnd.answers = {core::Answer::No};

  DeleteListFiles(List(), options.expertMode, false, services);

  EXPECT_EQ(state.list.Count(), 2);
  EXPECT_TRUE(Exists(temp.Path() + "a.txt"));
}

TEST_F(DeleteListFilesTest, OnlyTheRowsOfTheApplyScopeAreDeleted) {
  AddFiles({"a.txt", "b.txt", "c.txt"});
  state.list.Item(2).selected = true;
  state.applyScope = 1;
  frontEnd.answers = {core::Answer::Yes};

  DeleteListFiles(List(), options.expertMode, false, services);

  EXPECT_EQ(Column(core::kColOldName), (std::vector<std::string>{"a.txt", "c.txt"}));
  EXPECT_FALSE(Exists(temp.Path() + "b.txt"));
}

TEST_F(DeleteListFilesTest, EmptySelectionDeletesNothingAndNoRowGoes) {
  AddFiles({"a.txt", "b.txt"});
  state.applyScope = 1;

  DeleteListFiles(List(), options.expertMode, false, services);

  EXPECT_TRUE(frontEnd.asked.empty());
  EXPECT_EQ(state.list.Count(), 2);
}

TEST_F(DeleteListFilesTest, RowOfAFileThatCouldNotBeDeletedStays) {
  AddFiles({"a.txt", "b.txt", "c.txt"});
  struct RefusingB final : ForwardingFileSystem {
    int RemoveFile(const std::string& path) override {
      return path.ends_with("/b.txt") ? EACCES : real.RemoveFile(path);
    }
  } refusing;
  platform::FreedesktopTrash withTrash{refusing, nomra::testing::RealLocations()};
  OperationServices with{refusing, withTrash, frontEnd, progress};
  frontEnd.answers = {core::Answer::Yes, core::Answer::Ok, core::Answer::Yes};

  DeleteListFiles(List(), options.expertMode, false, with);

  EXPECT_EQ(Column(core::kColOldName), std::vector<std::string>{"b.txt"});
}

}  // namespace
}  // namespace nomra::fileops::testing
