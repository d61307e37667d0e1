#include "commit/JournalFormat.h"

namespace nomra::commit {

namespace {

// More digits than any path length needs; a longer run is damage, and the
// limit keeps the number from overflowing.
constexpr std::size_t kMaxLengthDigits = 9;

void AppendPath(std::string& out, std::string_view path) {
  out += ' ';
  out += std::to_string(path.size());
  out += ':';
  out += path;
}

enum class Read { Ok, Torn, Damaged };

// Reads " <length>:<bytes>" at `at`, moving `at` past it.
Read ReadPath(std::string_view text, std::size_t& at, std::string& path) {
  if (at >= text.size()) return Read::Torn;
  if (text[at] != ' ') return Read::Damaged;
  ++at;
  std::size_t length = 0;
  std::size_t digits = 0;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
    if (++digits > kMaxLengthDigits) return Read::Damaged;
    length = length * 10 + static_cast<std::size_t>(text[at] - '0');
    ++at;
  }
  if (at >= text.size()) return Read::Torn;
  if (digits == 0 || text[at] != ':') return Read::Damaged;
  ++at;
  if (text.size() - at < length) return Read::Torn;
  path.assign(text.substr(at, length));
  at += length;
  // Only absolute paths without NUL were ever written.
  if (path.empty() || path.front() != '/' || path.find('\0') != std::string::npos) return Read::Damaged;
  return Read::Ok;
}

Read ReadPaths(std::string_view text, std::size_t& at, std::vector<std::string>& paths) {
  for (std::string& path : paths) {
    if (const Read read = ReadPath(text, at, path); read != Read::Ok) return read;
  }
  if (at >= text.size()) return Read::Torn;
  if (text[at] != '\n') return Read::Damaged;
  ++at;
  return Read::Ok;
}

}  // namespace

std::string JournalPlanRecord(std::string_view source, std::string_view final) {
  std::string record = "P";
  AppendPath(record, source);
  AppendPath(record, final);
  record += '\n';
  return record;
}

std::string JournalTemporaryRecord(std::string_view source, std::string_view temporary, std::string_view final) {
  std::string record = "T";
  AppendPath(record, source);
  AppendPath(record, temporary);
  AppendPath(record, final);
  record += '\n';
  return record;
}

JournalContent ParseJournal(std::string_view text) {
  JournalContent content;
  if (!text.starts_with(kJournalHeader)) {
    // A header cut short is a crash before the first record was whole.
    content.tornTail = kJournalHeader.starts_with(text);
    if (!content.tornTail) content.damagedAt = 0;
    return content;
  }
  content.headerOk = true;
  std::size_t at = kJournalHeader.size();
  while (at < text.size()) {
    const std::size_t start = at;
    const char kind = text[at++];
    std::vector<std::string> paths(kind == 'T' ? 3 : 2);
    const Read read = kind == 'P' || kind == 'T' ? ReadPaths(text, at, paths) : Read::Damaged;
    if (read == Read::Torn) {
      content.tornTail = true;
      break;
    }
    if (read == Read::Damaged) {
      content.damagedAt = start;
      break;
    }
    if (kind == 'P') {
      content.plan.push_back({std::move(paths[0]), std::move(paths[1])});
    } else {
      content.temporaries.push_back({std::move(paths[0]), std::move(paths[1]), std::move(paths[2])});
    }
  }
  return content;
}

}  // namespace nomra::commit
