#include "cli/ScriptSteps.h"

#include "base/Fault.h"
#include "cli/ExitStatus.h"
#include "cli/JsonText.h"
#include "script/ScriptFiles.h"
#include "script/ScriptPlayback.h"
#include "shell/Startup.h"
#include "structure/ApplyStructure.h"

namespace nomra::cli {

void PlayScriptFile(CliSession& session, const std::string& file, std::ostream&) {
  const rename::ActionContext actions = session.Actions();
  const bool played = script::RunScriptArgument(session.script, session.fileSystem, file, [&actions](int stepType) {
    script::PlayStepWithoutWindow(actions, stepType);
  });
  if (!played) {
    throw base::RuntimeFault("no script '" + file + "', neither as a path nor in " +
                             script::ScriptFolder(session.script.dataFolder));
  }
}

void ApplyStructureStep(CliSession& session, const std::string& structure) {
  structure::ApplyStructure(session.Actions(), structure);
}

int RunScriptsCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                      std::ostream& messages) {
  std::string dataFolder;
  bool json = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--json") {
      json = true;
    } else if (arguments[i] == "--data-dir" && i + 1 < arguments.size()) {
      dataFolder = arguments[++i];
    } else if (arguments[i].starts_with("--data-dir=")) {
      dataFolder = arguments[i].substr(std::string_view("--data-dir=").size());
    } else {
      messages << "nomra-cli: scripts takes only --data-dir DIR and --json, not '" << arguments[i]
               << "'\nTry 'nomra-cli --help'.\n";
      return kExitUsage;
    }
  }
  const shell::StartupPaths paths = shell::PrepareStartup(system.Files(), system.Locations(), dataFolder);
  const std::vector<script::StoredScript> scripts = script::ListStoredScripts(system.Files(), paths.dataFolder);
  if (json) {
    out << '[';
    for (std::size_t i = 0; i < scripts.size(); ++i) {
      out << (i == 0 ? "" : ",") << "\n  {\"file\": " << JsonString(scripts[i].fileName)
          << ", \"display\": " << JsonString(scripts[i].displayText) << '}';
    }
    out << (scripts.empty() ? "]\n" : "\n]\n");
  } else {
    for (const script::StoredScript& script : scripts) out << script.fileName << '\t' << script.displayText << '\n';
  }
  return kExitSuccess;
}

}  // namespace nomra::cli
