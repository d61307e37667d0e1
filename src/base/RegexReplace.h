#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace nomra::base {

// Why a pattern or its replacement can't be used: the 1-based character
// position in the text at fault, and PCRE2's own words.
struct RegexProblem {
  bool inReplacement = false;  // false: the pattern
  std::size_t position = 0;
  std::string reason;
};

// A regular expression of PCRE2 in UTF mode, case-sensitive, that replaces
// every match of a text; the replacement names groups as $1, ${1} or
// ${name}, and $$ is a dollar. A name that is not valid UTF-8 is still
// searched: its stray bytes match nothing but themselves.
class RegexReplace {
 public:
  // Nothing when the pattern or the replacement has a fault; `problem`
  // then says where and why.
  static std::optional<RegexReplace> Compile(std::string_view pattern, std::string_view replacement,
                                             RegexProblem& problem);

  // `text` with every match replaced. Throws RuntimeFault when PCRE2 fails
  // on it (a match limit reached).
  std::string ReplaceAll(std::string_view text) const;

 private:
  struct Compiled;
  RegexReplace(std::shared_ptr<const Compiled> compiled, std::string replacement);

  std::shared_ptr<const Compiled> compiled_;
  std::string replacement_;
};

}  // namespace nomra::base
