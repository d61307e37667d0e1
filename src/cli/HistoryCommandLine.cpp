#include "cli/HistoryCommandLine.h"

#include <charconv>
#include <optional>

#include "cli/UsageError.h"

namespace nomra::cli {

namespace {

// "3" or "1,4,7": record numbers from 1.
std::vector<int> ParseRecordNumbers(std::string_view text) {
  std::vector<int> numbers;
  while (true) {
    const std::size_t comma = text.find(',');
    const std::string_view part = text.substr(0, comma);
    int number = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
    if (part.empty() || error != std::errc() || end != part.data() + part.size() || number < 1) {
      throw UsageError("--undo takes record numbers from 1, separated by commas, not '" + std::string(text) + "'");
    }
    numbers.push_back(number);
    if (comma == std::string_view::npos) return numbers;
    text.remove_prefix(comma + 1);
  }
}

const HistoryOptionSpec* FindHistoryOption(std::string_view name) {
  for (const HistoryOptionSpec& option : HistoryOptionTable()) {
    if (name == option.name || (name == "-h" && option.name == "--help")) return &option;
  }
  return nullptr;
}

}  // namespace

const std::vector<HistoryOptionSpec>& HistoryOptionTable() {
  static const std::vector<HistoryOptionSpec> table{
      {"--undo", "N[,N...]",
       "Renames the files of those records back to their old names, going through the records in file order, "
       "never over another file, and writes the protocol again without the records undone. A red record is "
       "passed over. A rename that fails keeps its record and is printed on stderr; a later run can take it "
       "again once the record whose file holds its old name is undone. Naming the records is the answer to "
       "the window's question. The undo itself is not logged. Afterwards the records are listed as they are "
       "then.",
       "history --undo 3,4",
       [](HistoryInvocation& invocation, const std::string& argument) {
         for (int number : ParseRecordNumbers(argument)) invocation.undo.push_back(number);
       }},
      {"--clear", "", "Empties the rename protocol; the files keep their names.", "history --clear",
       [](HistoryInvocation& invocation, const std::string&) { invocation.clear = true; }},
      {"--json", "", "Prints the records as one JSON document instead of the table.", "history --json",
       [](HistoryInvocation& invocation, const std::string&) { invocation.json = true; }},
      {"--data-dir", "DIR", "The folder of the rename protocol, as for the list.",
       "history --data-dir /tmp/nomra-trial",
       [](HistoryInvocation& invocation, const std::string& argument) { invocation.dataFolder = argument; }},
      {"--help", "", "Shows the help and ends.", "history --help",
       [](HistoryInvocation& invocation, const std::string&) { invocation.showHelp = true; }},
  };
  return table;
}

HistoryInvocation ParseHistoryCommandLine(const std::vector<std::string>& arguments) {
  HistoryInvocation invocation;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const std::size_t equals = argument.find('=');
    const bool joined = argument.starts_with("--") && equals != std::string::npos;
    const std::string_view name = joined ? std::string_view(argument).substr(0, equals) : std::string_view(argument);
    const HistoryOptionSpec* option = FindHistoryOption(name);
    if (option == nullptr) {
      throw UsageError("history takes no " + std::string(argument.starts_with("-") ? "option '" : "path '") + argument +
                       "'");
    }
    std::optional<std::string> value;
    if (joined) value = argument.substr(equals + 1);
    if (option->argument.empty() && value) {
      throw UsageError("option '" + std::string(option->name) + "' takes no value");
    }
    if (!option->argument.empty() && !value) {
      if (i + 1 == arguments.size()) {
        throw UsageError("option '" + std::string(option->name) + "' needs " + std::string(option->argument));
      }
      value = arguments[++i];
    }
    option->apply(invocation, value.value_or(std::string()));
    if (invocation.showHelp) return invocation;
  }
  if (invocation.clear && !invocation.undo.empty()) throw UsageError("history takes --undo or --clear, not both");
  return invocation;
}

}  // namespace nomra::cli
