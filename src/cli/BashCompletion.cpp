#include "cli/BashCompletion.h"

#include <set>
#include <string>
#include <vector>

#include "cli/ArgumentValues.h"
#include "cli/EvalCommand.h"
#include "cli/HistoryCommandLine.h"
#include "cli/OptionTable.h"
#include "cli/TagsCommand.h"

namespace nomra::cli {

namespace {

constexpr std::string_view kScriptsCommand = "scripts";

std::string Joined(const std::vector<std::string>& words, std::string_view separator) {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) text += separator;
    text += word;
  }
  return text;
}

// An argument named by the help as alternatives ("all|selected|unselected")
// completes to them; one holding brackets or colons is a pattern instead.
std::vector<std::string> Alternatives(std::string_view argument) {
  std::vector<std::string> words;
  if (argument.find_first_of("[]:=.") != std::string_view::npos || argument.find('|') == std::string_view::npos) {
    return words;
  }
  std::size_t start = 0;
  while (start <= argument.size()) {
    const std::size_t bar = argument.find('|', start);
    words.emplace_back(argument.substr(start, bar == std::string_view::npos ? std::string_view::npos : bar - start));
    if (bar == std::string_view::npos) break;
    start = bar + 1;
  }
  return words;
}

}  // namespace

void WriteBashCompletion(std::ostream& out) {
  std::set<std::string> options;
  std::vector<std::string> fileOptions;
  std::vector<std::string> folderOptions;
  std::vector<std::string> textOptions;
  std::vector<std::pair<std::string, std::vector<std::string>>> choiceOptions;
  for (const OptionSpec& option : OptionTable()) {
    const std::string name(option.name);
    options.insert(name);
    if (!option.shortName.empty()) options.insert(std::string(option.shortName));
    if (option.argument.empty()) continue;
    if (option.argument == "FILE") {
      fileOptions.push_back(name);
    } else if (option.argument == "DIR") {
      folderOptions.push_back(name);
    } else if (name == "--sort") {
      std::vector<std::string> heads;
      for (const std::string_view head : SortHeadNames()) heads.emplace_back(head);
      choiceOptions.emplace_back(name, heads);
    } else if (const std::vector<std::string> words = Alternatives(option.argument); !words.empty()) {
      choiceOptions.emplace_back(name, words);
    } else {
      textOptions.push_back(name);
    }
  }
  for (const HistoryOptionSpec& option : HistoryOptionTable()) {
    const std::string name(option.name);
    options.insert(name);
    if (option.argument == "DIR") {
      folderOptions.push_back(name);
    } else if (!option.argument.empty()) {
      textOptions.push_back(name);
    }
  }
  std::set<std::string> folderSet(folderOptions.begin(), folderOptions.end());
  folderOptions.assign(folderSet.begin(), folderSet.end());

  out << "# bash completion for nomra-cli, made by nomra-cli " << kCompletionOption << " bash\n"
      << "_nomra_cli() {\n"
      << "  local cur=${COMP_WORDS[COMP_CWORD]} prev=\n"
      << "  ((COMP_CWORD > 0)) && prev=${COMP_WORDS[COMP_CWORD - 1]}\n"
      << "  COMPREPLY=()\n"
      << "  case $prev in\n";
  for (const auto& [name, words] : choiceOptions) {
    out << "    " << name << ") mapfile -t COMPREPLY < <(compgen -W '" << Joined(words, " ")
        << "' -- \"$cur\"); return ;;\n";
  }
  if (!folderOptions.empty()) {
    out << "    " << Joined(folderOptions, "|") << ") mapfile -t COMPREPLY < <(compgen -d -- \"$cur\"); return ;;\n";
  }
  if (!fileOptions.empty()) {
    out << "    " << Joined(fileOptions, "|") << ") mapfile -t COMPREPLY < <(compgen -f -- \"$cur\"); return ;;\n";
  }
  if (!textOptions.empty()) {
    // Free text: nothing sensible to offer.
    out << "    " << Joined(textOptions, "|") << ") return ;;\n";
  }
  out << "  esac\n"
      << "  if [[ $cur == -* ]]; then\n"
      << "    mapfile -t COMPREPLY < <(compgen -W '"
      << Joined(std::vector<std::string>(options.begin(), options.end()), " ") << "' -- \"$cur\")\n"
      << "    return\n"
      << "  fi\n"
      << "  if ((COMP_CWORD == 1)); then\n"
      << "    mapfile -t COMPREPLY < <(compgen -W '" << kScriptsCommand << ' ' << kEvalCommand << ' ' << kTagsCommand
      << ' ' << kHistoryCommand << "' -- \"$cur\")\n"
      << "  fi\n"
      << "  local paths\n"
      << "  mapfile -t paths < <(compgen -f -- \"$cur\")\n"
      << "  COMPREPLY+=(\"${paths[@]}\")\n"
      << "}\n"
      << "complete -o filenames -F _nomra_cli nomra-cli\n";
}

}  // namespace nomra::cli
