#pragma once
#include "platform/Platform.h"
#include "platform/posix/FreedesktopTrash.h"
#include "platform/posix/PosixDataLocations.h"
#include "platform/posix/PosixProcesses.h"
#include "support/FaultyFileSystem.h"

namespace nomra::testing {

// The system's platform with a file system whose faults the test sets.
class FaultyPlatform final : public platform::Platform {
 public:
  platform::FileSystem& Files() override { return files; }
  platform::Processes& Programs() override { return processes_; }
  platform::Trash& DesktopTrash() override { return trash_; }
  platform::DataLocations& Locations() override { return locations_; }

  FaultyFileSystem files;

 private:
  platform::PosixProcesses processes_;
  platform::PosixDataLocations locations_;
  platform::FreedesktopTrash trash_{files, locations_};
};

}  // namespace nomra::testing
