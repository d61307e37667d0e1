#pragma once
#include <string>
#include <string_view>

namespace nomra::core {

// The letters the case actions know, built at start from the setting
// "letters" of section "Settings".
struct CharacterSets {
  std::string letterSetLower;
  std::string letterSetUpper;
  std::string upperWithDash;
  std::string lowerWithDash;
  std::string digitSet = "0123456789";
  std::string signedDigitSet = "-0123456789";
  std::string hexDigitSet = "0123456789abcdefABCDEF";
};

inline constexpr std::string_view kDefaultLetters = "abcdefghijklmnopqrstuvwxyzäöüß";

// `letters` lower-cased, or the default when it is empty after trimming.
// The upper set holds, in order, the upper-case form of each letter that has
// one of its own ("ß" has none and stays out).
CharacterSets BuildCharacterSets(std::string_view letters);

}  // namespace nomra::core
