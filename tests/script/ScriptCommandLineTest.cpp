#include <gtest/gtest.h>

#include "script/ScriptFixture.h"
#include "shell/CommandLine.h"

namespace nomra::script {
namespace {

// "/runscript=" on the command line, carried out as the program does.
class ScriptCommandLineTest : public testing::ScriptTest {
 protected:
  ScriptCommandLineTest() {
    AddFiles({"a.jpg"});
    switches.runScript = [this](const std::string& name) {
      ++scriptArguments;
      RunScriptArgument(script, fileSystem, name, HeadlessOpener());
    };
  }

  shell::CommandLineSwitches switches;
  int scriptArguments = 0;
};

TEST_F(ScriptCommandLineTest, SwitchWithNothingBehindItIsNoScriptArgument) {
  WriteScript("20261115023303.nrs", "[Main]\r\nSteps=1\r\n[1]\r\nType=5\r\ntxtPr=x\r\n");
  shell::RunCommandLine(shell::SplitCommandLine("/runscript="), load, switches);
  EXPECT_EQ(scriptArguments, 0);
  EXPECT_TRUE(openedTypes.empty());
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"a.jpg"}));
}

TEST_F(ScriptCommandLineTest, QuotedFileNameFindsTheScriptInTheScriptsFolder) {
  WriteScript("20261115023303.nrs", "[Main]\r\nSteps=1\r\n[1]\r\nType=5\r\ntxtPr=x\xC2\x90\r\n");
  shell::RunCommandLine(shell::SplitCommandLine("/runscript=\"20261115023303.nrs\""), load, switches);
  EXPECT_EQ(scriptArguments, 1);
  EXPECT_EQ(PendingNames(), (std::vector<std::string>{"x a.jpg"}));
  EXPECT_EQ(script.runMode, 0);
}

}  // namespace
}  // namespace nomra::script
