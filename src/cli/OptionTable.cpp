#include "cli/OptionTable.h"

#include "cli/ActionSteps.h"
#include "cli/ArgumentValues.h"
#include "cli/EditStep.h"
#include "cli/ListSteps.h"
#include "cli/ScriptSteps.h"
#include "cli/UsageError.h"

namespace nomra::cli {

namespace {

void AddStep(Invocation& invocation, std::string_view option, std::function<void(CliSession&, std::ostream&)> run) {
  invocation.steps.push_back(Step{std::string(option), std::move(run)});
}

void AddSelect(Invocation& invocation, const std::string& argument) {
  AddStep(invocation, "--select", [patterns = SplitPatterns(argument)](CliSession& session, std::ostream&) {
    SelectMatching(session, patterns);
  });
}

void AddScope(Invocation& invocation, const std::string& argument) {
  const std::optional<int> scope = ParseApplyScope(argument);
  if (!scope) throw UsageError("--scope takes all, selected or unselected, not '" + argument + "'");
  AddStep(invocation, "--scope",
          [scope = *scope](CliSession& session, std::ostream&) { SetApplyScope(session, scope); });
}

void AddSort(Invocation& invocation, const std::string& argument) {
  const std::optional<SortRequest> request = ParseSortRequest(argument);
  if (!request) {
    throw UsageError("--sort takes a column name or a head number 1 to 21, optionally with :asc or :desc, not '" +
                     argument + "'");
  }
  AddStep(invocation, "--sort",
          [request = *request](CliSession& session, std::ostream&) { SortByColumnHead(session, request); });
}

void AddUndo(Invocation& invocation, const std::string&) { AddStep(invocation, "--undo", UndoOneStep); }

void AddReject(Invocation& invocation, const std::string&) { AddStep(invocation, "--reject", RejectPendingChanges); }

void AddEdit(Invocation& invocation, const std::string& argument) {
  AddStep(invocation, "--edit",
          [argument](CliSession& session, std::ostream& notes) { EditNamesInScope(session, argument, notes); });
}

void AddScript(Invocation& invocation, const std::string& argument) {
  AddStep(invocation, "--script",
          [argument](CliSession& session, std::ostream& notes) { PlayScriptFile(session, argument, notes); });
}

void AddStructure(Invocation& invocation, const std::string& argument) {
  AddStep(invocation, "--structure",
          [argument](CliSession& session, std::ostream&) { ApplyStructureStep(session, argument); });
}

}  // namespace

const std::vector<OptionSpec>& OptionTable() {
  static const std::vector<OptionSpec> table{
      {"--playlist", "", "FILE",
       "Loads the entries of the playlist FILE, in its place among the PATHs: of an .m3u every line but the "
       "#EXT comments, of a .pls what follows the = of each File line, of any other file every line. An entry "
       "that is no existing file is taken relative to the playlist's folder; entries that name nothing are "
       "passed over in silence. May be given more than once. A playlist that doesn't exist is printed on "
       "stderr and makes the exit status 1.",
       "~/Music/intro.mp3 --playlist ~/Music/party.m3u --playlist ~/Music/radio.pls",
       [](Invocation& invocation, const std::string& argument) {
         invocation.sources.push_back({LoadSource::Kind::Playlist, argument});
       }},
      {"--select", "", "PATTERN[;PATTERN...]",
       "From here on exactly the rows whose name on disk matches one of the wildcards are selected, all others "
       "not. Case is ignored; * stands for any run of characters, ? for one character, # for one digit, "
       "[a-z] for one of a set.",
       "--select 'IMG_0001.jpg;IMG_0002.jpg' --scope selected --edit 'Beach.jpg' ~/Pictures", AddSelect},
      {"--scope", "", "all|selected|unselected",
       "Which rows the name changes that follow act on: all rows (at start), the selected rows or the rows "
       "that aren't selected.",
       "--select '*.bak' --scope unselected --edit 'kept.txt' ./work", AddScope},
      {"--sort", "", "HEAD[:asc|:desc]",
       "Sorts the list by a column: folder, old, new, created, modified, exif, size, or unsorted for the order "
       "of the step before; a column head number 1 to 21 works too. Numbers within names sort by their value.",
       "--sort size:desc ~/Downloads", AddSort},
      {"--undo", "", "", "Takes the last change of the pending names back, on every row whatever the scope.",
       "--edit 'a.txt' --edit 'b.txt' --undo ./docs", AddUndo},
      {"--reject", "", "", "Brings every pending name back to the name on disk and forgets the earlier ones.",
       "--edit 'draft.txt' --reject ./docs", AddReject},
      {"--edit", "", "NAME",
       "Makes NAME the pending name of every row in the scope, as typed into the name field: the characters "
       "\\ / : ? * < > | \" are dropped, and a name of only blanks is ignored.",
       "--select 'report.txt' --scope selected --edit 'Report 2024.txt' ./docs", AddEdit},
      {"--script", "", "FILE",
       "Plays the stored script FILE with all its steps, as the window's Run all steps does, on the rows of "
       "the scope: each step's action takes the inputs recorded for it. FILE is a path, or the file name of a "
       "script in the folder Script of the data folder (see nomra-cli scripts). Steps of a kind this version "
       "doesn't know are passed over. May be given more than once; scripts play in order with the other "
       "steps.",
       "--script 20261115023303.nrs --commit ~/Pictures/Rome", AddScript},
      {"--structure", "", "TEXT",
       "Makes TEXT, a name structure, the pending name of every row in the scope, as the name structure "
       "dialog applies it.",
       "--select '*.txt' --scope selected --structure 'notes.txt' ./docs", AddStructure},
      {"--replace", "", "FIND",
       "Replaces every FIND in the stem of each pending name of the scope by WITH, as the Replace "
       "dialog does with a text: case counts, the extension is never touched, a stem is never emptied, and a "
       "WITH holding tags such as <NAME_L(3)> goes through the structure language. An empty WITH removes FIND.",
       "--replace '_' ' ' --replace 'Copy of ' '' ~/Downloads", nullptr, "WITH", AddReplace},
      {"--replace-regex", "", "PATTERN",
       "As --replace with a regular expression (PCRE2, UTF-8, case-sensitive): every match in the stem is "
       "replaced by WITH, in which $1 or ${1} is the first group, ${name} a named group and $$ a dollar. A "
       "pattern or WITH that can't be used is a usage error naming the character at fault.",
       "--replace-regex '^(\\d+) - (.*)$' '$2 ($1)' ~/Music", nullptr, "WITH", AddReplaceRegex},
      {"--number", "", "SPEC",
       "Numbers the rows of the scope in list order, as the Numbering dialog does. SPEC is KEY=VALUE settings "
       "separated by commas, each optional: start=N and step=N (default 1, may be negative), width=auto or 1 "
       "to 15 (default 1; shorter numbers are filled with 0, letters with blanks), system=decimal, hex, upper "
       "or lower (A to Z, then AA), place=prefix (default), suffix, left:N or right:N (N characters into the "
       "stem), sep= blank or one of the separators ' - ' - ' _ ' _ ' # ' # ' + ' + ' . ' . between number and "
       "name, name=TEXT in place of the stem, and random for a random order. An empty SPEC numbers with the "
       "defaults.",
       "--number 'start=1,width=auto,place=suffix,sep= - ' ~/Pictures/Rome", AddNumber},
      {"--trim", "", "first:N|last:N|range:A:B|short|path:N",
       "Cuts the stem of each pending name of the scope, as the Trim dialog does: to its first or last N "
       "characters, to characters A to B, to the short name, or so that folder and name stay within N "
       "characters (20 to 256; folder and extension are never cut).",
       "--trim first:8 ~/Documents/scans", AddTrim},
      {"--commit", "", "",
       "After every other step, renames the files on disk to their pending names, all in one batch: chains, "
       "swaps and cycles of names work, no file is ever overwritten, and a row whose new name stays taken is "
       "left as it is. Each rename that didn't happen is printed on stderr and makes the exit status 1. "
       "Without --commit nothing on disk changes.",
       "--select 'IMG_0001.jpg' --scope selected --edit 'Beach.jpg' --commit ~/Pictures",
       [](Invocation& invocation, const std::string&) { invocation.commit = true; }},
      {"--protocol", "", "",
       "Writes each rename of --commit to the rename protocol renamed.nrp in the data folder, whatever the "
       "setting protren says.",
       "--edit 'Report.txt' --commit --protocol ./docs/report.txt",
       [](Invocation& invocation, const std::string&) { invocation.protocolRenames = true; }},
      {"--no-protocol", "", "",
       "Keeps the renames of --commit out of the rename protocol, whatever the setting "
       "protren says.",
       "--edit 'Report.txt' --commit --no-protocol ./docs/report.txt",
       [](Invocation& invocation, const std::string&) { invocation.protocolRenames = false; }},
      {"--data-dir", "", "DIR",
       "The folder of the settings and the rename protocol. Without it NOMRA_DATA_DIR is used, else "
       "~/.local/share/NR-Software/Nomra/.",
       "--data-dir /tmp/nomra-trial ./docs",
       [](Invocation& invocation, const std::string& argument) { invocation.dataFolder = argument; }},
      {"--json", "", "",
       "Prints the whole list, every row with its 21 columns, the counts and the renames --commit couldn't "
       "make as one JSON document instead of the table of pending changes. A byte of a name that isn't UTF-8 "
       "shows as \\udcXX.",
       "--json ./docs", [](Invocation& invocation, const std::string&) { invocation.json = true; }},
      {"--yes", "", "",
       "Answers Yes to every question. Without it each question gets its default answer, and every question "
       "is noted on stderr with its answer.",
       "--yes --edit 'draft.txt' --reject ./docs",
       [](Invocation& invocation, const std::string&) { invocation.answerYes = true; }},
      {"--install-integration", "", "",
       "Puts \"Rename with Nomra\" into the file managers of the user: a Dolphin service menu in "
       "~/.local/share/kio/servicemenus, a Nautilus script in ~/.local/share/nautilus/scripts and a Thunar custom "
       "action added to ~/.config/Thunar/uca.xml. Each starts the window nomra beside this nomra-cli with the "
       "chosen files. A file of the user's own that stands where one of these would is left alone and printed "
       "on stderr; the exit status is then 1. Takes no PATH.",
       "--install-integration",
       [](Invocation& invocation, const std::string&) { invocation.integration = IntegrationRequest::Install; }},
      {"--remove-integration", "", "",
       "Takes away what --install-integration put there: its two files and its Thunar action, nothing else.",
       "--remove-integration",
       [](Invocation& invocation, const std::string&) { invocation.integration = IntegrationRequest::Remove; }},
      {"--help", "-h", "", "Shows this help and ends.", "--help",
       [](Invocation& invocation, const std::string&) { invocation.showHelp = true; }},
      {"--version", "", "",
       "Shows the version, the program folder this copy found and the language files in it, and ends.", "--version",
       [](Invocation& invocation, const std::string&) { invocation.showVersion = true; }},
  };
  return table;
}

}  // namespace nomra::cli
