#pragma once
#include <optional>
#include <string>

namespace nomra::settings {

// The whole content of a file, or nothing when it can't be read (missing, a
// folder, no permission).
std::optional<std::string> ReadFileBytes(const std::string& path);

// Whether anything at all stands at the path (a file, a folder, a link).
bool PathExists(const std::string& path);

bool IsRegularFile(const std::string& path);

}  // namespace nomra::settings
