#pragma once
#include <string>
#include <vector>

#include "base/LocalClock.h"
#include "core/FrontEnd.h"
#include "platform/FileSystem.h"

namespace nomra::commit {

// What the start found of a commit that a crash, a kill or a power loss cut
// short.
struct InterruptedCommit {
  bool found = false;
  // Files brought from a temporary name to their final name, as
  // "TEMPORARY" -> "FINAL", or back to their old name, said so.
  std::vector<std::string> finished;
  // What could not be set right, one line each; the user decides.
  std::vector<std::string> unresolved;
};

// Looks for the commit journal in the data folder and finishes what it
// names: a file under a temporary name goes to its final name when that is
// free, else back to its old name when that is free, never replacing
// anything. Nothing else is renamed: a plain rename of the batch either
// happened or didn't, and either way each file has one of its two names. The journal is then removed or, when something
// stayed unresolved, renamed to "commit.journal.<yyyymmddhhnnss>.left" so that it is kept for the user and not read
// again. A journal locked by a commit running in another Nomra is left alone.
InterruptedCommit RecoverInterruptedCommit(platform::FileSystem& fileSystem, const std::string& dataFolder,
                                           const base::LocalClock& clock = base::LocalTimeNow);

// Shows each unresolved line as a fault, "interrupted commit: " first.
void ShowUnresolved(core::FrontEnd& frontEnd, const InterruptedCommit& commit);

}  // namespace nomra::commit
