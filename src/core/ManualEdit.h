#pragma once
#include <string>

#include "core/ListContext.h"

namespace nomra::core {

// The typed name of the manual edit becomes the row's pending name as typed,
// unless it holds nothing but blanks. Returns whether it was taken.
bool ApplyManualEdit(const ListContext& context, int position, const std::string& typed);

// The end of an in-place edit: forbidden characters are removed, the rest
// becomes the pending name.
void ApplyLabelEdit(const ListContext& context, int position, const std::string& edited);

}  // namespace nomra::core
