#pragma once
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace nomra::shell {

// The keys of the main tool bar, in order; "" is a separator.
const std::vector<std::string>& MainToolBarKeys();

// What the refresh leaves enabled: controls, menu entries and tool buttons by
// their names. Tool bar buttons go by their keys; the main tool bar's keys
// are listed above, the script bar's are "RunSelectedScript",
// "StartRecordScript" and "StartRunScript".
struct CommandState {
  std::set<std::string, std::less<>> enabled;

  bool IsEnabled(std::string_view name) const { return enabled.contains(name); }
};

}  // namespace nomra::shell
