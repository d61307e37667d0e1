#pragma once
#include <string>
#include <string_view>

namespace nomra::base {

// Case mapping that gives the Western code page's (Windows-1252) results on
// its own characters and Unicode's beyond them. A letter whose partner the
// code page lacks keeps its form: "ß" and "µ" stay as they are in upper case,
// and "ÿ" pairs with "Ÿ". Stray bytes of names that are not UTF-8 never change.
char32_t ToUpperChar(char32_t c);
char32_t ToLowerChar(char32_t c);

std::string ToUpper(std::string_view s);
std::string ToLower(std::string_view s);
// Appends the lower-case form; plain ASCII goes through without decoding.
void AppendLowerCase(std::string& out, std::string_view s);

// Comparison without regard to case, by the same rule (lower-case both).
bool EqualsNoCase(std::string_view a, std::string_view b);
int CompareNoCase(std::string_view a, std::string_view b);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);

}  // namespace nomra::base
