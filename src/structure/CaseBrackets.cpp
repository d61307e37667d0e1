#include "structure/CaseBrackets.h"

#include <array>
#include <string_view>

#include "base/Fault.h"
#include "base/Trim.h"
#include "structure/CaseConversion.h"
#include "structure/TextSearch.h"

namespace nomra::structure {

namespace {

constexpr std::string_view kIntChar = "<IntChar>";
struct CaseMarks {
  std::string_view code;
  std::string_view opening;
  std::string_view closing;
};
constexpr std::array<CaseMarks, 5> kCaseMarks = {{{"UC", "<UC>", "</UC>"},
                                                  {"LC", "<LC>", "</LC>"},
                                                  {"1C", "<1C>", "</1C>"},
                                                  {"WC", "<WC>", "</WC>"},
                                                  {"SC", "<SC>", "</SC>"}}};

}  // namespace

void ResolveIntCharPair(std::string& s) {
  const std::size_t open = s.find(kIntChar);
  if (open == std::string::npos) return;
  const std::size_t innerStart = open + kIntChar.size();
  const std::size_t close = s.find(kIntChar, innerStart);
  if (close == std::string::npos) return;
  const std::string_view inner = std::string_view(s).substr(innerStart, close - innerStart);
  if (inner.empty() || base::TrimSpaces(inner) == "x") s.erase(open, close + kIntChar.size() - open);
}

void ResolveCaseBrackets(std::string& s) {
  for (const auto& [code, opening, closing] : kCaseMarks) {
    for (;;) {
      const std::size_t open = FindTagNoCase(s, opening);
      const std::size_t close = FindTagNoCase(s, closing);
      if (open == std::string::npos || close == std::string::npos) break;
      if (close < open) {
        throw base::RuntimeFault("the case mark " + std::string(closing) + " stands before its " +
                                 std::string(opening));
      }
      const std::size_t innerStart = open + opening.size();
      const std::string converted = ConvertCase(code, std::string_view(s).substr(innerStart, close - innerStart));
      s.replace(open, close + closing.size() - open, converted);
    }
  }
}

}  // namespace nomra::structure
