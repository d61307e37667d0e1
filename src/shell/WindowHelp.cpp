#include "shell/WindowHelp.h"

namespace nomra::shell {

InfoRequest FindInfoRequest(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return InfoRequest::None;
  const std::string& first = arguments.front();
  if (first == "--help" || first == "-h") return InfoRequest::Help;
  if (first == "--version") return InfoRequest::Version;
  return InfoRequest::None;
}

void WriteWindowHelp(std::ostream& out) {
  out << "Usage: nomra [PATH...] [/openfromfile=LIST] [/runscript=NAME]\n"
         "   or: nomra --help | --version\n"
         "\n"
         "Opens Nomra's window, a batch file renamer: files and folders go into a\n"
         "list, renaming actions change their pending names, old and new names stand\n"
         "side by side, and Take changes renames them all in one safe step. No file\n"
         "is ever overwritten.\n"
         "\n"
         "Arguments are handled in order; paths that don't exist are passed over.\n"
         "\n"
         "Options:\n"
         "  PATH                  a file, or a folder with everything in it, to load\n"
         "  /openfromfile=LIST    loads the entries of the playlist LIST (.m3u, .pls,\n"
         "                        or a text file with one path a line)\n"
         "  /runscript=NAME       plays a stored script with all its steps: a path, or\n"
         "                        a file name in the Script folder of the data folder\n"
         "  -h, --help            shows this help and ends\n"
         "  --version             shows the version and ends\n"
         "\n"
         "Files:\n"
         "  The settings, the stored name structures, the rename protocol and the\n"
         "  scripts live in $XDG_DATA_HOME/NR-Software/Nomra/ (by default\n"
         "  ~/.local/share/NR-Software/Nomra/); NOMRA_DATA_DIR names another folder.\n"
         "  The language files lie beside the program, or in share/nomra/ of its\n"
         "  installation.\n"
         "\n"
         "nomra-cli does the same work without a window; see nomra-cli --help.\n";
}

}  // namespace nomra::shell
