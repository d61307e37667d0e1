// What the MP3 reader gives for paths that are no readable MP3: never a
// message, at most what it could read.
#include <gtest/gtest.h>

#include "media/Mp3Bytes.h"
#include "media/Mp3Infos.h"
#include "support/FaultyFileSystem.h"

namespace nomra::media {
namespace {

using testing::AudioBytes;
using testing::Id3v1;
using testing::kFrame128;
using testing::TempFolder;

TEST(Mp3File, AMissingFileIsTheOneFalseAnswer) {
  TempFolder folder;
  platform::PosixFileSystem files;
  Mp3Infos infos;
  EXPECT_FALSE(infos.GetFileInfos(files, folder.Path() + "missing.mp3"));
  EXPECT_FALSE(infos.HasId3v1());
}

TEST(Mp3File, AFolderIsThereButGivesNothing) {
  TempFolder folder;
  platform::PosixFileSystem files;
  Mp3Infos infos;
  EXPECT_TRUE(infos.GetFileInfos(files, folder.MakeFolder("album.mp3")));
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_FALSE(infos.HasId3v2());
  EXPECT_EQ(infos.Header().bitrate, 0);
}

TEST(Mp3File, AFileThatCantBeReadIsThereButGivesNothing) {
  TempFolder folder;
  const std::string path =
      folder.WriteFile("locked.mp3", AudioBytes(kFrame128, 20000) + Id3v1("Title", "", "", "", "", 0));
  testing::FaultyFileSystem files;
  files.MakeFileUnreadable(path);
  Mp3Infos infos;
  EXPECT_TRUE(infos.GetFileInfos(files, path));
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_EQ(infos.Header().bitrate, 0);
  EXPECT_GT(files.refused, 0);
}

TEST(Mp3File, AnEmptyFileGivesNothing) {
  TempFolder folder;
  platform::PosixFileSystem files;
  Mp3Infos infos;
  EXPECT_TRUE(infos.GetFileInfos(files, folder.WriteFile("empty.mp3")));
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_EQ(infos.Mp3Length(), "");
}

TEST(Mp3File, ReadingAgainForgetsTheFileBefore) {
  TempFolder folder;
  platform::PosixFileSystem files;
  Mp3Infos infos;
  infos.GetFileInfos(files, folder.WriteFile("a.mp3", AudioBytes(kFrame128, 20000) + Id3v1("A", "", "", "", "", 0)));
  ASSERT_EQ(infos.Id3SongTitleV1(), "A");
  infos.GetFileInfos(files, folder.WriteFile("b.txt", "short"));
  EXPECT_FALSE(infos.HasId3v1());
  EXPECT_EQ(infos.Id3SongTitleV1(), "");
  EXPECT_EQ(infos.Header().bitrate, 0);
}

}  // namespace
}  // namespace nomra::media
