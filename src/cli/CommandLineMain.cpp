#include "cli/CommandLineMain.h"

#include <algorithm>
#include <exception>
#include <string>
#include <vector>

#include "cli/BashCompletion.h"
#include "cli/CliRun.h"
#include "cli/CommandLineParser.h"
#include "cli/DesktopIntegration.h"
#include "cli/EvalCommand.h"
#include "cli/ExitStatus.h"
#include "cli/HelpText.h"
#include "cli/HistoryRun.h"
#include "cli/ScriptSteps.h"
#include "cli/TagsCommand.h"
#include "cli/UsageError.h"
#include "lang/ChooseLanguage.h"
#include "settings/DataFolder.h"

namespace nomra::cli {

namespace {

// The version, then where this copy finds its program folder and what
// language files lie there: the quickest check of an installation.
void WriteVersion(platform::Platform& system, std::ostream& out) {
  out << "nomra-cli " << NOMRA_VERSION << '\n';
  const std::string appFolder = settings::FindAppFolder(system.Files(), system.Locations());
  out << "program folder: " << appFolder << '\n';
  std::vector<std::string> names;
  for (const lang::LanguageFile& file : lang::ListLanguageFiles(system.Files(), appFolder)) {
    names.push_back(file.path.substr(appFolder.size()));
  }
  std::sort(names.begin(), names.end());
  out << "language files:";
  if (names.empty()) {
    out << " none; searched";
    for (const std::string& folder : settings::AppFolderCandidates(system.Locations().ExecutableFolder())) {
      out << ' ' << folder;
    }
  }
  for (const std::string& name : names) out << ' ' << name;
  out << '\n';
}

}  // namespace

int RunCliArguments(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& messages) {
  if (!arguments.empty() && arguments.front() == kCompletionOption) {
    if (arguments.size() != 2 || arguments[1] != "bash") {
      messages << "nomra-cli: " << kCompletionOption << " takes the shell's name: bash\n";
      return kExitUsage;
    }
    WriteBashCompletion(out);
    return kExitSuccess;
  }
  if (!arguments.empty() && arguments.front() == kEvalCommand) {
    return RunEvalCommand(system, {arguments.begin() + 1, arguments.end()}, out, messages);
  }
  if (!arguments.empty() && arguments.front() == "scripts") {
    return RunScriptsCommand(system, {arguments.begin() + 1, arguments.end()}, out, messages);
  }
  if (!arguments.empty() && arguments.front() == kTagsCommand) {
    return RunTagsCommand(system, {arguments.begin() + 1, arguments.end()}, out, messages);
  }
  if (!arguments.empty() && arguments.front() == kHistoryCommand) {
    return RunHistoryCommand(system, {arguments.begin() + 1, arguments.end()}, out, messages);
  }
  Invocation invocation;
  try {
    invocation = ParseCommandLine(arguments);
  } catch (const UsageError& error) {
    messages << "nomra-cli: " << error.what() << "\nTry 'nomra-cli --help'.\n";
    return kExitUsage;
  }
  if (invocation.showHelp) {
    WriteHelp(out);
    return kExitSuccess;
  }
  if (invocation.showVersion) {
    WriteVersion(system, out);
    return kExitSuccess;
  }
  if (invocation.integration == IntegrationRequest::Install) {
    return InstallIntegration(system.Files(), FindIntegrationPlaces(system), out, messages);
  }
  if (invocation.integration == IntegrationRequest::Remove) {
    return RemoveIntegration(system.Files(), FindIntegrationPlaces(system), out, messages);
  }
  try {
    return RunInvocation(system, invocation, out, messages);
  } catch (const std::exception& error) {
    messages << "nomra-cli: " << error.what() << '\n';
    return kExitFault;
  }
}

}  // namespace nomra::cli
