#include "open/FilterList.h"

#include "base/Wildcard.h"
#include "formats/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::open {

std::vector<FilterRow> BuildFilterList(const formats::IniFile& settingsFile, std::string_view allFilesText) {
  std::vector<FilterRow> rows{{std::string(allFilesText), "*.*"}};
  for (int number = 1;; ++number) {
    const std::string key = settings::kFilterKeyPrefix + std::to_string(number);
    const std::string value = settingsFile.ReadString(settings::kFilterSection, key);
    const std::size_t bar = value.find('|');
    if (bar == std::string::npos) break;  // an empty key holds no "|" either

    FilterRow row;
    for (const char c : value) {
      if (c == '|') {
        row.text += " (";
      } else {
        row.text += c;
      }
    }
    row.text += ')';
    row.pattern = value.substr(bar + 1);
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string SystemDialogFilter(const std::vector<FilterRow>& rows) {
  std::string filter;
  for (const FilterRow& row : rows) {
    if (!filter.empty()) filter += '|';
    filter += row.text + '|' + row.pattern;
  }
  return filter;
}

bool PassesFilter(std::string_view fileName, std::string_view pattern) {
  return base::MatchesWildcard(fileName, pattern);
}

}  // namespace nomra::open
