#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nomra::cli {

// The values options take, read from their text. Each returns nothing for a
// text it doesn't know, and the option turns that into bad usage.

// "all", "selected", "unselected" as the apply scope 0, 1, 2.
std::optional<int> ParseApplyScope(std::string_view text);

struct SortRequest {
  int columnHead = 0;  // 1..21
  int order = 0;       // 0 ascending, 1 descending
};

// "HEAD", "HEAD:asc" or "HEAD:desc"; HEAD is a column head number 1..21 or a
// name: folder, old, new, created, modified, exif, size, unsorted.
std::optional<SortRequest> ParseSortRequest(std::string_view text);

// The names ParseSortRequest knows, in the list's order of the heads.
std::vector<std::string_view> SortHeadNames();

// The wildcards of "PATTERN;PATTERN;...", empty parts left out.
std::vector<std::string> SplitPatterns(std::string_view text);

}  // namespace nomra::cli
