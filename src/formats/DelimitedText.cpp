#include "formats/DelimitedText.h"

#include <algorithm>
#include <clocale>
#include <cstdio>

#include "base/Cp1252.h"
#include "formats/AtomicFile.h"
#include "formats/IniLines.h"

namespace nomra::formats {

namespace {

constexpr char kQuote = '"';
constexpr char kBlank = ' ';
constexpr char kTextMark = '|';
constexpr char kRowKeyPrefix[] = "K";
constexpr char kTemporaryEnding[] = ".tmp";

std::vector<std::string> ReadLines(platform::FileSystem& fileSystem, const std::string& file) {
  const auto bytes = fileSystem.ReadFile(file);
  if (!bytes) return {};
  return SplitLines(base::DecodeTextFile(*bytes));
}

bool EachLineHolds(const std::vector<std::string>& lines, std::string_view what) {
  return std::all_of(lines.begin(), lines.end(),
                     [what](const std::string& line) { return line.find(what) != std::string::npos; });
}

// Walks a quoted field from `from` (behind the opening quote): two quotes in
// a row are one quote of the text; calls `atQuote` with the position of
// every other quote until it returns true. Returns that position, or npos.
template <typename AtQuote>
std::size_t FindLoneQuote(std::string_view line, std::size_t from, AtQuote atQuote) {
  for (std::size_t i = from; i < line.size(); ++i) {
    if (line[i] != kQuote) continue;
    if (i + 1 < line.size() && line[i + 1] == kQuote) {
      ++i;
      continue;
    }
    if (atQuote(i)) return i;
  }
  return std::string_view::npos;
}

std::string Unquoted(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    out.push_back(text[i]);
    if (text[i] == kQuote && i + 1 < text.size() && text[i + 1] == kQuote) ++i;
  }
  return out;
}

// A quoted field whose opening quote stands at `start`. `next` becomes the
// position of the separator behind it, or npos when none follows.
std::string ReadQuotedField(std::string_view line, std::size_t start, std::string_view separator, std::size_t& next) {
  const std::size_t from = start + 1;
  const std::size_t closing =
      FindLoneQuote(line, from, [&](std::size_t quote) { return line.substr(quote + 1).starts_with(separator); });
  if (closing != std::string_view::npos) {
    next = closing + 1;
    return Unquoted(line.substr(from, closing - from));
  }
  // Without a quote before a separator the field ends at the next quote, and
  // what stands between it and the separator is dropped.
  const std::size_t quote = FindLoneQuote(line, from, [](std::size_t) { return true; });
  if (quote == std::string_view::npos) {
    next = std::string_view::npos;
    return Unquoted(line.substr(from));
  }
  next = line.find(separator, quote + 1);
  return Unquoted(line.substr(from, quote - from));
}

bool IsNumber(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++digits;
  if (i < text.size() && (text[i] == '.' || text[i] == ',')) {
    ++i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++digits;
  }
  return digits > 0 && i == text.size();
}

std::string DecimalSeparator() {
  const std::lconv* conv = std::localeconv();
  if (conv != nullptr && conv->decimal_point != nullptr && conv->decimal_point[0] != '\0') return conv->decimal_point;
  return ".";
}

std::string WithLocaleDecimal(std::string field) {
  if (!IsNumber(field)) return field;
  const std::string decimal = DecimalSeparator();
  std::string out;
  for (const char c : field) {
    if (c == '.' || c == ',') {
      out += decimal;
    } else {
      out.push_back(c);
    }
  }
  return out;
}

// Quotes go around a field that holds the separator, and around one that a
// reader would otherwise misread: one that starts with a blank or a quote.
// Inside quotes a quote is doubled, so the field's text survives whole.
std::string FieldText(std::string_view field, std::string_view separator) {
  const bool quoted = field.find(separator) != std::string_view::npos ||
                      (!field.empty() && (field.front() == kBlank || field.front() == kQuote));
  if (!quoted) return std::string(field);
  std::string out(1, kQuote);
  for (const char c : field) {
    out.push_back(c);
    if (c == kQuote) out.push_back(kQuote);
  }
  out.push_back(kQuote);
  return out;
}

std::string LineOf(const std::vector<std::string>& fields, std::string_view separator) {
  std::string line;
  for (const std::string& field : fields) line.append(FieldText(field, separator)).append(separator);
  return line;
}

// Loading keeps of field 0 only what stands behind its first "|", so a text
// that holds one is written behind a "|" of its own.
std::string RowTextField(const std::string& text) {
  return text.find(kTextMark) == std::string::npos ? text : kTextMark + text;
}

bool WriteLines(platform::FileSystem& fileSystem, const std::string& file, const std::vector<std::string>& lines) {
  return WriteThroughTemporary(fileSystem, file, file + kTemporaryEnding, JoinLines(lines)) == 0;
}

}  // namespace

