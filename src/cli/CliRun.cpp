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
void RunSteps(MainModel& model, const std::vector<Step>& steps, std::ostream& notes) {
  for (const Step& step : steps) {
    try {
      step.run(model, notes);
    } catch (const RuntimeFault& fault) {
      model.frontEnd.ShowFault(step.option + ": " + fault.what());
    }
  }
}

}  // namespace

int RunInvocation(platform::Platform& system, const Invocation& invocation, std::ostream& out,
                  std::ostream& messages) {
  CliFrontEnd frontEnd(messages, invocation.answerYes);
  NoExifDates exifDates;

  const StartupPaths paths = PrepareStartup(system.Files(), system.Locations(), invocation.dataFolder);
  MainModel model(system.Files(), frontEnd, exifDates);
  LoadStartupSettings(model, paths);
  if (invocation.protocolRenames) model.protocolRenames = *invocation.protocolRenames;
  RecoverAtStart(model, messages);

  LoadSources(model, invocation.sources);
  RunSteps(model, invocation.steps, messages);
  std::vector<ReportRow> report;
  if (invocation.commit) {
    try {
      report = CommitPendingChanges(model, messages);
    } catch (const RuntimeFault& fault) {
      model.frontEnd.ShowFault(std::string("--commit: ") + fault.what());
    }
  }

  if (invocation.json) {
    WriteJson(out, model, report);
  } else {
    WriteTable(out, model);
  }
  out.flush();
  return frontEnd.FaultShown() || !report.empty() ? kExitFault : kExitSuccess;
}

}  // namespace nomra::cli
