#include "cli/HistoryRun.h"

#include <string>
#include <vector>

#include "base/Fault.h"
#include "base/Paths.h"
#include "cli/CliFrontEnd.h"
#include "cli/ExitStatus.h"
#include "cli/HelpText.h"
#include "cli/HistoryOutput.h"
#include "cli/UsageError.h"
#include "history/LoadHistory.h"
#include "history/UndoRenamings.h"
#include "platform/DataLocations.h"

namespace nomra::cli {

namespace {

// Selects the named records; a red one is noted, as the undo will pass it
// over. Answers whether every named record can be tried.
bool SelectRecords(history::HistoryList& list, const std::vector<int>& numbers, std::ostream& messages) {
  bool allBlack = true;
  for (int number : numbers) {
    history::HistoryRow& row = list.rows[static_cast<std::size_t>(number - 1)];
    row.selected = true;
    if (!row.present) {
      messages << "nomra-cli: record " << number << " is red: " << base::AddBackslash(row.folder) << row.newName
               << " no longer exists; passed over\n";
      allBlack = false;
    }
  }
  return allBlack;
}

std::string FirstNumberBeyond(const std::vector<int>& numbers, std::size_t count) {
  for (int number : numbers) {
    if (static_cast<std::size_t>(number) > count) return std::to_string(number);
  }
  return {};
}

}  // namespace

int RunHistoryCommand(platform::Platform& system, const HistoryInvocation& invocation, std::ostream& out,
                      std::ostream& messages) {
  // Naming the records, or --clear, is the user's answer to the window's question.
  CliFrontEnd frontEnd(messages, true);
  platform::FileSystem& fileSystem = system.Files();
  const std::string dataFolder =
      invocation.dataFolder.empty() ? system.Locations().DataFolder() : base::AddBackslash(invocation.dataFolder);
  const history::HistoryServices services{
      fileSystem, frontEnd, dataFolder,
      [&messages](const commit::ReportRow& failure) { messages << "nomra-cli: " << failure.Describe() << '\n'; }};
  std::vector<commit::ReportRow> failures;

  history::HistoryList list;
  bool complete = true;
  try {
    history::LoadHistory(list, dataFolder, fileSystem);
    if (const std::string beyond = FirstNumberBeyond(invocation.undo, list.rows.size()); !beyond.empty()) {
      messages << "nomra-cli: there is no record " << beyond << ": the rename history holds " << list.rows.size()
               << "\nTry 'nomra-cli --help'.\n";
      return kExitUsage;
    }
    if (!invocation.undo.empty()) {
      complete = SelectRecords(list, invocation.undo, messages);
      const history::UndoOutcome outcome = history::UndoRenamings(list, services);
      failures = outcome.failures;
      complete = complete && failures.empty();
    } else if (invocation.clear) {
      history::cmdDeleteHistory(list, services);
    }
    // What the disk and the protocol hold now, whatever of the action worked.
    if (!invocation.undo.empty() || invocation.clear) history::LoadHistory(list, dataFolder, fileSystem);
  } catch (const base::RuntimeFault& fault) {
    frontEnd.ShowFault(fault.what());
  }

  if (invocation.json) {
    WriteHistoryJson(out, list, failures);
  } else {
    WriteHistoryTable(out, list);
  }
  out.flush();
  return complete && !frontEnd.FaultShown() ? kExitSuccess : kExitFault;
}

int RunHistoryCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                      std::ostream& messages) {
  HistoryInvocation invocation;
  try {
    invocation = ParseHistoryCommandLine(arguments);
  } catch (const UsageError& error) {
    messages << "nomra-cli history: " << error.what() << "\nTry 'nomra-cli --help'.\n";
    return kExitUsage;
  }
  if (invocation.showHelp) {
    WriteHelp(out);
    return kExitSuccess;
  }
  return RunHistoryCommand(system, invocation, out, messages);
}

}  // namespace nomra::cli
