// nomra-cli: the file list engine on the command line.
#include <clocale>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/CommandLineMain.h"
#include "platform/Platform.h"

int main(int argc, char** argv) {
  // Sizes and counts are grouped the way the user's locale groups numbers.
  std::setlocale(LC_ALL, "");
  std::ios::sync_with_stdio(false);

  const std::unique_ptr<nomra::platform::Platform> system = nomra::platform::MakeSystemPlatform();
  return nomra::cli::RunCliArguments(*system, std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
