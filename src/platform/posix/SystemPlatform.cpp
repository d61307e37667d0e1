#include "platform/Platform.h"
#include "platform/posix/FreedesktopTrash.h"
#include "platform/posix/PosixDataLocations.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixProcesses.h"

namespace nomra::platform {

namespace {

class PosixPlatform final : public Platform {
 public:
  FileSystem& Files() override { return fileSystem_; }
  Processes& Programs() override { return processes_; }
  Trash& DesktopTrash() override { return trash_; }
  DataLocations& Locations() override { return locations_; }

 private:
  PosixFileSystem fileSystem_;
  PosixProcesses processes_;
  PosixDataLocations locations_;
  FreedesktopTrash trash_{fileSystem_, locations_};
};

}  // namespace

std::unique_ptr<Platform> MakeSystemPlatform() { return std::make_unique<PosixPlatform>(); }

}  // namespace nomra::platform
