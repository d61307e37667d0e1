#include "cli/HelpText.h"

#include <sstream>
#include <string>
#include <string_view>

#include "cli/HistoryCommandLine.h"
#include "cli/OptionTable.h"

namespace nomra::cli {

namespace {

constexpr std::size_t kLineWidth = 78;
constexpr std::string_view kIndent = "      ";

// Breaks a text at blanks so that no line is wider than the terminal's usual
// 80 columns.
void WriteWrapped(std::ostream& out, std::string_view text) {
  std::istringstream words{std::string(text)};
  std::string word;
  std::size_t column = 0;
  while (words >> word) {
    if (column > 0 && column + 1 + word.size() > kLineWidth) {
      out << '\n';
      column = 0;
    }
    if (column == 0) {
      out << kIndent;
      column = kIndent.size();
    } else {
      out << ' ';
      ++column;
    }
    out << word;
    column += word.size();
  }
  out << '\n';
}

void WriteOption(std::ostream& out, const OptionSpec& option) {
  out << "  ";
  if (!option.shortName.empty()) out << option.shortName << ", ";
  out << option.name;
  if (!option.argument.empty()) out << ' ' << option.argument;
  if (!option.secondArgument.empty()) out << ' ' << option.secondArgument;
  out << '\n';
  WriteWrapped(out, option.help);
  out << kIndent << "Example: nomra-cli " << option.example << '\n';
}

// The rename protocol's own command, with its options.
void WriteHistoryCommand(std::ostream& out) {
  out << "  history [--undo N[,N...] | --clear] [--data-dir DIR] [--json]\n";
  WriteWrapped(out,
               "Lists the records of the rename protocol renamed.nrp, numbered in file order, each with its "
               "date, its state, its folder and its old and new name, then the counts. A record is black when "
               "its new name still exists, so the rename can be undone, and red when it doesn't. A folder named "
               "history is loaded as ./history or after --.");
  out << kIndent << "Example: nomra-cli history\n";
  for (const HistoryOptionSpec& option : HistoryOptionTable()) {
    out << "    " << option.name;
    if (!option.argument.empty()) out << ' ' << option.argument;
    out << '\n';
    WriteWrapped(out, option.help);
    out << kIndent << "Example: nomra-cli " << option.example << '\n';
  }
}

}  // namespace

void WriteHelp(std::ostream& out) {
  out << "Usage: nomra-cli [OPTIONS] PATH...\n";
  out << "   or: nomra-cli [OPTIONS] --playlist FILE [PATH...]\n";
  out << "   or: nomra-cli scripts [--data-dir DIR] [--json]\n";
  out << "   or: nomra-cli eval STRUCTURE PATH... [--data-dir DIR] [--json]\n";
  out << "   or: nomra-cli tags FILE... [--json]\n";
  out << "   or: nomra-cli history [--undo N[,N...] | --clear] [--data-dir DIR] [--json]\n\n";
  WriteWrapped(out,
               "Loads each PATH into the list (a folder with everything in it, subfolders included) and the "
               "entries of each --playlist, then runs the other options in the order they are given, each one a "
               "step of its own, and prints the rows with a pending name change, grouped by folder, and the "
               "counts. Paths and options may be mixed; all paths and playlists load first, in the order they "
               "are given. Everything after -- is a path. Nothing is renamed on disk unless --commit is given.");
  out << "\nOptions:\n";
  for (const OptionSpec& option : OptionTable()) WriteOption(out, option);
  out << "\nCommands:\n";
  out << "  scripts [--data-dir DIR] [--json]\n";
  WriteWrapped(out,
               "Lists the stored scripts of the data folder, one per line: the file name that --script takes, a "
               "tab, and the name the script was given with the date it was stored. With --json, an array of "
               "objects with file and display.");
  out << kIndent << "Example: nomra-cli scripts\n";
  out << "  eval STRUCTURE PATH... [--data-dir DIR] [--json]\n";
  WriteWrapped(out,
               "Prints what the name structure STRUCTURE gives for each file of the PATHs (folders whole), one "
               "line per file holding the result alone, and changes nothing. With --json, an array of objects "
               "with path and result. A file whose evaluation meets a fault is printed on stderr and makes the "
               "exit status 1.");
  out << kIndent << "Example: nomra-cli eval '<NAME>_<NAME_M(2,5)>_<UC><EXT></UC>.<EXT>' ~/Pictures\n";
  out << "  tags FILE... [--json]\n";
  WriteWrapped(out,
               "Prints what the readers find in each FILE: the first MPEG audio frame's header (version, layer, "
               "bit rate, frequency, channel mode, frame size, length), the ID3v1 record and every ID3v2 frame "
               "by its id, every EXIF entry of a JPEG by its tag number (type, count, value), and what each "
               "file tag of a name structure gives for the file (<ID3_Artist>, <ID3_SongTitle>, <MP3_Length>, "
               "<EXIF_Model>, <CRC32>, <CRC32_D> and the rest). Changes nothing. With --json, an array of "
               "objects with path, mpeg, id3v1, id3v2, exif (null where there is none) and tags. A file "
               "that can't be read is printed on stderr and makes the exit status 1.");
  out << kIndent << "Example: nomra-cli tags ~/Music/track01.mp3\n";
  WriteHistoryCommand(out);
  out << "\nExit status:\n";
  out << kIndent << "0  success\n";
  out << kIndent << "1  a path, a playlist or a step met a fault, or --commit left a row\n";
  out << kIndent << "   not renamed (each is printed; the run goes on); for history, a\n";
  out << kIndent << "   record named to --undo stayed, or the protocol couldn't be read or\n";
  out << kIndent << "   written\n";
  out << kIndent << "2  the command line is wrong; nothing ran\n";
}

}  // namespace nomra::cli
