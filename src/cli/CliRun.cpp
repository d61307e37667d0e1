#include "cli/CliRun.h"

#include <string>
#include <vector>

#include "base/Fault.h"
#include "cli/CliFrontEnd.h"
#include "cli/CommitStep.h"
#include "cli/ExitStatus.h"
#include "cli/JsonOutput.h"
#include "cli/LoadSources.h"
#include "cli/RecoveryStep.h"
#include "cli/TableOutput.h"
#include "core/ExifDateReader.h"
#include "shell/Startup.h"

namespace nomra::cli {

namespace {

// A fault ends its step only; the steps after it still run.
void RunSteps(CliSession& session, const std::vector<Step>& steps, std::ostream& notes) {
  for (const Step& step : steps) {
    try {
      step.run(session, notes);
    } catch (const base::RuntimeFault& fault) {
      session.frontEnd.ShowFault(step.option + ": " + fault.what());
    }
  }
}

}  // namespace

int RunInvocation(platform::Platform& system, const Invocation& invocation, std::ostream& out, std::ostream& messages) {
  CliFrontEnd frontEnd(messages, invocation.answerYes);
  const shell::StartupPaths paths = shell::PrepareStartup(system.Files(), system.Locations(), invocation.dataFolder);
  CliSession session(system.Files(), frontEnd);
  session.Start(paths);
  if (invocation.protocolRenames) session.options.protocolRenames = *invocation.protocolRenames;
  RecoverAtStart(session, messages);

  LoadSources(session, invocation.sources);
  RunSteps(session, invocation.steps, messages);
  std::vector<commit::ReportRow> report;
  if (invocation.commit) {
    try {
      report = CommitPendingChanges(session, messages);
    } catch (const base::RuntimeFault& fault) {
      session.frontEnd.ShowFault(std::string("--commit: ") + fault.what());
    }
  }

  if (invocation.json) {
    WriteJson(out, session, report);
  } else {
    WriteTable(out, session);
  }
  out.flush();
  return frontEnd.FaultShown() || !report.empty() ? kExitFault : kExitSuccess;
}

}  // namespace nomra::cli
