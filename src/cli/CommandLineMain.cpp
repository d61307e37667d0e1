#include "cli/CommandLineMain.h"

#include <exception>

#include "cli/CliRun.h"
#include "cli/CommandLineParser.h"
#include "cli/EvalCommand.h"
#include "cli/ExitStatus.h"
#include "cli/HelpText.h"
#include "cli/HistoryRun.h"
#include "cli/ScriptSteps.h"
#include "cli/TagsCommand.h"
#include "cli/UsageError.h"

namespace nomra::cli {

int RunCliArguments(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& messages) {
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
    out << "nomra-cli " << NOMRA_VERSION << '\n';
    return kExitSuccess;
  }
  try {
    return RunInvocation(system, invocation, out, messages);
  } catch (const std::exception& error) {
    messages << "nomra-cli: " << error.what() << '\n';
    return kExitFault;
  }
}

}  // namespace nomra::cli
