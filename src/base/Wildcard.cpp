#include "base/Wildcard.h"

#include <string>
#include <vector>

#include "base/CaseMap.h"
#include "base/Utf8.h"

namespace nomra::base {

namespace {

enum class TokenKind { AnyRun, AnyOne, Digit, Literal, Set };

struct Token {
  explicit Token(TokenKind k, char32_t c = 0) : kind(k), literal(c) {}
  TokenKind kind;
  char32_t literal = 0;
  std::u32string set;  // pairs of lower-cased [from, to]
  bool negated = false;
};

std::vector<Token> Compile(const std::u32string& p) {
  std::vector<Token> tokens;
  for (std::size_t i = 0; i < p.size(); ++i) {
    const char32_t c = p[i];
    if (c == U'*') {
      if (tokens.empty() || tokens.back().kind != TokenKind::AnyRun) tokens.emplace_back(TokenKind::AnyRun);
    } else if (c == U'?') {
      tokens.emplace_back(TokenKind::AnyOne);
    } else if (c == U'#') {
      tokens.emplace_back(TokenKind::Digit);
    } else if (c == U'[' && p.find(U']', i + 1) != std::u32string::npos) {
      const std::size_t close = p.find(U']', i + 1);
      Token t(TokenKind::Set);
      std::size_t k = i + 1;
      if (k < close && p[k] == U'!') {
        t.negated = true;
        ++k;
      }
      while (k < close) {
        char32_t from = ToLowerChar(p[k]);
        char32_t to = from;
        if (k + 2 < close && p[k + 1] == U'-') {
          to = ToLowerChar(p[k + 2]);
          k += 3;
        } else {
          k += 1;
        }
        t.set.push_back(from);
        t.set.push_back(to);
      }
      tokens.push_back(std::move(t));
      i = close;
    } else {
      tokens.emplace_back(TokenKind::Literal, ToLowerChar(c));
    }
  }
  return tokens;
}

bool MatchesOne(const Token& t, char32_t lowered) {
  switch (t.kind) {
    case TokenKind::AnyOne: return true;
    case TokenKind::Digit: return lowered >= U'0' && lowered <= U'9';
    case TokenKind::Literal: return lowered == t.literal;
    case TokenKind::Set: {
      bool inSet = false;
      for (std::size_t k = 0; k + 1 < t.set.size(); k += 2) {
        if (lowered >= t.set[k] && lowered <= t.set[k + 1]) inSet = true;
      }
      return inSet != t.negated;
    }
    case TokenKind::AnyRun: break;
  }
  return false;
}

}  // namespace

bool MatchesWildcard(std::string_view text, std::string_view pattern) {
  const std::vector<Token> tokens = Compile(ToChars(pattern));
  std::u32string s = ToChars(text);
  for (char32_t& c : s) c = ToLowerChar(c);

  // Every token but "*" takes exactly one character, so one remembered
  // fall-back point for the last "*" is enough: linear in practice, never
  // exponential.
  std::size_t si = 0;
  std::size_t ti = 0;
  std::size_t starToken = std::string::npos;
  std::size_t starText = 0;
  while (si < s.size()) {
    if (ti < tokens.size() && tokens[ti].kind == TokenKind::AnyRun) {
      starToken = ti++;
      starText = si;
    } else if (ti < tokens.size() && MatchesOne(tokens[ti], s[si])) {
      ++ti;
      ++si;
    } else if (starToken != std::string::npos) {
      ti = starToken + 1;
      si = ++starText;
    } else {
      return false;
    }
  }
  while (ti < tokens.size() && tokens[ti].kind == TokenKind::AnyRun) ++ti;
  return ti == tokens.size();
}

}  // namespace nomra::base
