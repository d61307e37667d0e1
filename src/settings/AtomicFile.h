#pragma once
#include <string>
#include <string_view>

namespace nomra::settings {

// Whether an existing file may be replaced: it is a regular file the user may
// write. A rename would replace a read-only file too, so every rewrite asks
// first and leaves such a file alone.
bool MayReplaceFile(const std::string& path);

// Replaces (or creates) a file so that a crash leaves either the old or the
// new file whole: the content goes into a temporary file in the same folder,
// which is then renamed over the old one. The old file's permission bits
// carry over; a new file gets 0666 less the umask. A symbolic link is written
// through, not replaced. False when the folder or the file isn't writable.
bool ReplaceFileContent(const std::string& path, std::string_view content);

// Writes a temporary file whole (created or truncated), with the permission
// bits of `permissionsFrom` when that file exists.
bool WriteTemporaryFile(const std::string& path, std::string_view content,
                        const std::string& permissionsFrom);

// Moves a finished temporary file over `target` with one atomic rename. When
// the two lie on different file systems, the content goes to the target
// through ReplaceFileContent and the source is removed.
bool MoveFileOver(const std::string& source, const std::string& target);

}  // namespace nomra::settings
