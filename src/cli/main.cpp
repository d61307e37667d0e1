// nomra-cli: the file list engine on the command line.
#include <clocale>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/CliRun.h"
#include "cli/CommandLineParser.h"
#include "cli/EvalCommand.h"
#include "cli/ExitStatus.h"
#include "cli/HelpText.h"
#include "cli/HistoryRun.h"
#include "cli/ScriptSteps.h"
#include "cli/UsageError.h"
#include "platform/Platform.h"

int main(int argc, char** argv) {
  using namespace nomra::cli;
  // Sizes and counts are grouped the way the user's locale groups numbers.
  std::setlocale(LC_ALL, "");
  std::ios::sync_with_stdio(false);

  const std::unique_ptr<nomra::platform::Platform> system = nomra::platform::MakeSystemPlatform();
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments.front() == kEvalCommand) {
    return RunEvalCommand(*system, {arguments.begin() + 1, arguments.end()}, std::cout, std::cerr);
  }
  if (!arguments.empty() && arguments.front() == "scripts") {
    return RunScriptsCommand(*system, {arguments.begin() + 1, arguments.end()}, std::cout, std::cerr);
  }
  if (!arguments.empty() && arguments.front() == kHistoryCommand) {
    return RunHistoryCommand(*system, {arguments.begin() + 1, arguments.end()}, std::cout, std::cerr);
  }
  Invocation invocation;
  try {
    invocation = ParseCommandLine(arguments);
  } catch (const UsageError& error) {
    std::cerr << "nomra-cli: " << error.what() << "\nTry 'nomra-cli --help'.\n";
    return kExitUsage;
  }
  if (invocation.showHelp) {
    WriteHelp(std::cout);
    return kExitSuccess;
  }
  if (invocation.showVersion) {
    std::cout << "nomra-cli " << NOMRA_VERSION << '\n';
    return kExitSuccess;
  }
  try {
    return RunInvocation(*system, invocation, std::cout, std::cerr);
  } catch (const std::exception& error) {
    // Whatever the engine didn't expect still ends with a message, not an abort.
    std::cerr << "nomra-cli: " << error.what() << '\n';
    return kExitFault;
  }
}
