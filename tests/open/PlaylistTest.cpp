#include <gtest/gtest.h>

#include "OpenFixture.h"
#include "open/Playlist.h"

namespace nomra::open {
namespace {

using Entries = std::vector<std::string>;

class PlaylistTest : public testing::OpenTest {
 protected:
  Entries Read(const std::string& name, const std::string& content) {
    return ReadPlaylistEntries(temp.WriteFile(name, content), fileSystem);
  }
};

TEST_F(PlaylistTest, PlsTakesWhatFollowsTheEqualsOfEveryFileLine) {
  const Entries entries =
      Read("list.pls", "[playlist]\r\nFile3=a.mp3\r\nTitle3=Song A\r\nFILE=x\r\nfile1=b.mp3\r\nNumberOfEntries=3\r\n");
  EXPECT_EQ(entries, (Entries{temp.Path() + "a.mp3", temp.Path() + "x", temp.Path() + "b.mp3"}));
}

TEST_F(PlaylistTest, PlsFileLineWithoutEqualsGivesNoEntry) {
  EXPECT_EQ(Read("list.pls", "Files\nFile1=a.mp3\n"), (Entries{temp.Path() + "a.mp3"}));
}

TEST_F(PlaylistTest, M3uExtLinesAreCommentsInAnyCase) {
  const Entries entries = Read("list.m3u", "#EXTM3U\n#extinf:120,Song\na.mp3\n#ExtInf:99,Other\nb.mp3\n");
  EXPECT_EQ(entries, (Entries{temp.Path() + "a.mp3", temp.Path() + "b.mp3"}));
}

TEST_F(PlaylistTest, M3uLineWithAnotherHashIsAnEntry) {
  EXPECT_EQ(Read("list.m3u", "#note.mp3\n"), (Entries{temp.Path() + "#note.mp3"}));
}

TEST_F(PlaylistTest, PlaylistEndingIsToldWithoutRegardToCase) {
  EXPECT_EQ(Read("LIST.M3U", "#EXTINF:1,A\na.mp3\n"), (Entries{temp.Path() + "a.mp3"}));
  EXPECT_EQ(Read("LIST.PLS", "Title1=A\nFile1=a.mp3\n"), (Entries{temp.Path() + "a.mp3"}));
}

TEST_F(PlaylistTest, OtherEndingKeepsEveryLine) {
  EXPECT_EQ(Read("list.txt", "#EXTINF:1,A\nFile1=a.mp3\n"),
            (Entries{temp.Path() + "#EXTINF:1,A", temp.Path() + "File1=a.mp3"}));
}

TEST_F(PlaylistTest, MissingEntryStartingWithSeparatorStaysAsItIs) {
  EXPECT_EQ(Read("list.m3u", "/music/a.mp3\n"), (Entries{"/music/a.mp3"}));
}

TEST_F(PlaylistTest, RelativeEntryGetsThePlaylistsFolder) {
  temp.WriteFile("lists/sub/present.mp3");
  const Entries entries = Read("lists/list.m3u", "sub/present.mp3\nsub/missing.mp3\n");
  EXPECT_EQ(entries, (Entries{temp.Path() + "lists/sub/present.mp3", temp.Path() + "lists/sub/missing.mp3"}));
}

TEST_F(PlaylistTest, EntryOfAnotherSystemGetsTheFolderAnyway) {
  EXPECT_EQ(Read("list.m3u", "C:\\Music\\a.mp3\n"), (Entries{temp.Path() + "C:\\Music\\a.mp3"}));
}

TEST_F(PlaylistTest, ExistingAbsoluteEntryStaysAsItIs) {
  const std::string song = temp.WriteFile("elsewhere/a.mp3");
  EXPECT_EQ(Read("lists/list.m3u", song + "\n"), (Entries{song}));
}

TEST_F(PlaylistTest, EmptyLinesAddNothing) {
  EXPECT_EQ(Read("list.m3u", "a.mp3\n\nb.mp3\n\n"), (Entries{temp.Path() + "a.mp3", temp.Path() + "b.mp3"}));
}

TEST_F(PlaylistTest, CrLfAndLfBothEndALine) {
  EXPECT_EQ(Read("list.m3u", "a.mp3\r\nb.mp3\nc.mp3"),
            (Entries{temp.Path() + "a.mp3", temp.Path() + "b.mp3", temp.Path() + "c.mp3"}));
}

TEST_F(PlaylistTest, ByteOrderMarkDoesNotHideTheFirstComment) {
  EXPECT_EQ(Read("list.m3u", "\xEF\xBB\xBF#EXTM3U\na.mp3\n"), (Entries{temp.Path() + "a.mp3"}));
}

TEST_F(PlaylistTest, TextThatIsNoUtf8IsReadAsWindows1252) {
  EXPECT_EQ(Read("list.m3u", "caf\xE9.mp3\n"), (Entries{temp.Path() + "caf\xC3\xA9.mp3"}));
  EXPECT_EQ(Read("list2.m3u", "caf\xC3\xA9.mp3\n"), (Entries{temp.Path() + "caf\xC3\xA9.mp3"}));
}

TEST_F(PlaylistTest, MissingPlaylistGivesNoEntries) {
  EXPECT_TRUE(ReadPlaylistEntries(temp.Path() + "none.m3u", fileSystem).empty());
}

TEST_F(PlaylistTest, LoadAddsEveryEntryAndRefreshesAfterTheLast) {
  const std::string a = temp.WriteFile("a.mp3");
  const std::string b = temp.WriteFile("sub/b.mp3");
  const std::string list = temp.WriteFile("list.m3u", "#EXTM3U\na.mp3\r\nsub/b.mp3\r\n");
  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_TRUE(Refreshed());
  ASSERT_FALSE(frontEnd.statusTexts.empty());
  EXPECT_EQ(frontEnd.statusTexts.back(), "2 files in 2 folders, 0 changed");
}

TEST_F(PlaylistTest, LoadOfAMissingPlaylistChangesNothing) {
  EXPECT_EQ(LoadPlaylist(load, preview, temp.Path() + "none.m3u"), LoadOutcome::Finished);
  EXPECT_EQ(state.list.Count(), 0);
  EXPECT_FALSE(Refreshed());
  EXPECT_TRUE(frontEnd.statusTexts.empty());
}

TEST_F(PlaylistTest, LoadOfAnEmptyPlaylistStillRefreshes) {
  LoadPlaylist(load, preview, temp.WriteFile("list.m3u", "#EXTM3U\r\n"));
  EXPECT_TRUE(Refreshed());
}

TEST_F(PlaylistTest, LoadPassesOverEntriesThatNameNothing) {
  options.checkExistence = false;  // AddFile reports such an entry as a fault
  const std::string b = temp.WriteFile("b.mp3");
  const std::string list = temp.WriteFile("list.pls", "File1=/nomra-missing/a.mp3\nFile2=missing.mp3\nFile3=b.mp3\n");
  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{b}));
  EXPECT_TRUE(Refreshed());
}

TEST_F(PlaylistTest, FileListedTwiceGivesOneRow) {
  const std::string a = temp.WriteFile("a.mp3");
  LoadPlaylist(load, preview, temp.WriteFile("list.m3u", "a.mp3\n" + a + "\n./a.mp3\n"));
  EXPECT_EQ(state.list.Count(), 1);
}

TEST_F(PlaylistTest, CancelReturnsAtOnceLeavingTheFlagAndTheView) {
  temp.WriteFile("a.mp3");
  temp.WriteFile("b.mp3");
  temp.WriteFile("c.mp3");
  const std::string list = temp.WriteFile("list.m3u", "a.mp3\nb.mp3\nc.mp3\n");
  CancelAtFile(2);
  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Cancelled);
  EXPECT_EQ(state.list.Count(), 2);
  EXPECT_TRUE(load.stopAsked);
  EXPECT_FALSE(Refreshed());
}

}  // namespace
}  // namespace nomra::open
