#pragma once
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nomra::testing {

// A JSON value as the tests read nomra-cli's output.
struct JsonValue {
  enum class Kind { Null, Boolean, Number, String, Array, Object };
  Kind kind = Kind::Null;
  bool boolean = false;
  double number = 0;
  std::string text;  // "\udcXX" comes back as the byte XX, as the engine holds it
  std::vector<JsonValue> items;
  std::vector<std::pair<std::string, JsonValue>> members;

  // Throw std::runtime_error when the member or item is missing.
  const JsonValue& operator[](std::string_view name) const;
  const JsonValue& operator[](std::size_t index) const;
  bool Has(std::string_view name) const;
};

// Reads exactly one JSON document (white space around it allowed); anything
// malformed, text that isn't valid UTF-8, or more than one document throws
// std::runtime_error.
JsonValue ParseJson(std::string_view document);

}  // namespace nomra::testing
