#include "open/PowerFilters.h"

#include <algorithm>

#include "base/Wildcard.h"
#include "formats/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::open {

namespace {

constexpr std::string_view kAllFilesPattern = "*.*";
// What the filter editor never lets into a pattern.
constexpr std::string_view kRemovedFromFilters = "\"/:<>\\|";

std::string KeyOf(std::size_t number) { return settings::kFilterKeyPrefix + std::to_string(number); }

bool AnyChecked(const std::vector<PowerFilter>& filters) {
  return std::any_of(filters.begin(), filters.end(), [](const PowerFilter& f) { return f.checked; });
}

}  // namespace

std::vector<PowerFilter> ReadPowerFilters(const formats::IniFile& settingsFile) {
  std::vector<PowerFilter> filters;
  for (std::size_t number = 1;; ++number) {
    const std::string value = settingsFile.ReadString(settings::kPowerFilterSection, KeyOf(number));
    if (value.empty()) break;
    filters.push_back({value.front() == '1', value.substr(1)});
  }
  if (filters.empty()) filters.push_back({true, std::string(kAllFilesPattern)});
  return filters;
}

void WritePowerFilters(const std::vector<PowerFilter>& filters, const formats::IniFile& settingsFile) {
  std::size_t number = 1;
  for (const PowerFilter& filter : filters) {
    settingsFile.Write(settings::kPowerFilterSection, KeyOf(number++), (filter.checked ? "1" : "0") + filter.pattern);
  }
  // Keys of a longer list written before stay behind the empty one, where
  // nothing reads them.
  settingsFile.Write(settings::kPowerFilterSection, KeyOf(number), std::string_view());
}

void SetFilterChecked(std::vector<PowerFilter>& filters, int index, bool checked) {
  if (index < 0 || static_cast<std::size_t>(index) >= filters.size()) return;
  filters[index].checked = checked;
  if (checked && index == 0) {
    for (std::size_t other = 1; other < filters.size(); ++other) filters[other].checked = false;
  } else if (checked) {
    filters[0].checked = false;
  }
  // The folder is never shown through no filter at all.
  if (!AnyChecked(filters)) filters[0].checked = true;
}

std::string CheckedPattern(const std::vector<PowerFilter>& filters) {
  std::string pattern;
  for (const PowerFilter& filter : filters) {
    if (!filter.checked) continue;
    if (!pattern.empty()) pattern += ';';
    pattern += filter.pattern;
  }
  return pattern;
}

std::string CleanFilterText(std::string_view typed) {
  std::string clean;
  for (const char c : typed) {
    if (kRemovedFromFilters.find(c) == std::string_view::npos) clean += c;
  }
  return clean;
}

bool PassesAnyPattern(std::string_view fileName, std::string_view patterns) {
  std::size_t start = 0;
  for (;;) {
    const std::size_t end = std::min(patterns.find(';', start), patterns.size());
    const std::string_view pattern = patterns.substr(start, end - start);
    // The folder listing takes "*.*" as every file, a name without a dot too,
    // as the listings of the system this dialog comes from do.
    if (pattern == kAllFilesPattern || (!pattern.empty() && base::MatchesWildcard(fileName, pattern))) return true;
    if (end == patterns.size()) return false;
    start = end + 1;
  }
}

}  // namespace nomra::open
