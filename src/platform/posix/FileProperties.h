#pragma once
#include <string>

#include "platform/FileSystem.h"

namespace nomra::platform {

// See FileSystem::Properties.
FileProperties ReadProperties(const std::string& path);

}  // namespace nomra::platform
