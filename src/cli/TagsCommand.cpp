#include "cli/TagsCommand.h"

#include <cstdio>

#include "cli/ExitStatus.h"
#include "cli/FileTagsReport.h"
#include "cli/JsonText.h"

namespace nomra::cli {

namespace {

// Control characters of a tag (a NUL inside a comment, the encoding byte
// of a frame the reader doesn't strip) shown as \xNN, so a line stays one
// line and the bytes are seen.
std::string Visible(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
      char escaped[5];
      std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(c));
      out += escaped;
    } else {
      out += c;
    }
  }
  return out;
}

void WriteTextGroup(std::ostream& out, const std::string& title, const std::optional<FileTagsReport::Fields>& fields,
                    const char* absent) {
  out << "  " << title << (fields ? "" : absent) << '\n';
  if (!fields) return;
  for (const auto& [key, value] : *fields) {
    out << "    " << key << std::string(key.size() < 20 ? 20 - key.size() : 1, ' ') << Visible(value) << '\n';
  }
}

void WriteText(std::ostream& out, const FileTagsReport& report) {
  out << report.path << '\n';
  WriteTextGroup(out, "MPEG", report.mpeg, ": no audio frame found");
  WriteTextGroup(out, "ID3v1", report.id3v1, ": none");
  WriteTextGroup(out, "ID3v2", report.id3v2, ": none");
  WriteTextGroup(out, "EXIF", report.exif, ": none");
  WriteTextGroup(out, "Tags", report.tags, "");
}

void WriteJsonFields(std::ostream& out, const std::optional<FileTagsReport::Fields>& fields) {
  if (!fields) {
    out << "null";
    return;
  }
  out << '{';
  bool first = true;
  for (const auto& [key, value] : *fields) {
    out << (first ? "" : ", ") << JsonString(key) << ": " << JsonString(value);
    first = false;
  }
  out << '}';
}

void WriteJson(std::ostream& out, const FileTagsReport& report) {
  out << "{\"path\": " << JsonString(report.path) << ",\n   \"mpeg\": ";
  WriteJsonFields(out, report.mpeg);
  out << ",\n   \"id3v1\": ";
  WriteJsonFields(out, report.id3v1);
  out << ",\n   \"id3v2\": ";
  WriteJsonFields(out, report.id3v2);
  out << ",\n   \"exif\": ";
  WriteJsonFields(out, report.exif);
  out << ",\n   \"tags\": ";
  WriteJsonFields(out, report.tags);
  out << '}';
}

}  // namespace

int RunTagsCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                   std::ostream& messages) {
  bool json = false;
  bool optionsEnded = false;
  std::vector<std::string> paths;
  for (const std::string& argument : arguments) {
    if (!optionsEnded && argument == "--") {
      optionsEnded = true;
    } else if (!optionsEnded && argument == "--json") {
      json = true;
    } else if (!optionsEnded && argument.size() > 1 && argument.front() == '-') {
      messages << "nomra-cli: tags: unknown option '" << argument << "'\nTry 'nomra-cli --help'.\n";
      return kExitUsage;
    } else {
      paths.push_back(argument);
    }
  }
  if (paths.empty()) {
    messages << "nomra-cli: tags: no FILE given\nTry 'nomra-cli --help'.\n";
    return kExitUsage;
  }
  bool faulted = false;
  bool first = true;
  if (json) out << '[';
  for (const std::string& path : paths) {
    const FileTagsReport report = ReadFileTags(system.Files(), path);
    if (!report.fault.empty()) {
      messages << "nomra-cli: tags: " << path << ": " << report.fault << '\n';
      faulted = true;
      if (report.tags.empty()) continue;
    }
    if (json) {
      out << (first ? "\n  " : ",\n  ");
      WriteJson(out, report);
    } else {
      if (!first) out << '\n';
      WriteText(out, report);
    }
    first = false;
  }
  if (json) out << (first ? "]\n" : "\n]\n");
  return faulted ? kExitFault : kExitSuccess;
}

}  // namespace nomra::cli
