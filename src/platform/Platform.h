#pragma once
#include <memory>

#include "platform/DataLocations.h"
#include "platform/FileSystem.h"
#include "platform/Processes.h"
#include "platform/Trash.h"

namespace nomra::platform {

// The operating system's services, all behind their interfaces. A front end
// makes one at start and hands each part to the engine routine that needs it.
class Platform {
 public:
  virtual ~Platform() = default;
  virtual FileSystem& Files() = 0;
  virtual Processes& Programs() = 0;
  virtual Trash& DesktopTrash() = 0;
  virtual DataLocations& Locations() = 0;
};

// The one place where the system is chosen: the build compiles the
// definition of the system it runs on (posix/ here).
std::unique_ptr<Platform> MakeSystemPlatform();

}  // namespace nomra::platform
