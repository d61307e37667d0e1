#pragma once
#include <ostream>

#include "cli/CliSession.h"

namespace nomra::cli {

// Finishes a commit that a crash or a kill cut short, at every start and
// before any path loads, so the list sees the files under their final
// names. Each file brought to its final name is a note on `messages`; what
// stays unresolved is a fault and fails the run.
void RecoverAtStart(CliSession& session, std::ostream& messages);

}  // namespace nomra::cli
