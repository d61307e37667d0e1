#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "cli/HistoryCommandLine.h"
#include "platform/Platform.h"

namespace nomra::cli {

// "nomra-cli history": reads the rename protocol of the data folder, undoes
// the records named by --undo or empties it for --clear, then prints the
// records as they are now to `out`. Questions, failures and faults go to
// `messages`. Returns the exit status: 1 when a named record was not undone
// or the protocol couldn't be read or written, 2 for a record number beyond
// the protocol (nothing is done then).
int RunHistoryCommand(platform::Platform& system, const HistoryInvocation& invocation, std::ostream& out,
                      std::ostream& messages);

// The same from the arguments after "history": a command line it can't
// understand is printed and gives 2, --help prints the help.
int RunHistoryCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                      std::ostream& messages);

}  // namespace nomra::cli
