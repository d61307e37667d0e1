#include "support/JsonReader.h"

#include <cstdlib>
#include <stdexcept>

#include "base/Utf8.h"

namespace nomra::testing {

namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  JsonValue Document() {
    JsonValue value = Value();
    SkipBlanks();
    if (pos_ != text_.size()) Fail("text after the document");
    return value;
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw std::runtime_error("JSON: " + what + " at offset " + std::to_string(pos_));
  }

  void SkipBlanks() {
    while (pos_ < text_.size() &&
           (text_[pos_] == ' ' || text_[pos_] == '\n' || text_[pos_] == '\r' || text_[pos_] == '\t')) {
      ++pos_;
    }
  }

  char Peek() {
    SkipBlanks();
    if (pos_ >= text_.size()) Fail("unexpected end");
    return text_[pos_];
  }

  void Expect(char c) {
    if (Peek() != c) Fail(std::string("expected '") + c + "'");
    ++pos_;
  }

  bool TakeWord(std::string_view word) {
    if (text_.substr(pos_, word.size()) != word) return false;
    pos_ += word.size();
    return true;
  }

  JsonValue Value() {
    const char c = Peek();
    JsonValue value;
    if (c == '{') return Object();
    if (c == '[') return Array();
    if (c == '"') {
      value.kind = JsonValue::Kind::String;
      value.text = String();
    } else if (TakeWord("true")) {
      value.kind = JsonValue::Kind::Boolean;
      value.boolean = true;
    } else if (TakeWord("false")) {
      value.kind = JsonValue::Kind::Boolean;
    } else if (TakeWord("null")) {
      value.kind = JsonValue::Kind::Null;
    } else {
      value.kind = JsonValue::Kind::Number;
      value.number = Number();
    }
    return value;
  }

  double Number() {
    const std::size_t start = pos_;
    while (pos_ < text_.size() && std::string_view("+-0123456789.eE").find(text_[pos_]) != std::string_view::npos) {
      ++pos_;
    }
    if (pos_ == start) Fail("unexpected character");
    const std::string digits(text_.substr(start, pos_ - start));
    char* end = nullptr;
    const double number = std::strtod(digits.c_str(), &end);
    if (end != digits.c_str() + digits.size()) Fail("bad number");
    return number;
  }

  JsonValue Array() {
    JsonValue value;
    value.kind = JsonValue::Kind::Array;
    Expect('[');
    if (Peek() == ']') {
      ++pos_;
      return value;
    }
    for (;;) {
      value.items.push_back(Value());
      if (Peek() == ']') break;
      Expect(',');
    }
    ++pos_;
    return value;
  }

  JsonValue Object() {
    JsonValue value;
    value.kind = JsonValue::Kind::Object;
    Expect('{');
    if (Peek() == '}') {
      ++pos_;
      return value;
    }
    for (;;) {
      if (Peek() != '"') Fail("expected a member name");
      std::string name = String();
      Expect(':');
      value.members.emplace_back(std::move(name), Value());
      if (Peek() == '}') break;
      Expect(',');
    }
    ++pos_;
    return value;
  }

  char32_t HexUnit() {
    if (pos_ + 4 > text_.size()) Fail("short \\u escape");
    char32_t unit = 0;
    for (int i = 0; i < 4; ++i) {
      const char c = text_[pos_++];
      unit <<= 4;
      if (c >= '0' && c <= '9') {
        unit |= static_cast<char32_t>(c - '0');
      } else if (c >= 'a' && c <= 'f') {
        unit |= static_cast<char32_t>(c - 'a' + 10);
      } else if (c >= 'A' && c <= 'F') {
        unit |= static_cast<char32_t>(c - 'A' + 10);
      } else {
        Fail("bad hex digit");
      }
    }
    return unit;
  }

  char32_t UnicodeEscape() {
    const char32_t unit = HexUnit();
    if (unit >= 0xD800 && unit <= 0xDBFF) {
      if (!TakeWord("\\u")) Fail("high surrogate alone");
      const char32_t low = HexUnit();
      if (low < 0xDC00 || low > 0xDFFF) Fail("high surrogate without its low half");
      return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    if (unit >= 0xDC00 && unit <= 0xDFFF && !base::IsRawByte(unit)) Fail("lone surrogate");
    return unit;
  }

  std::string String() {
    Expect('"');
    std::string out;
    for (;;) {
      if (pos_ >= text_.size()) Fail("unterminated string");
      const char c = text_[pos_++];
      if (c == '"') return out;
      if (static_cast<unsigned char>(c) < 0x20) Fail("raw control character in a string");
      if (c != '\\') {
        out += c;
        continue;
      }
      if (pos_ >= text_.size()) Fail("unterminated escape");
      const char escaped = text_[pos_++];
      switch (escaped) {
        case '"':
        case '\\':
        case '/': out += escaped; break;
        case 'b': out += '\b'; break;
        case 'f': out += '\f'; break;
        case 'n': out += '\n'; break;
        case 'r': out += '\r'; break;
        case 't': out += '\t'; break;
        case 'u': base::AppendChar(out, UnicodeEscape()); break;
        default: Fail("unknown escape");
      }
    }
  }

  std::string_view text_;
  std::size_t pos_ = 0;
};

}  // namespace

const JsonValue& JsonValue::operator[](std::string_view name) const {
  for (const auto& [memberName, value] : members) {
    if (memberName == name) return value;
  }
  throw std::runtime_error("JSON: no member \"" + std::string(name) + "\"");
}

const JsonValue& JsonValue::operator[](std::size_t index) const {
  if (index >= items.size()) throw std::runtime_error("JSON: no item " + std::to_string(index));
  return items[index];
}

bool JsonValue::Has(std::string_view name) const {
  for (const auto& member : members) {
    if (member.first == name) return true;
  }
  return false;
}

JsonValue ParseJson(std::string_view document) {
  if (!base::IsValidUtf8(document)) throw std::runtime_error("JSON: the document is not valid UTF-8");
  return Reader(document).Document();
}

}  // namespace nomra::testing
