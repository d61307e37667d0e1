#pragma once
#include <string>

namespace nomra::platform {

// Whether a folder ignores case, found by looking a name up under its
// flipped case, for volumes whose type doesn't tell (FUSE). The name is the
// first one of the folder that has another case; an empty folder lends its
// own name within its parent, as long as the parent is on the same volume.
// With no name to flip the answer is false, as the volume's type gives no
// rule of its own. Nothing is created: the probe must not touch the volume.
bool LookupIgnoresCase(const std::string& folder);

// The look-up of one name under its flipped case: whether `name` in
// `folder` (ending with the separator) and its other spelling are one entry.
// The same inode says so; where the volume gives each spelling an inode
// number of its own, as some FUSE drivers do, an entry found under a
// spelling the folder's listing doesn't hold says so too. False when the
// other spelling reaches nothing or an entry of its own, and also when
// `name` has no other case or can't be looked up.
bool FlippedSpellingFindsTheSameEntry(const std::string& folder, const std::string& name);

}  // namespace nomra::platform
