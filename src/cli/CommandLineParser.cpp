#include "cli/CommandLineParser.h"

#include <optional>

#include "cli/OptionTable.h"
#include "cli/UsageError.h"

namespace nomra::cli {

namespace {

const OptionSpec* FindOption(std::string_view name) {
  for (const OptionSpec& option : OptionTable()) {
    if (name == option.name || (!option.shortName.empty() && name == option.shortName)) return &option;
  }
  return nullptr;
}

bool LooksLikeOption(const std::string& argument) { return argument.size() > 1 && argument.front() == '-'; }

}  // namespace

Invocation ParseCommandLine(const std::vector<std::string>& arguments) {
  Invocation invocation;
  bool optionsEnded = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (optionsEnded || !LooksLikeOption(argument)) {
      invocation.sources.push_back({LoadSource::Kind::Path, argument});
      continue;
    }
    if (argument == "--") {
      optionsEnded = true;
      continue;
    }

    std::string_view name = argument;
    std::optional<std::string> value;
    const std::size_t equals = argument.find('=');
    if (argument.starts_with("--") && equals != std::string::npos) {
      name = std::string_view(argument).substr(0, equals);
      value = argument.substr(equals + 1);
    }
    const OptionSpec* option = FindOption(name);
    if (option == nullptr) throw UsageError("unknown option '" + std::string(name) + "'");

    if (option->argument.empty()) {
      if (value) throw UsageError("option '" + std::string(option->name) + "' takes no value");
    } else if (!value) {
      if (i + 1 == arguments.size()) {
        throw UsageError("option '" + std::string(option->name) + "' needs " + std::string(option->argument));
      }
      value = arguments[++i];
    }
    if (!option->secondArgument.empty()) {
      if (i + 1 == arguments.size()) {
        throw UsageError("option '" + std::string(option->name) + "' needs " + std::string(option->argument) + " " +
                         std::string(option->secondArgument));
      }
      option->applyPair(invocation, *value, arguments[++i]);
    } else {
      option->apply(invocation, value.value_or(std::string()));
    }
    if (invocation.showHelp || invocation.showVersion) return invocation;
  }
  if (invocation.integration != IntegrationRequest::None) {
    if (!invocation.sources.empty() || !invocation.steps.empty()) {
      throw UsageError("--install-integration and --remove-integration take no PATH and no step");
    }
    return invocation;
  }
  if (invocation.sources.empty()) throw UsageError("no PATH or --playlist given");
  return invocation;
}

}  // namespace nomra::cli
