#pragma once
#include <functional>
#include <ostream>
#include <string>

#include "cli/CliSession.h"

namespace nomra::cli {

// One option that acts on the list, kept in command-line order and run after
// every path is loaded. Each action leaves the list refreshed, as each
// command of the window does; notes for the user go to `notes`.
struct Step {
  std::string option;  // as typed, for fault messages
  std::function<void(CliSession& session, std::ostream& notes)> run;
};

}  // namespace nomra::cli
