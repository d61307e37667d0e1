#include "base/Quoting.h"

namespace nomra::base {

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

}  // namespace nomra::base
