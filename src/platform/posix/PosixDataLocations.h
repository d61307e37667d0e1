#pragma once
#include "platform/DataLocations.h"

namespace nomra::platform {

// The XDG base directory rules and /proc/self/exe.
class PosixDataLocations final : public DataLocations {
 public:
  std::string DataFolder() override;
  std::string DataHome() override;
  std::string HomeFolder() override;
  std::string ExecutableFolder() override;
  unsigned UserId() override;
};

}  // namespace nomra::platform
