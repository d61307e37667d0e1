#pragma once
#include <ostream>
#include <string>
#include <string_view>

#include "cli/CliSession.h"

namespace nomra::cli {

// The name as the manual edit field would hold it after typing `typed`: the
// characters the field discards never get in. Stray bytes stay as they are.
std::string TypedIntoNameField(std::string_view typed);

// The manual edit, made on every row of the apply scope: the typed name
// becomes the pending name unless it is nothing but blanks.
void EditNamesInScope(CliSession& session, std::string_view typed, std::ostream& notes);

}  // namespace nomra::cli
