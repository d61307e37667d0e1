#pragma once
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace nomra::formats {

// Moves a finished temporary file over `target` with one atomic rename (a
// link at `target` is written through). When the two lie on different file
// systems, the content goes to the target through FileSystem::ReplaceFile
// and the source is removed. 0 or the errno of the failure.
int MoveFileOver(platform::FileSystem& fileSystem, const std::string& source, const std::string& target);

// Writes `content` whole into `temporary` (with the permission bits of
// `target`), then moves it over `target`: a crash or a failure leaves the
// old file whole, and the temporary file is removed again. 0 or the errno.
int WriteThroughTemporary(platform::FileSystem& fileSystem, const std::string& target, const std::string& temporary,
                          std::string_view content);

}  // namespace nomra::formats
