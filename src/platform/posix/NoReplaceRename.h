#pragma once
#include <string>

#include "platform/FileSystem.h"

namespace nomra::platform {

// A rename that never replaces a file, in the strongest form the file system
// offers: renameat2 with RENAME_NOREPLACE; where the file system refuses the
// flag, a hard link and the removal of the old name; where it has no hard
// links either (FAT, exFAT), a look-up and a plain rename. EEXIST and
// ENOTEMPTY both come back as EEXIST.
RenameResult RenameWithoutReplacing(const std::string& from, const std::string& to);

// The two fallbacks on their own, so that they can be tried on any volume.
RenameResult RenameByLink(const std::string& from, const std::string& to);
RenameResult RenameAfterLookup(const std::string& from, const std::string& to);

// Whether a rename that reported success really happened: `to` exists, and
// `from` is gone; where both names reach one file (a change of case on a
// volume without case) the folder's listing must show the new spelling and
// not the old one.
bool ConfirmRename(const std::string& from, const std::string& to);

}  // namespace nomra::platform
