#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace nomra::cli {

// "nomra-cli history ...": the rename protocol instead of a list of files.
inline constexpr std::string_view kHistoryCommand = "history";

struct HistoryInvocation {
  std::vector<int> undo;  // record numbers from 1, in file order
  bool clear = false;
  bool json = false;
  std::string dataFolder;  // empty: NOMRA_DATA_DIR or the default folder
  bool showHelp = false;
};

// One option of the history command, for the parser and the help.
struct HistoryOptionSpec {
  std::string_view name;
  std::string_view argument;  // empty: takes nothing
  std::string_view help;
  std::string_view example;  // the arguments after "nomra-cli "
  std::function<void(HistoryInvocation& invocation, const std::string& argument)> apply;
};

const std::vector<HistoryOptionSpec>& HistoryOptionTable();

// Reads the arguments after "history". Throws UsageError for an unknown
// option, a bad or missing value, a path, or --undo with --clear.
HistoryInvocation ParseHistoryCommandLine(const std::vector<std::string>& arguments);

}  // namespace nomra::cli
