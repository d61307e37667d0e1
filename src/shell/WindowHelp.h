#pragma once
#include <ostream>
#include <string>
#include <vector>

namespace nomra::shell {

// "nomra --help" and "nomra --version" are answered on the terminal before
// any window or display is needed, so they work over ssh, in a package
// build and for the manual page made from them.
enum class InfoRequest { None, Help, Version };

// The request when the first argument is --help, -h or --version; any other
// start opens the window. The arguments come without the program's name.
InfoRequest FindInfoRequest(const std::vector<std::string>& arguments);

// The window's usage: its arguments, switches and the files it keeps.
void WriteWindowHelp(std::ostream& out);

}  // namespace nomra::shell
