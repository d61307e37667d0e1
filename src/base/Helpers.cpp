#include "base/Helpers.h"

namespace nomra {

std::string FormatMessage(std::string_view text, const std::vector<std::string>& values) {
  std::string out(text);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string marker = "%" + std::to_string(i + 1);
    std::string next;
    std::size_t from = 0;
    for (std::size_t at = out.find(marker); at != std::string::npos; at = out.find(marker, from)) {
      next.append(out, from, at - from);
      next += values[i];
      from = at + marker.size();
    }
    next.append(out, from, std::string::npos);
    out = std::move(next);
  }
  return out;
}

std::string CleanFileName(std::string_view name) {
  std::string out;
  out.reserve(name.size());
  for (char c : name) {
    if (kForbiddenNameCharacters.find(c) == std::string_view::npos) out.push_back(c);
  }
  return out;
}

std::string Quoted(std::string_view text) {
  std::string out;
  out.reserve(text.size() + 2);
  out.push_back('"');
  out.append(text);
  out.push_back('"');
  return out;
}

std::string WithoutDoubleQuotes(std::string_view text) {
  std::string out(text);
  std::erase(out, '"');
  return out;
}

std::string_view TrimSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool ToBoolean(long value, bool defaultValue) {
  if (value < 0) return defaultValue;
  return value != 0;
}

int FromBoolean(bool flag) { return flag ? 1 : 0; }

}  // namespace nomra
