#pragma once
#include <initializer_list>
#include <string>

#include "support/TempFolder.h"

namespace nomra::lang::testing {

// Writes a language file of the given lines, each ended by CR LF.
inline std::string WriteLanguageFile(const nomra::testing::TempFolder& temp, const std::string& name,
                                     std::initializer_list<std::string> lines) {
  std::string content;
  for (const auto& line : lines) content += line + "\r\n";
  return temp.WriteFile(name, content);
}

}  // namespace nomra::lang::testing
