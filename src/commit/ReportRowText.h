#pragma once
#include <string>

#include "commit/ReportRow.h"
#include "lang/MessageCatalog.h"

namespace nomra::commit {

// A row that was not renamed, told in the language's words: the message of
// its key with its arguments, the system's words after it, and the row it
// is about before it. Without a text for the key, the row's own
// description stands in.
std::string ReportRowText(const ReportRow& row, const lang::MessageCatalog& catalog);

}  // namespace nomra::commit
