#include "actions/NumberSystems.h"

#include <cctype>
#include <cstdio>

#include "structure/LanguageNumber.h"

namespace nomra::actions {

std::string NumberToText(std::int32_t value, NumberSystem system) {
  if (value == 0) return "0";
  switch (system) {
    case NumberSystem::Decimal: return std::to_string(value);
    case NumberSystem::Hexadecimal: {
      char buffer[16];
      std::snprintf(buffer, sizeof buffer, "%X", static_cast<std::uint32_t>(value));
      return buffer;
    }
    case NumberSystem::UpperLetters:
    case NumberSystem::LowerLetters: {
      std::int64_t n = value < 0 ? -static_cast<std::int64_t>(value) : value;
      std::string letters;
      while (n >= 1) {
        std::int64_t r = n % 26;
        if (r == 0) r = 26;
        letters.insert(letters.begin(), static_cast<char>(r + 64));
        n = (n - 1) / 26;
      }
      if (system == NumberSystem::LowerLetters) {
        for (char& c : letters) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      }
      return (value < 0 ? "-" : "") + letters;
    }
  }
  return std::to_string(value);
}

std::string TextToNumber(std::string_view text, NumberSystem system) {
  if (text.empty() || text == "-") return {};
  const bool negative = text.front() == '-';
  const std::string_view digits = negative ? text.substr(1) : text;
  const std::string sign = negative ? "-" : "";
  switch (system) {
    case NumberSystem::Decimal: return structure::ParseLanguageNumber(text) ? std::string(text) : std::string();
    case NumberSystem::Hexadecimal: {
      std::uint64_t value = 0;
      for (const char c : digits) {
        if (!std::isxdigit(static_cast<unsigned char>(c))) return {};
        value = value * 16 + static_cast<std::uint64_t>(std::isdigit(static_cast<unsigned char>(c))
                                                            ? c - '0'
                                                            : std::toupper(static_cast<unsigned char>(c)) - 'A' + 10);
        if (value > 0xFFFFFFFFull) return {};
      }
      return sign + std::to_string(value);
    }
    case NumberSystem::UpperLetters:
    case NumberSystem::LowerLetters: {
      std::int64_t value = 0;
      std::int64_t place = 1;
      for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        value += (std::toupper(static_cast<unsigned char>(*it)) - 64) * place;
        if (place > (std::int64_t{1} << 40) || value > (std::int64_t{1} << 50)) return {};
        place *= 26;
      }
      return sign + std::to_string(value);
    }
  }
  return {};
}

}  // namespace nomra::actions
