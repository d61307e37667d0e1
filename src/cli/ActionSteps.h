#pragma once
#include <string>

#include "cli/Invocation.h"

namespace nomra::cli {

// The renaming actions as options. Each fills the inputs of the action's
// dialog as a script step would (everything else at the dialog's defaults)
// and runs it on the scope, so an option and a script step give the same
// names. Bad values are usage errors found before anything runs.

// --replace FIND WITH: every FIND in the stems, case-sensitive; an empty
// WITH removes it.
void AddReplace(Invocation& invocation, const std::string& find, const std::string& with);
// --replace-regex PATTERN WITH: the same with a regular expression.
void AddReplaceRegex(Invocation& invocation, const std::string& pattern, const std::string& with);
// --number SPEC: KEY=VALUE pairs separated by commas.
void AddNumber(Invocation& invocation, const std::string& spec);
// --trim first:N | last:N | range:A:B | short | path:N
void AddTrim(Invocation& invocation, const std::string& spec);

}  // namespace nomra::cli
