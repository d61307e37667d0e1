#pragma once
#include <set>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace nomra::testing {

inline constexpr char kProtocolTime[] = "20040315142305";

// One line of the rename protocol, without its end: a rename in `folder`.
std::string ProtocolLine(const std::string& folder, const std::string& oldName, const std::string& newName,
                         const std::string& time = kProtocolTime);

// Writes "renamed.nrp" into the data folder, each line ended by CR LF as the
// commit writes it, and reads it back whole.
void WriteProtocolFile(const TempFolder& data, const std::vector<std::string>& lines);
std::string ReadProtocolFile(const TempFolder& data);

// Files in the folder, each holding its own name.
void CreateNamedFiles(const TempFolder& folder, const std::vector<std::string>& names);
// The names of everything in a folder, sorted.
std::set<std::string> NamesIn(const std::string& folder);

}  // namespace nomra::testing
