#include "base/MessageText.h"

namespace nomra::base {

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

}  // namespace nomra::base
