// The desktop trash, as the freedesktop.org Trash specification lays it out.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "fileops/FileListOperations.h"
#include "fileops/OperationsFixture.h"
#include "fileops/PathList.h"
#include "platform/posix/FreedesktopTrash.h"
#include "support/ScopedEnvironment.h"
#include "support/SecondVolume.h"

namespace nomra::fileops::testing {
namespace {

using nomra::testing::Exists;
using nomra::testing::ScopedEnvironment;

constexpr char kDeletedAt[] = "DeletionDate=2024-03-05T14:07:09\n";

unsigned ModeOf(const std::string& path) {
  struct stat st {};
  stat(path.c_str(), &st);
  return st.st_mode & 07777;
}

class TrashTest : public OperationsTest {
 protected:
  std::string Trash() const { return temp.Path() + "data/Trash/"; }
  int Delete(const std::vector<std::string>& paths, bool confirm = false) {
    return DeleteFileList(JoinPathList(paths), true, confirm, services);
  }

  ScopedEnvironment dataHome{"XDG_DATA_HOME", temp.Path() + "data"};
};

TEST_F(TrashTest, HomeTrashHoldsTheFileAndARecordADesktopReads) {
  const std::string file = temp.WriteFile("files/a b ä.txt", "keep me");

  EXPECT_EQ(Delete({file}), 0);

  EXPECT_FALSE(Exists(file));
  EXPECT_EQ(ReadWholeFile(Trash() + "files/a b ä.txt"), "keep me");
  EXPECT_EQ(ReadWholeFile(Trash() + "info/a b ä.txt.trashinfo"),
            "[Trash Info]\nPath=" + temp.Path() + "files/a%20b%20%C3%A4.txt\n" + kDeletedAt);
}

TEST_F(TrashTest, TrashFoldersAreTheUsersAlone) {
  Delete({temp.WriteFile("files/a.txt")});

  EXPECT_EQ(ModeOf(Trash()), 0700u);
  EXPECT_EQ(ModeOf(Trash() + "files"), 0700u);
  EXPECT_EQ(ModeOf(Trash() + "info"), 0700u);
  EXPECT_EQ(ModeOf(Trash() + "info/a.txt.trashinfo"), 0600u);
}

TEST_F(TrashTest, SecondFileOfTheSameNameGetsANumberedName) {
  const std::string first = temp.WriteFile("one/photo.jpg", "1");
  const std::string second = temp.WriteFile("two/photo.jpg", "2");

  Delete({first, second});

  EXPECT_EQ(ReadWholeFile(Trash() + "files/photo.jpg"), "1");
  EXPECT_EQ(ReadWholeFile(Trash() + "files/photo.2.jpg"), "2");
  EXPECT_EQ(ReadWholeFile(Trash() + "info/photo.2.jpg.trashinfo"),
            "[Trash Info]\nPath=" + temp.Path() + "two/photo.jpg\n" + kDeletedAt);
}

TEST_F(TrashTest, ConfirmationNamesTheOneFileAndNoKeepsIt) {
  const std::string file = temp.WriteFile("files/a.txt");
  frontEnd.answers = {core::Answer::No};

  Delete({file}, true);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kTrashOne});
  EXPECT_EQ(frontEnd.asked[0].arguments, std::vector<std::string>{file});
  EXPECT_TRUE(Exists(file));
}

TEST_F(TrashTest, ConfirmationCountsSeveralFiles) {
  const std::string a = temp.WriteFile("files/a.txt");
  const std::string b = temp.WriteFile("files/b.txt");
  frontEnd.answers = {core::Answer::Yes};

  Delete({a, b}, true);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kTrashMany});
  EXPECT_EQ(frontEnd.asked[0].arguments, std::vector<std::string>{"2"});
  EXPECT_FALSE(Exists(a));
  EXPECT_FALSE(Exists(b));
}

TEST_F(TrashTest, EscapingKeepsTheSeparatorAndEscapesReservedBytes) {
  EXPECT_EQ(platform::EscapeTrashPath("/a%b#c?d/e~f-g_h.i"), "/a%25b%23c%3Fd/e~f-g_h.i");
}

// Paths under the volume folder answer as another volume would.
class TwoVolumeSystem final : public ForwardingFileSystem {
 public:
  explicit TwoVolumeSystem(std::string volume) : volume_(std::move(volume)) {}
  platform::FileStatus Inspect(const std::string& path) override {
    platform::FileStatus info = real.Inspect(path);
    info.device = path.starts_with(volume_) ? 111 : 222;
    return info;
  }

 private:
  std::string volume_;
};

class VolumeTrashTest : public TrashTest {
 protected:
  VolumeTrashTest() : volume(temp.MakeFolder("volume")), twoVolumes(volume.substr(0, volume.size() - 1)) {}
  int TrashOnVolume(const std::string& file) {
    platform::FreedesktopTrash withTrash{twoVolumes, nomra::testing::RealLocations()};
    OperationServices with{twoVolumes, withTrash, frontEnd, progress, services.clock};
    return DeleteFileList(JoinPathList({file}), true, false, with);
  }
  std::string uid = std::to_string(getuid());
  std::string volume;
  TwoVolumeSystem twoVolumes;
};

