// Starting a program and waiting for it, the window kept alive meanwhile.
#include <gtest/gtest.h>

#include "fileops/RunAndWait.h"
#include "platform/posix/PosixProcesses.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::fileops {
namespace {

using nomra::testing::ScriptedFrontEnd;

// Ends after a given number of looks.
class CountingProcesses final : public platform::Processes {
 public:
  long Start(const std::vector<std::string>& command) override {
    started = command;
    return 7;
  }
  std::optional<int> ExitCode(long handle) override {
    EXPECT_EQ(handle, 7);
    if (++looks < endAfter) return std::nullopt;
    return 5;
  }
  void Nap() override { ++naps; }
  std::vector<std::string> started;
  int looks = 0;
  int naps = 0;
  int endAfter = 4;
};

TEST(RunAndWaitTest, ReturnsTheProgramsExitCode) {
  ScriptedFrontEnd frontEnd;
  platform::PosixProcesses processes;
  EXPECT_EQ(RunAndWait({"sh", "-c", "exit 3"}, false, frontEnd, processes), 3);
}

TEST(RunAndWaitTest, WaitsUntilTheProgramHasEnded) {
  nomra::testing::TempFolder temp;
  const std::string marker = temp.Path() + "done";
  ScriptedFrontEnd frontEnd;
  platform::PosixProcesses processes;

  RunAndWait({"sh", "-c", "sleep 0.2; echo > '" + marker + "'"}, true, frontEnd, processes);

  EXPECT_TRUE(nomra::testing::Exists(marker));
  EXPECT_GT(frontEnd.pumps, 0);
}

TEST(RunAndWaitTest, PumpRunsBetweenLooksOnlyWhenAskedFor) {
  ScriptedFrontEnd frontEnd;
  CountingProcesses processes;

  EXPECT_EQ(RunAndWait({"helper", "a b"}, true, frontEnd, processes), 5);
  EXPECT_EQ(frontEnd.pumps, 3);
  EXPECT_EQ(processes.naps, 3);
  EXPECT_EQ(processes.started, (std::vector<std::string>{"helper", "a b"}));

  CountingProcesses quiet;
  RunAndWait({"helper"}, false, frontEnd, quiet);
  EXPECT_EQ(frontEnd.pumps, 3);
}

TEST(RunAndWaitTest, ProgramThatCantStartGivesMinusOne) {
  ScriptedFrontEnd frontEnd;
  platform::PosixProcesses processes;
  EXPECT_EQ(RunAndWait({"/nonexistent/nomra-helper"}, true, frontEnd, processes), -1);
  EXPECT_EQ(frontEnd.pumps, 0);
}

TEST(RunAndWaitTest, ProgramEndedByASignalCountsAbove128) {
  ScriptedFrontEnd frontEnd;
  platform::PosixProcesses processes;
  EXPECT_EQ(RunAndWait({"sh", "-c", "kill -9 $$"}, false, frontEnd, processes), 128 + 9);
}

}  // namespace
}  // namespace nomra::fileops
