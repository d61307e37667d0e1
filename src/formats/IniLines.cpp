#include "formats/IniLines.h"

#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra::formats {

std::string CutToLongestValue(std::string value) {
  std::size_t count = 0;
  std::size_t cutAt = std::string::npos;
  base::ForEachChar(value, [&](char32_t, std::size_t offset, std::size_t) {
    if (count++ == kLongestIniValue && cutAt == std::string::npos) cutAt = offset;
  });
  if (cutAt != std::string::npos) value.resize(cutAt);
  return value;
}

namespace {

// Lines [header + 1, end) belong to the section opened at `header`.
struct SectionRange {
  std::size_t header = 0;
  std::size_t end = 0;
};

// Lines before the first header belong to no section and are never found.
std::optional<SectionRange> FindSection(const std::vector<std::string>& lines, std::string_view section) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto name = SectionNameOf(lines[i]);
    if (!name || !base::EqualsNoCase(*name, section)) continue;
    std::size_t end = i + 1;
    while (end < lines.size() && !SectionNameOf(lines[end])) ++end;
    return SectionRange{i, end};
  }
  return std::nullopt;
}

std::string MakeEntry(std::string_view key, std::string_view value) {
  std::string line(key);
  line += '=';
  line += value;
  return line;
}

}  // namespace

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  while (from < text.size()) {
    std::size_t end = text.find('\n', from);
    const std::size_t next = end == std::string_view::npos ? text.size() : end + 1;
    if (end == std::string_view::npos) end = text.size();
    std::string_view line = text.substr(from, end - from);
    if (next != end && !line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.emplace_back(line);
    from = next;
  }
  return lines;
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& line : lines) {
    text += line;
    text += "\r\n";
  }
  return text;
}

std::optional<std::string_view> SectionNameOf(std::string_view line) {
  const std::string_view trimmed = base::TrimBlanks(line);
  if (trimmed.empty() || trimmed.front() != '[') return std::nullopt;
  std::string_view name = trimmed.substr(1);
  const std::size_t close = name.find(']');
  if (close != std::string_view::npos) name = name.substr(0, close);
  return base::TrimBlanks(name);
}

std::optional<IniEntry> EntryOf(std::string_view line) {
  if (SectionNameOf(line)) return std::nullopt;
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  return IniEntry{base::TrimBlanks(line.substr(0, equals)), base::TrimBlanks(line.substr(equals + 1))};
}

std::optional<std::string> FindValue(const std::vector<std::string>& lines, std::string_view section,
                                     std::string_view key) {
  const auto range = FindSection(lines, section);
  if (!range) return std::nullopt;
  for (std::size_t i = range->header + 1; i < range->end; ++i) {
    const auto entry = EntryOf(lines[i]);
    if (entry && base::EqualsNoCase(entry->key, key)) return std::string(entry->value);
  }
  return std::nullopt;
}

void SetValue(std::vector<std::string>& lines, std::string_view section, std::string_view key, std::string_view value) {
  const auto range = FindSection(lines, section);
  if (!range) {
    if (!lines.empty() && !base::TrimBlanks(lines.back()).empty()) lines.emplace_back();
    lines.push_back("[" + std::string(section) + "]");
    lines.push_back(MakeEntry(key, value));
    return;
  }
  std::size_t lastFilled = range->header;
  for (std::size_t i = range->header + 1; i < range->end; ++i) {
    const auto entry = EntryOf(lines[i]);
    if (entry && base::EqualsNoCase(entry->key, key)) {
      lines[i] = MakeEntry(entry->key, value);  // entry->key points into lines[i]; MakeEntry copies first
      return;
    }
    if (!base::TrimBlanks(lines[i]).empty()) lastFilled = i;
  }
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(lastFilled + 1), MakeEntry(key, value));
}

}  // namespace nomra::formats
