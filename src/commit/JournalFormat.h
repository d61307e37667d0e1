#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace nomra::commit {

// The text of the commit journal. A file name may hold any byte but NUL, a
// tab or a line break included, so every path is written as its length in
// bytes, a colon and the bytes themselves; a record ends with a line break
// that must follow its last path exactly, which tells a whole record from a
// torn one.
//
//   NomraCommitJournal 1\n
//   P <source> <final>\n            one per row the batch will rename
//   T <source> <temporary> <final>\n  a move to a temporary name: those foreseen
//                                   follow the plan; one the plan didn't
//                                   foresee is appended just before it
//
// A "T" record says a move may have happened, not that it did: a foreseen
// one can stay undone (a crash came first, or the final name was free by
// then).
// where each <path> is e.g. "9:/d/a.txt".

inline constexpr std::string_view kJournalHeader = "NomraCommitJournal 1\n";

struct JournalPlanEntry {
  std::string source;
  std::string final;
};

struct JournalTemporaryEntry {
  std::string source;
  std::string temporary;
  std::string final;
};

std::string JournalPlanRecord(std::string_view source, std::string_view final);
std::string JournalTemporaryRecord(std::string_view source, std::string_view temporary, std::string_view final);

// What could be read back. Records are taken in order up to the first one
// that isn't whole: one cut off by the end of the file (a crash while it was
// written) is dropped without a word; anything else stops the reading and is
// told by `damagedAt`.
struct JournalContent {
  bool headerOk = false;
  std::vector<JournalPlanEntry> plan;
  std::vector<JournalTemporaryEntry> temporaries;
  bool tornTail = false;
  std::size_t damagedAt = std::string::npos;  // byte offset of the first unreadable record
};

JournalContent ParseJournal(std::string_view text);

}  // namespace nomra::commit
