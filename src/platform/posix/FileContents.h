#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/OpenFile.h"

namespace nomra::platform {

// Reading and writing whole files; see the FileSystem calls of the same names.
std::optional<std::string> ReadWholeFile(const std::string& path, int& error);
int WriteNewPrivateFile(const std::string& path, std::string_view content);
int WriteFileWithPermissionsOf(const std::string& path, std::string_view content, const std::string& permissionsFrom);
int ReplaceFileContent(const std::string& path, std::string_view content);
std::unique_ptr<OpenFile> OpenAppending(const std::string& path, int& error);

// Whether the user may replace the regular file at `path`.
bool MayReplaceFile(const std::string& path);

// The path a symbolic link finally leads to; any other path as it is.
std::string ResolvedLink(const std::string& path);

}  // namespace nomra::platform
