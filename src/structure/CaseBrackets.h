#pragma once
#include <string>

namespace nomra::structure {

// The first <IntChar> pair goes, with what it holds, when it holds nothing
// or only an "x" between blanks (what an empty picture size leaves);
// otherwise both marks stay for the caller.
void ResolveIntCharPair(std::string& s);

// The case brackets, code by code ("UC", "LC", "1C", "WC", "SC"), pair after
// pair: the text between an opening and a closing mark is converted and the
// marks go. A mark without its partner stays as text. Throws RuntimeFault
// when a closing mark stands before its opening one.
void ResolveCaseBrackets(std::string& s);

}  // namespace nomra::structure
