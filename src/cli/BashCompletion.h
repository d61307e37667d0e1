#pragma once
#include <ostream>
#include <string_view>

namespace nomra::cli {

// "nomra-cli --completion bash" prints the completion script of bash; the
// build installs it, so completion offers exactly what the option table
// holds. Not listed in the help: users never type it.
inline constexpr std::string_view kCompletionOption = "--completion";

// A script for bash alone, with no need of the bash-completion package:
// options from the option table and the history command's, the commands
// as the first word, the values of --scope and --sort, folders after
// --data-dir, files after options taking a FILE and wherever a PATH stands.
void WriteBashCompletion(std::ostream& out);

}  // namespace nomra::cli
