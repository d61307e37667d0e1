#include "base/RegexReplace.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <cctype>
#include <vector>

#include "base/Fault.h"
#include "base/Utf8.h"

namespace nomra::base {

struct RegexReplace::Compiled {
  pcre2_code* code = nullptr;
  ~Compiled() { pcre2_code_free(code); }
};

namespace {

std::string ErrorText(int error) {
  std::vector<PCRE2_UCHAR> buffer(256);
  const int length = pcre2_get_error_message(error, buffer.data(), buffer.size());
  if (length < 0) return "error " + std::to_string(error);
  return std::string(reinterpret_cast<const char*>(buffer.data()), static_cast<std::size_t>(length));
}

// The 1-based character position of a byte offset.
std::size_t CharacterPosition(std::string_view text, std::size_t offset) {
  return CharCount(text.substr(0, std::min(offset, text.size()))) + 1;
}

// The group a reference names, or why it can't be; checked before any
// name is touched, since PCRE2 only looks at the replacement on a match.
bool CheckReplacement(const pcre2_code* code, std::string_view replacement, RegexProblem& problem) {
  std::uint32_t groups = 0;
  pcre2_pattern_info(code, PCRE2_INFO_CAPTURECOUNT, &groups);
  const auto fail = [&](std::size_t at, std::string reason) {
    problem = {true, CharacterPosition(replacement, at), std::move(reason)};
    return false;
  };
  for (std::size_t i = 0; i < replacement.size(); ++i) {
    if (replacement[i] != '$') continue;
    const std::size_t at = i;
    if (i + 1 >= replacement.size()) return fail(at, "a \"$\" at the end names no group (write \"$$\" for a dollar)");
    const char next = replacement[i + 1];
    if (next == '$') {
      ++i;
      continue;
    }
    std::string name;
    if (std::isdigit(static_cast<unsigned char>(next))) {
      std::size_t j = i + 1;
      while (j < replacement.size() && std::isdigit(static_cast<unsigned char>(replacement[j])))
        name += replacement[j++];
      i = j - 1;
    } else if (next == '{') {
      const std::size_t close = replacement.find('}', i + 2);
      if (close == std::string_view::npos) return fail(at, "\"${\" is not closed by \"}\"");
      name = std::string(replacement.substr(i + 2, close - i - 2));
      i = close;
    } else {
      return fail(at, "\"$\" must be followed by a group number, {name} or another \"$\"");
    }
    if (name.empty()) return fail(at, "\"${}\" names no group");
    if (std::isdigit(static_cast<unsigned char>(name[0]))) {
      if (name.size() > 5 || std::stoul(name) > groups) {
        return fail(at, "there is no group " + name + " (the pattern has " + std::to_string(groups) + ")");
      }
    } else if (pcre2_substring_number_from_name(code, reinterpret_cast<PCRE2_SPTR>(name.c_str())) < 0) {
      return fail(at, "there is no group named \"" + name + "\"");
    }
  }
  return true;
}

}  // namespace

RegexReplace::RegexReplace(std::shared_ptr<const Compiled> compiled, std::string replacement)
    : compiled_(std::move(compiled)), replacement_(std::move(replacement)) {}

std::optional<RegexReplace> RegexReplace::Compile(std::string_view pattern, std::string_view replacement,
                                                  RegexProblem& problem) {
  int error = 0;
  PCRE2_SIZE offset = 0;
  auto compiled = std::make_shared<Compiled>();
  compiled->code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(),
                                 PCRE2_UTF | PCRE2_MATCH_INVALID_UTF, &error, &offset, nullptr);
  if (compiled->code == nullptr) {
    problem = {false, CharacterPosition(pattern, offset), ErrorText(error)};
    return std::nullopt;
  }
  if (!CheckReplacement(compiled->code, replacement, problem)) return std::nullopt;
  return RegexReplace(std::move(compiled), std::string(replacement));
}

std::string RegexReplace::ReplaceAll(std::string_view text) const {
  // Room for the usual case first; PCRE2 says how much it needs otherwise.
  PCRE2_SIZE size = text.size() * 2 + replacement_.size() + 64;
  std::string out(size, '\0');
  const auto substitute = [&](PCRE2_SIZE& length) {
    return pcre2_substitute(compiled_->code, reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0,
                            PCRE2_SUBSTITUTE_GLOBAL | PCRE2_SUBSTITUTE_OVERFLOW_LENGTH, nullptr, nullptr,
                            reinterpret_cast<PCRE2_SPTR>(replacement_.data()), replacement_.size(),
                            reinterpret_cast<PCRE2_UCHAR*>(out.data()), &length);
  };
  PCRE2_SIZE length = size;
  int result = substitute(length);
  if (result == PCRE2_ERROR_NOMEMORY) {
    out.assign(length, '\0');
    result = substitute(length);
  }
  if (result < 0) throw RuntimeFault("Regular expression: " + ErrorText(result));
  out.resize(length);
  return out;
}

}  // namespace nomra::base
