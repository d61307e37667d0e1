// Playlists that are no playlists: garbage, binary data, sheer size, and
// entries that point at folders or at the playlist itself.
#include <gtest/gtest.h>

#include <random>

#include "OpenFixture.h"
#include "open/Playlist.h"

namespace nomra::open {
namespace {

using namespace std::string_literals;
using Entries = std::vector<std::string>;

class PlaylistBadInputTest : public testing::OpenTest {
 protected:
  // The same bytes on every run and every library: mt19937 is fixed by the
  // standard, its distributions are not, so they are left out.
  std::mt19937 random{20240611};

  char RandomByte() { return static_cast<char>(random() & 0xFF); }
};

// Printable text without separators and at least three characters long: such
// a line can never be "." or ".." or name a folder outside the test's own.
std::string GarbageLine(std::mt19937& random) {
  constexpr std::string_view kCharacters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 !\"#$%&'()*+,-.:;<=>?@[\\]^_`{|}~";
  std::string line;
  const std::size_t length = 3 + random() % 120;
  for (std::size_t i = 0; i < length; ++i) line += kCharacters[random() % kCharacters.size()];
  return line;
}

TEST_F(PlaylistBadInputTest, GarbageLinesAroundEntriesLeaveTheEntriesLoading) {
  const std::string a = temp.WriteFile("a.mp3");
  const std::string b = temp.WriteFile("b.mp3");
  std::string content = "#EXTM3U\n";
  for (int i = 0; i < 500; ++i) content += GarbageLine(random) + (i % 2 == 0 ? "\n" : "\r\n");
  content += "a.mp3\n";
  for (int i = 0; i < 500; ++i) content += GarbageLine(random) + "\n";
  content += "b.mp3\n";
  const std::string list = temp.WriteFile("list.m3u", content);
  options.checkExistence = false;  // every garbage line is a fault for AddFile to raise

  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a, b}));
  EXPECT_TRUE(Refreshed());
}

TEST_F(PlaylistBadInputTest, LineOfAHundredThousandCharactersIsKeptWholeAndAddsNothing) {
  const std::string longLine(100000, 'x');
  const std::string a = temp.WriteFile("a.mp3");
  const std::string list = temp.WriteFile("list.m3u", longLine + "\na.mp3\n" + longLine + ".mp3\n");

  const Entries entries = ReadPlaylistEntries(list, fileSystem);
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0], temp.Path() + longLine);
  EXPECT_EQ(entries[2], temp.Path() + longLine + ".mp3");

  options.checkExistence = false;
  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{a}));
}

TEST_F(PlaylistBadInputTest, ControlCharactersStayPartOfTheEntry) {
  // Such a name is allowed on this platform, so it has to load as it stands.
  const std::string odd = temp.WriteFile("bell\x07tab\tesc\x1b[31m\x7f.mp3");
  const std::string list = temp.WriteFile(
      "list.m3u", "\x01\x02\x03\n\x1b[2J\x1b[H\n\x08\x08\x08\x0b\x0c\nbell\x07tab\tesc\x1b[31m\x7f.mp3\n");

  const Entries entries = ReadPlaylistEntries(list, fileSystem);
  EXPECT_EQ(entries, (Entries{temp.Path() + "\x01\x02\x03", temp.Path() + "\x1b[2J\x1b[H",
                              temp.Path() + "\x08\x08\x08\x0b\x0c", odd}));

  options.checkExistence = false;
  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{odd}));
}

TEST_F(PlaylistBadInputTest, LineHoldingANulNamesNoFile) {
  // The system calls read a path only up to a NUL, so such a line would
  // otherwise reach the file before it, or the playlist's own folder.
  temp.WriteFile("a.mp3");
  const std::string b = temp.WriteFile("b.mp3");
  const std::string list = temp.WriteFile("list.m3u", "a.mp3\0junk\n\0\n\0sub\nb.mp3\n"s);

  EXPECT_EQ(ReadPlaylistEntries(list, fileSystem), (Entries{b}));
  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{b}));
}

TEST_F(PlaylistBadInputTest, BinaryFileAsPlaylistAddsNothing) {
  std::string bytes = "\x89PNG\r\n\x1a\n";
  bytes += std::string(64, '\0');
  for (int i = 0; i < 65536; ++i) bytes += RandomByte();
  for (int run = 0; run < 16; ++run) bytes.insert(bytes.size() * run / 16, std::string(32, '\0'));
  // No separator and no dot: no line can name a folder outside the test's
  // own, whatever the bytes happen to be.
  for (char& c : bytes) {
    if (c == '/' || c == '.') c = '\0';
  }
  options.checkExistence = false;

  for (const char* name : {"noise.m3u", "noise.pls", "noise.bin"}) {
    const std::string list = temp.WriteFile(name, bytes);
    EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished) << name;
    EXPECT_EQ(state.list.Count(), 0) << name;
    EXPECT_TRUE(Refreshed()) << name;
  }
}

TEST_F(PlaylistBadInputTest, HugePlaylistOfMissingEntriesRunsToItsLastLine) {
  std::string content;
  content.reserve(200000 * 24);
  for (int i = 0; i < 200000; ++i) content += "missing-" + std::to_string(i) + ".mp3\n";
  const std::string last = temp.WriteFile("present.mp3");
  content += "present.mp3\n";
  const std::string list = temp.WriteFile("huge.m3u", content);
  options.checkExistence = true;  // every entry is passed over in silence, none raises a fault

  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{last}));
  // AddFile lets events through on every hundredth call: one call per line.
  EXPECT_EQ(progress.ticks, 200001 / 100);
  EXPECT_TRUE(Refreshed());
}

TEST_F(PlaylistBadInputTest, FolderEntryLoadsTheFolderWholeAsAddFileDoes) {
  const std::string top = temp.WriteFile("music/top.mp3");
  const std::string hidden = temp.WriteFile("music/.hidden.mp3");
  const std::string deep = temp.WriteFile("music/sub/deep.txt");
  const std::string other = temp.WriteFile("elsewhere/other.ogg");
  const std::string list = temp.WriteFile("lists/list.m3u", "../music\n" + temp.Path() + "elsewhere/\n");

  EXPECT_EQ(LoadPlaylist(load, preview, list), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{top, hidden, deep, other}));
}

TEST_F(PlaylistBadInputTest, EntryNamingThePlaylistItselfAddsItAsARow) {
  const std::string m3u = temp.Path() + "lists/self.m3u";
  temp.WriteFile("lists/self.m3u", "self.m3u\n" + m3u + "\n./self.m3u\n../lists/self.m3u\n");
  const std::string pls = temp.WriteFile("lists/self.pls", "[playlist]\nFile1=self.pls\n");

  EXPECT_EQ(LoadPlaylist(load, preview, m3u), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{m3u}));
  EXPECT_EQ(LoadPlaylist(load, preview, pls), LoadOutcome::Finished);
  EXPECT_EQ(RowKeys(), (std::set<std::string>{m3u, pls}));
}

}  // namespace
}  // namespace nomra::open
