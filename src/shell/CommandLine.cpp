#include "shell/CommandLine.h"

#include <algorithm>

#include "base/Quoting.h"
#include "core/AddFile.h"

namespace nomra::shell {

namespace {

constexpr char kBlank = ' ';
constexpr char kQuote = '"';
constexpr std::string_view kOpenFromFileSwitch = "/openfromfile=";
constexpr std::string_view kRunScriptSwitch = "/runscript=";

char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// The switch's name and at least one character behind it. The names are
// plain ASCII, so comparing bytes in lower case is the whole case rule here.
bool HasSwitch(std::string_view argument, std::string_view name) {
  if (argument.size() <= name.size()) return false;
  return std::equal(name.begin(), name.end(), argument.begin(),
                    [](char expected, char actual) { return expected == AsciiLower(actual); });
}

bool IsFileOrFolder(platform::FileSystem& fileSystem, const std::string& path) {
  if (path.empty()) return false;
  const platform::EntryKind kind = fileSystem.Status(path).kind;
  return kind == platform::EntryKind::File || kind == platform::EntryKind::Folder;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view text) {
  std::vector<std::string> arguments;
  constexpr auto npos = std::string_view::npos;
  std::size_t p = 0;
  while (p < text.size()) {
    if (text[p] == kQuote) {
      std::size_t end = text.find(kQuote, p + 1);
      if (end == npos) end = text.find(kBlank, p + 1);
      if (end == npos) end = text.size();
      arguments.emplace_back(text.substr(p + 1, end - p - 1));
      p = end + 1;
    } else if (text[p] != kBlank) {
      const std::size_t blank = text.find(kBlank, p);
      const std::size_t quote = text.find(kQuote, p);
      std::size_t end = blank;
      if (quote != npos && quote < blank) {
        const std::size_t closing = text.find(kQuote, quote + 1);
        if (closing != npos) end = closing + 1;
      }
      if (end == npos || end > text.size()) end = text.size();
      arguments.emplace_back(text.substr(p, end - p));
      p = end + 1;
    } else {
      ++p;
    }
  }
  arguments.emplace_back();
  return arguments;
}

std::vector<std::string> ArgumentsFromArgv(int argc, char** argv) {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc && argv != nullptr; ++i) {
    if (argv[i] != nullptr) arguments.emplace_back(argv[i]);
  }
  arguments.emplace_back();
  return arguments;
}

void RunCommandLine(const std::vector<std::string>& arguments, core::ListLoad& load,
                    const CommandLineSwitches& switches) {
  if (arguments.empty()) return;
  const std::size_t endMark = arguments.size() - 1;
  for (std::size_t i = 0; i < endMark; ++i) {
    const std::string& argument = arguments[i];
    if (IsFileOrFolder(load.fileSystem, argument)) {
      std::string path = argument;
      core::AddFile(load, path);
    } else if (HasSwitch(argument, kOpenFromFileSwitch)) {
      if (switches.openFromFile)
        switches.openFromFile(base::WithoutDoubleQuotes(argument.substr(kOpenFromFileSwitch.size())));
    } else if (HasSwitch(argument, kRunScriptSwitch)) {
      if (switches.runScript) switches.runScript(base::WithoutDoubleQuotes(argument.substr(kRunScriptSwitch.size())));
    }
  }
}

}  // namespace nomra::shell
