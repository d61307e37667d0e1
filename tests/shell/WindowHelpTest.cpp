#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "shell/WindowHelp.h"

namespace nomra::shell {
namespace {

TEST(WindowHelp, HelpAndVersionAreAnsweredOnlyAsTheFirstArgument) {
  EXPECT_EQ(FindInfoRequest({"--help"}), InfoRequest::Help);
  EXPECT_EQ(FindInfoRequest({"-h", "/tmp"}), InfoRequest::Help);
  EXPECT_EQ(FindInfoRequest({"--version"}), InfoRequest::Version);
  EXPECT_EQ(FindInfoRequest({}), InfoRequest::None);
  // A file that happens to carry the name is a path like any other.
  EXPECT_EQ(FindInfoRequest({"/tmp/a", "--help"}), InfoRequest::None);
  EXPECT_EQ(FindInfoRequest({"--Help"}), InfoRequest::None);
}

TEST(WindowHelp, HelpNamesTheUsageEverySwitchAndTheDataFolder) {
  std::ostringstream out;
  WriteWindowHelp(out);
  const std::string text = out.str();
  EXPECT_TRUE(text.starts_with("Usage: nomra ")) << text;
  for (const char* part : {"/openfromfile=", "/runscript=", "--help", "--version", "NOMRA_DATA_DIR", "nomra-cli"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80u) << line;
}

}  // namespace
}  // namespace nomra::shell