TEST_F(VolumeTrashTest, FileOnAnotherVolumeGoesToThatVolumesOwnTrash) {
  const std::string file = temp.WriteFile("volume/pictures/a.jpg", "a");

  EXPECT_EQ(TrashOnVolume(file), 0);

  const std::string trash = volume + ".Trash-" + uid + "/";
  EXPECT_EQ(ReadWholeFile(trash + "files/a.jpg"), "a");
  // Named from the volume's top, so it stays right wherever the volume is mounted.
  EXPECT_EQ(ReadWholeFile(trash + "info/a.jpg.trashinfo"),
            std::string("[Trash Info]\nPath=pictures/a.jpg\n") + kDeletedAt);
  EXPECT_FALSE(Exists(Trash()));
}

TEST_F(VolumeTrashTest, StickyAdministratorsTrashIsUsedWithTheUsersNumber) {
  const std::string shared = temp.MakeFolder("volume/.Trash");
  chmod(shared.c_str(), 01777);
  const std::string file = temp.WriteFile("volume/a.jpg", "a");

  TrashOnVolume(file);

  EXPECT_EQ(ReadWholeFile(shared + uid + "/files/a.jpg"), "a");
  EXPECT_FALSE(Exists(volume + ".Trash-" + uid));
}

TEST_F(VolumeTrashTest, AdministratorsTrashWithoutTheStickyBitIsPassedOver) {
  const std::string shared = temp.MakeFolder("volume/.Trash");
  chmod(shared.c_str(), 0777);
  const std::string file = temp.WriteFile("volume/a.jpg", "a");

  TrashOnVolume(file);

  EXPECT_EQ(ReadWholeFile(volume + ".Trash-" + uid + "/files/a.jpg"), "a");
  EXPECT_FALSE(Exists(shared + uid));
}

TEST_F(TrashTest, RealSecondVolumeUsesItsOwnTrash) {
  if (!nomra::testing::IsSecondVolumeBeside(temp.Path())) GTEST_SKIP() << nomra::testing::kNoSecondVolume;
  const std::string trash = std::string(nomra::testing::kSecondVolume) + ".Trash-" + std::to_string(getuid()) + "/";
  const bool trashWasThere = Exists(trash);
  const std::string name = "nomra-trash-test-" + std::to_string(getpid()) + ".txt";
  const std::string file = nomra::testing::kSecondVolume + name;
  { std::ofstream(file) << "shm"; }

  const int result = Delete({file});
  const std::string stored = ReadWholeFile(trash + "files/" + name);
  const std::string record = ReadWholeFile(trash + "info/" + name + ".trashinfo");
  std::error_code ignored;
  std::filesystem::remove(trash + "files/" + name, ignored);
  std::filesystem::remove(trash + "info/" + name + ".trashinfo", ignored);
  if (!trashWasThere) std::filesystem::remove_all(trash, ignored);

  EXPECT_EQ(result, 0);
  EXPECT_EQ(stored, "shm");
  EXPECT_EQ(record, "[Trash Info]\nPath=" + name + "\n" + kDeletedAt);
  EXPECT_FALSE(Exists(file));
}

// The trash can't take the record.
class RefusingTrashSystem final : public ForwardingFileSystem {
 public:
  int WriteNewFile(const std::string&, std::string_view) override { return EACCES; }
};

TEST_F(TrashTest, FileTheTrashRefusesIsDeletedAtOnceOnlyOnYes) {
  RefusingTrashSystem refusing;
  platform::FreedesktopTrash withTrash{refusing, nomra::testing::RealLocations()};
  OperationServices with{refusing, withTrash, frontEnd, progress, services.clock};
  const std::string kept = temp.WriteFile("files/kept.txt");
  const std::string gone = temp.WriteFile("files/gone.txt");
  frontEnd.answers = {core::Answer::No, core::Answer::Yes};

  EXPECT_EQ(DeleteFileList(JoinPathList({kept, gone}), true, false, with), EACCES);

  EXPECT_EQ(AskedKeys(), (std::vector<std::string>{lang::kTrashFailed, lang::kTrashFailed}));
  EXPECT_EQ(frontEnd.asked[0].style, core::MessageStyle::YesNoCancelDefaultNo);
  EXPECT_TRUE(Exists(kept));
  EXPECT_FALSE(Exists(gone));
}

TEST_F(TrashTest, CancelWhenTheTrashRefusesStopsTheRest) {
  RefusingTrashSystem refusing;
  platform::FreedesktopTrash withTrash{refusing, nomra::testing::RealLocations()};
  OperationServices with{refusing, withTrash, frontEnd, progress, services.clock};
  const std::string a = temp.WriteFile("files/a.txt");
  const std::string b = temp.WriteFile("files/b.txt");
  frontEnd.answers = {core::Answer::Cancel};

  DeleteFileList(JoinPathList({a, b}), true, false, with);

  EXPECT_EQ(AskedKeys(), std::vector<std::string>{lang::kTrashFailed});
  EXPECT_TRUE(Exists(a));
  EXPECT_TRUE(Exists(b));
}

}  // namespace
}  // namespace nomra::fileops::testing
