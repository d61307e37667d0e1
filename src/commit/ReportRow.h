#pragma once
#include <string>
#include <vector>

#include "commit/RenameFailure.h"

namespace nomra::commit {

// One rename that did not happen. The front end looks the text up by its key
// and fills "%1" (the old path) and "%2" (the new path), both already in
// double quotes.
struct ReportRow {
  int number = 0;  // running number within one commit, from 1
  std::string rowKey;
  std::string textKey;
  std::vector<std::string> arguments;
  std::string systemText;
  // What a row about no rename at all concerns, e.g. "the commit journal";
  // empty for the rows of renames and of the protocol.
  std::string about;

  // A plain English line until the language texts are read, e.g.
  // "/d/a.txt" -> "/d/b.txt": the target exists
  std::string Describe() const;
};

// The row of a rename from `from` to `to` that failed: the message chosen by
// the failure's kind, both paths in double quotes, and the system's text of a
// failure no number describes.
ReportRow FailedRenameRow(const base::Failure& failure, int number, std::string rowKey, const std::string& from,
                          const std::string& to);

}  // namespace nomra::commit
