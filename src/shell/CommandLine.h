#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/AddFile.h"

namespace nomra::shell {

// The arguments of a start, in order, always followed by one empty element
// that marks the end; with no arguments the end mark is all there is.
//
// Splits the text behind the program's name. A blank separates arguments.
// An argument that starts with a double quote runs to the next double quote
// (to the next blank when there is none, else to the end) and comes without
// its quotes. Any other argument runs to the next blank; when a double quote
// comes before that blank, it runs on to the closing quote instead and keeps
// its quotes, so "/openfromfile="a b.txt"" arrives in one piece and the
// switches remove the quotes themselves. The character that ends an
// argument (the blank, the closing quote of a quoted one, or the character
// right behind the closing quote of a switch) is passed over.
std::vector<std::string> SplitCommandLine(std::string_view text);

// The arguments as the system hands them over: on Linux the shell has already
// split the line and removed its quotes, so each entry behind the program's
// name is one argument as it stands; splitting again would cut a path with
// blanks apart. The end mark follows.
std::vector<std::string> ArgumentsFromArgv(int argc, char** argv);

// What the two switches lead to; either may be empty, and its switch is
// then passed over like any unknown argument.
struct CommandLineSwitches {
  // Loads the list from a list file; the path comes without double quotes.
  std::function<void(const std::string& path)> openFromFile;
  // Plays a script by its path or by its name in the scripts folder; the
  // name comes without double quotes.
  std::function<void(const std::string& name)> runScript;
};

// Carries the arguments out in order, the last element being the end mark:
// an existing file or folder goes to AddFile; "/openfromfile=" and
// "/runscript=", in any case and with at least one character behind the
// "=", go to their switch; anything else is passed over in silence. No
// refresh runs here. A fault of AddFile ends the run and goes to the caller.
void RunCommandLine(const std::vector<std::string>& arguments, core::ListLoad& load,
                    const CommandLineSwitches& switches);

}  // namespace nomra::shell
