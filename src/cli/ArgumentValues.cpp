#include "cli/ArgumentValues.h"

#include <array>
#include <charconv>
#include <utility>

namespace nomra::cli {

namespace {

constexpr int kFirstColumnHead = 1;
constexpr int kLastColumnHead = 21;

// The names of the heads a user sorts by; the numbers are the list's own.
constexpr std::array<std::pair<std::string_view, int>, 8> kSortHeadNames{{
    {"folder", 2},
    {"old", 3},
    {"new", 4},
    {"created", 5},
    {"modified", 6},
    {"exif", 7},
    {"size", 8},
    {"unsorted", 21},
}};

std::optional<int> ParseColumnHead(std::string_view text) {
  for (const auto& [name, head] : kSortHeadNames) {
    if (text == name) return head;
  }
  int head = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), head);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (head < kFirstColumnHead || head > kLastColumnHead) return std::nullopt;
  return head;
}

}  // namespace

std::optional<int> ParseApplyScope(std::string_view text) {
  if (text == "all") return 0;
  if (text == "selected") return 1;
  if (text == "unselected") return 2;
  return std::nullopt;
}

std::optional<SortRequest> ParseSortRequest(std::string_view text) {
  SortRequest request;
  const std::size_t colon = text.find(':');
  if (colon != std::string_view::npos) {
    const std::string_view direction = text.substr(colon + 1);
    if (direction == "desc") {
      request.order = 1;
    } else if (direction != "asc") {
      return std::nullopt;
    }
    text = text.substr(0, colon);
  }
  const std::optional<int> head = ParseColumnHead(text);
  if (!head) return std::nullopt;
  request.columnHead = *head;
  return request;
}

std::vector<std::string> SplitPatterns(std::string_view text) {
  std::vector<std::string> patterns;
  std::size_t from = 0;
  while (from <= text.size()) {
    std::size_t end = text.find(';', from);
    if (end == std::string_view::npos) end = text.size();
    if (end > from) patterns.emplace_back(text.substr(from, end - from));
    from = end + 1;
  }
  return patterns;
}

std::vector<std::string_view> SortHeadNames() {
  std::vector<std::string_view> names;
  for (const auto& [name, head] : kSortHeadNames) names.push_back(name);
  return names;
}

}  // namespace nomra::cli
