#pragma once
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace nomra::testing {

// One JSON object whose values are strings, numbers, true, false or null,
// as scripts/mp3-oracle.py writes it: each value as text (strings decoded to
// UTF-8, numbers as written, null as ""). Nothing when the text is not such
// an object, so a broken oracle fails the test that reads it.
class FlatJson {
 public:
  static std::optional<std::map<std::string, std::string>> Parse(std::string_view text) {
    FlatJson p(text);
    std::map<std::string, std::string> out;
    p.Blanks();
    if (!p.Take('{')) return std::nullopt;
    p.Blanks();
    if (p.Take('}')) return p.AtEnd() ? std::optional(out) : std::nullopt;
    for (;;) {
      p.Blanks();
      std::string key, value;
      if (!p.String(key)) return std::nullopt;
      p.Blanks();
      if (!p.Take(':')) return std::nullopt;
      p.Blanks();
      if (!p.Value(value)) return std::nullopt;
      out[key] = value;
      p.Blanks();
      if (p.Take('}')) return p.AtEnd() ? std::optional(out) : std::nullopt;
      if (!p.Take(',')) return std::nullopt;
    }
  }

 private:
  explicit FlatJson(std::string_view text) : text_(text) {}

  bool AtEnd() {
    Blanks();
    return at_ == text_.size();
  }
  void Blanks() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\n' || text_[at_] == '\r' || text_[at_] == '\t'))
      ++at_;
  }
  bool Take(char c) {
    if (at_ >= text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }
  bool Word(std::string_view word) {
    if (text_.substr(at_, word.size()) != word) return false;
    at_ += word.size();
    return true;
  }

  bool Value(std::string& out) {
    if (at_ < text_.size() && text_[at_] == '"') return String(out);
    if (Word("true")) return out = "true", true;
    if (Word("false")) return out = "false", true;
    if (Word("null")) return out.clear(), true;
    const std::size_t start = at_;
    while (at_ < text_.size() && std::string_view("+-.0123456789eE").find(text_[at_]) != std::string_view::npos) ++at_;
    out.assign(text_.substr(start, at_ - start));
    return at_ > start;
  }

  bool Hex4(std::uint32_t& unit) {
    if (at_ + 4 > text_.size()) return false;
    unit = 0;
    for (int k = 0; k < 4; ++k) {
      const char c = text_[at_++];
      unit <<= 4;
      if (c >= '0' && c <= '9') unit |= static_cast<std::uint32_t>(c - '0');
      else if (c >= 'a' && c <= 'f') unit |= static_cast<std::uint32_t>(c - 'a' + 10);
      else if (c >= 'A' && c <= 'F') unit |= static_cast<std::uint32_t>(c - 'A' + 10);
      else return false;
    }
    return true;
  }

  static void Utf8(std::uint32_t cp, std::string& out) {
    if (cp < 0x80) {
      out += static_cast<char>(cp);
    } else if (cp < 0x800) {
      out += static_cast<char>(0xC0 | (cp >> 6));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
      out += static_cast<char>(0xE0 | (cp >> 12));
      out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (cp >> 18));
      out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    }
  }

  bool String(std::string& out) {
    out.clear();
    if (!Take('"')) return false;
    while (at_ < text_.size()) {
      const char c = text_[at_++];
      if (c == '"') return true;
      if (c != '\\') {
        out += c;
        continue;
      }
      if (at_ >= text_.size()) return false;
      const char e = text_[at_++];
      switch (e) {
        case '"': out += '"'; break;
        case '\\': out += '\\'; break;
        case '/': out += '/'; break;
        case 'b': out += '\b'; break;
        case 'f': out += '\f'; break;
        case 'n': out += '\n'; break;
        case 'r': out += '\r'; break;
        case 't': out += '\t'; break;
        case 'u': {
          std::uint32_t unit = 0;
          if (!Hex4(unit)) return false;
          // A high surrogate takes the low one of the next escape with it.
          if (unit >= 0xD800 && unit < 0xDC00) {
            std::uint32_t low = 0;
            if (!Word("\\u") || !Hex4(low) || low < 0xDC00 || low >= 0xE000) return false;
            unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
          }
          Utf8(unit, out);
          break;
        }
        default: return false;
      }
    }
    return false;
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace nomra::testing
