#include "cli/EvalCommand.h"

#include "base/Fault.h"
#include "cli/CliFrontEnd.h"
#include "cli/ExitStatus.h"
#include "cli/JsonText.h"
#include "cli/LoadSources.h"
#include "core/ExifDateReader.h"
#include "shell/Startup.h"
#include "structure/FileTagSteps.h"
#include "structure/StructureEngine.h"

namespace nomra::cli {

namespace {

struct EvalRequest {
  std::string structure;
  std::vector<LoadSource> sources;
  std::string dataFolder;
  bool json = false;
};

int UsageFault(std::ostream& messages, const std::string& text) {
  messages << "nomra-cli: eval: " << text << "\nTry 'nomra-cli --help'.\n";
  return kExitUsage;
}

}  // namespace

int RunEvalCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                   std::ostream& messages) {
  EvalRequest request;
  bool haveStructure = false;
  bool optionsEnded = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!optionsEnded && argument == "--") {
      optionsEnded = true;
    } else if (!optionsEnded && argument == "--json") {
      request.json = true;
    } else if (!optionsEnded && argument == "--data-dir") {
      if (i + 1 == arguments.size()) return UsageFault(messages, "--data-dir needs DIR");
      request.dataFolder = arguments[++i];
    } else if (!optionsEnded && argument.size() > 1 && argument.front() == '-' && haveStructure) {
      return UsageFault(messages, "unknown option '" + argument + "'");
    } else if (!haveStructure) {
      request.structure = argument;
      haveStructure = true;
    } else {
      request.sources.push_back({LoadSource::Kind::Path, argument});
    }
  }
  if (!haveStructure) return UsageFault(messages, "no STRUCTURE given");
  if (request.sources.empty()) return UsageFault(messages, "no PATH given");

  CliFrontEnd frontEnd(messages, false);
  const shell::StartupPaths paths = shell::PrepareStartup(system.Files(), system.Locations(), request.dataFolder);
  CliSession session(system.Files(), frontEnd);
  session.Start(paths);
  LoadSources(session, request.sources);

  const structure::FileTagSteps fileTags(system.Files());
  bool faulted = frontEnd.FaultShown();
  bool first = true;
  if (request.json) out << '[';
  for (int row = 1; row <= session.state.list.Count(); ++row) {
    const std::string& path = session.state.list.Item(row).key;
    std::string result;
    try {
      result = structure::EvaluateStructure(session.state.list.Item(row), request.structure, fileTags);
    } catch (const base::RuntimeFault& fault) {
      messages << "nomra-cli: eval: " << path << ": " << fault.what() << '\n';
      faulted = true;
      continue;
    }
    if (request.json) {
      out << (first ? "" : ",") << "\n  {\"path\": " << JsonString(path) << ", \"result\": " << JsonString(result)
          << '}';
      first = false;
    } else {
      out << result << '\n';
    }
  }
  if (request.json) out << (first ? "]\n" : "\n]\n");
  return faulted ? kExitFault : kExitSuccess;
}

}  // namespace nomra::cli
