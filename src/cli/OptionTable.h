#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Invocation.h"

namespace nomra::cli {

// One option of nomra-cli: what the parser, the help and the run need to
// know of it. A new option is one more entry in the table.
struct OptionSpec {
  std::string_view name;       // "--select"
  std::string_view shortName;  // "-h", or empty
  std::string_view argument;   // what it takes, as the help names it; empty: nothing
  std::string_view help;
  std::string_view example;  // the arguments after "nomra-cli "
  // Appends a step or sets a setting; throws UsageError for a bad value.
  std::function<void(Invocation& invocation, const std::string& argument)> apply;
  // An option that takes two values ("--replace FIND WITH") names the second
  // here and gets both through applyPair instead of apply.
  std::string_view secondArgument = {};
  std::function<void(Invocation& invocation, const std::string& argument, const std::string& second)> applyPair = {};
};

const std::vector<OptionSpec>& OptionTable();

}  // namespace nomra::cli
