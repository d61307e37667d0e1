// Loading playlists named on the command line, in their place among the paths.
#include <gtest/gtest.h>

#include "cli/CliTestFixture.h"
#include "support/FaultyPlatform.h"

namespace nomra::testing {
namespace {

using CliPlaylist = CliTest;

constexpr const char* kHint = "Try 'nomra-cli --help'.";

std::vector<std::string> Keys(const JsonValue& document) {
  std::vector<std::string> keys;
  for (const JsonValue& row : document["rows"].items) keys.push_back(row["key"].text);
  return keys;
}

TEST_F(CliPlaylist, PathsAndPlaylistsLoadInTheOrderTheyAreGiven) {
  // Names against the alphabet, so no sorting can give this order.
  const std::string first = files.WriteFile("z-first.txt");
  const std::string fromList = files.WriteFile("m-listed.txt");
  const std::string fromSecondList = files.WriteFile("b-listed.txt");
  const std::string last = files.WriteFile("a-last.txt");
  const std::string list = files.WriteFile("lists/one.m3u", fromList + "\n");
  const std::string second = files.WriteFile("lists/two.m3u", fromSecondList + "\n");

  const JsonValue document = RunJson({first, "--playlist", list, last, "--playlist=" + second});

  EXPECT_EQ(Keys(document), (std::vector<std::string>{first, fromList, last, fromSecondList}));
}

TEST_F(CliPlaylist, PlaylistAloneIsEnoughToLoad) {
  const std::string song = files.WriteFile("song.mp3");
  const JsonValue document = RunJson({"--playlist", files.WriteFile("list.m3u", song + "\n")});
  EXPECT_EQ(Keys(document), std::vector<std::string>{song});
}

TEST_F(CliPlaylist, M3uCommentsAreLeftOut) {
  const std::string a = files.WriteFile("music/a.mp3");
  const std::string b = files.WriteFile("music/b.mp3");
  const std::string list =
      files.WriteFile("music/list.m3u", "#EXTM3U\r\n#EXTINF:120,First\r\na.mp3\r\n#extinf:99,Second\r\nb.mp3\r\n");

  const JsonValue document = RunJson({"--playlist", list});

  EXPECT_EQ(Keys(document), (std::vector<std::string>{a, b}));
}

TEST_F(CliPlaylist, PlsGivesWhatFollowsTheEqualsOfEachFileLine) {
  const std::string a = files.WriteFile("music/a.mp3");
  const std::string b = files.WriteFile("music/b.mp3");
  files.WriteFile("music/Song A");  // the title, which must not be taken for an entry
  const std::string list = files.WriteFile(
      "music/list.pls", "[playlist]\r\nFile1=a.mp3\r\nTitle1=Song A\r\nFile2=b.mp3\r\nNumberOfEntries=2\r\n");

  const JsonValue document = RunJson({"--playlist", list});

  EXPECT_EQ(Keys(document), (std::vector<std::string>{a, b}));
}

TEST_F(CliPlaylist, RelativeEntriesAreTakenFromThePlaylistsFolder) {
  const std::string beside = files.WriteFile("lists/song.mp3");
  const std::string above = files.WriteFile("music/up.mp3");
  files.WriteFile("lists/list.m3u", "song.mp3\n../music/up.mp3\n");
  CliLaunch launch;
  launch.arguments = {"--json", "--playlist", "lists/list.m3u"};
  launch.environment["NOMRA_DATA_DIR"] = data.Path();
  launch.workingFolder = files.Path();

  const CliResult result = RunCli(launch);

  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(Keys(ParseJson(result.out)), (std::vector<std::string>{beside, above}));
}

TEST_F(CliPlaylist, EntriesThatNameNothingArePassedOverQuietly) {
  const std::string song = files.WriteFile("song.mp3");
  const std::string list = files.WriteFile("list.m3u", "gone.mp3\n/nomra-missing/x.mp3\nsong.mp3\n");

  const CliResult result = Run({"--json", "--playlist", list});

  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(result.err.empty()) << result.err;
  EXPECT_EQ(Keys(ParseJson(result.out)), std::vector<std::string>{song});
}

TEST_F(CliPlaylist, MissingPlaylistIsReportedAndEverythingElseStillLoads) {
  const std::string first = files.WriteFile("a.txt");
  const std::string missing = files.Path() + "none.m3u";
  const std::string listed = files.WriteFile("b.txt");
  const std::string list = files.WriteFile("list.m3u", listed + "\n");

  const CliResult result = Run({"--json", first, "--playlist", missing, "--playlist", list});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: playlist not found: " + missing + "\n"), std::string::npos) << result.err;
  EXPECT_EQ(Keys(ParseJson(result.out)), (std::vector<std::string>{first, listed}));
}

TEST_F(CliPlaylist, MissingPlaylistIsReportedEvenWhenMissingPathsAreSkipped) {
  WriteSettings({"CheckExistence=1"});
  const std::string file = files.WriteFile("a.txt");
  const std::string missing = files.Path() + "none.pls";

  const CliResult result = Run({"--json", file, "--playlist", missing});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: playlist not found: " + missing), std::string::npos) << result.err;
}

TEST_F(CliPlaylist, FolderGivenAsPlaylistIsNotFound) {
  const std::string folder = files.MakeFolder("music");
  files.WriteFile("music/a.mp3");

  const CliResult result = Run({"--json", "--playlist", folder});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: playlist not found: " + folder), std::string::npos) << result.err;
  EXPECT_TRUE(ParseJson(result.out)["rows"].items.empty());
}

TEST_F(CliPlaylist, UnreadablePlaylistIsReported) {
  const std::string list = files.WriteFile("list.m3u", files.WriteFile("a.txt") + "\n");
  FaultyPlatform system;
  system.files.MakeFileUnreadable(list);

  const CliResult result = RunWithin(system, {"--json", "--playlist", list});

  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.err.find("nomra-cli: playlist not readable: " + list), std::string::npos) << result.err;
}

TEST_F(CliPlaylist, PlaylistOptionWithoutAValueIsBadUsage) {
  const std::string file = files.WriteFile("a.txt");

  const CliResult result = Run({file, "--playlist"});

  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_TRUE(result.out.empty()) << result.out;
  EXPECT_NE(result.err.find("--playlist"), std::string::npos) << result.err;
  EXPECT_NE(result.err.find(kHint), std::string::npos) << result.err;
}

}  // namespace
}  // namespace nomra::testing