std::string DetectSeparator(platform::FileSystem& fileSystem, const std::string& file) {
  const std::vector<std::string> lines = ReadLines(fileSystem, file);
  if (lines.empty()) return {};
  const bool commas = EachLineHolds(lines, ",");
  const bool semicolons = EachLineHolds(lines, ";");
  if (EachLineHolds(lines, "\t") && !commas && !semicolons) return "\t";
  if (commas && !semicolons) return ",";
  if (semicolons) return ";";
  return {};
}

std::vector<std::string> SplitDelimitedLine(std::string_view line, std::string_view separator) {
  if (separator.empty()) return {std::string(line)};
  std::vector<std::string> fields;
  std::size_t pos = 0;
  for (;;) {
    while (pos < line.size() && line[pos] == kBlank) ++pos;
    std::size_t next;
    if (pos < line.size() && line[pos] == kQuote) {
      fields.push_back(ReadQuotedField(line, pos, separator, next));
    } else {
      next = line.find(separator, pos);
      fields.emplace_back(line.substr(pos, next == std::string_view::npos ? std::string_view::npos : next - pos));
    }
    if (next == std::string_view::npos) return fields;
    pos = next + separator.size();
  }
}

void LoadListFromFile(platform::FileSystem& fileSystem, const std::string& file, bool firstLineIsData,
                      DelimitedList& list) {
  const std::string separator = DetectSeparator(fileSystem, file);
  if (separator.empty()) return;
  list.rows.clear();
  const std::vector<std::string> lines = ReadLines(fileSystem, file);
  for (std::size_t n = firstLineIsData ? 0 : 1; n < lines.size(); ++n) {
    std::vector<std::string> fields = SplitDelimitedLine(lines[n], separator);
    if (base::TrimBlanks(fields.front()).empty()) continue;
    for (std::string& field : fields) field = WithLocaleDecimal(std::move(field));
    if (list.columns > 0) fields.resize(static_cast<std::size_t>(list.columns));

    DelimitedRow row;
    row.key = kRowKeyPrefix + std::to_string(n + 1);
    const std::size_t mark = fields.front().find(kTextMark);
    row.text = mark == std::string::npos ? fields.front() : fields.front().substr(mark + 1);
    row.subItems.assign(std::make_move_iterator(fields.begin() + 1), std::make_move_iterator(fields.end()));
    list.rows.push_back(std::move(row));
  }
}

bool SaveListToFile(platform::FileSystem& fileSystem, const std::string& file, std::string_view separator,
                    std::string_view header, const DelimitedList& list) {
  std::vector<std::string> lines;
  if (!header.empty()) lines.emplace_back(header);
  for (const DelimitedRow& row : list.rows) {
    std::vector<std::string> fields{RowTextField(row.text)};
    fields.insert(fields.end(), row.subItems.begin(), row.subItems.end());
    lines.push_back(LineOf(fields, separator));
  }
  return WriteLines(fileSystem, file, lines);
}

bool SaveLineToFile(platform::FileSystem& fileSystem, const std::string& file, std::string_view separator,
                    const std::vector<std::string>& values) {
  return WriteLines(fileSystem, file, {LineOf(values, separator)});
}

}  // namespace nomra::formats
