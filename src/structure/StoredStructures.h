#pragma once
#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::structure {

// A named name structure as the structure editor keeps it.
struct StoredStructure {
  std::string name;
  std::string structure;

  bool operator==(const StoredStructure&) const = default;
};

// "structures.nrp" in the data folder (which ends with the separator).
std::string StructuresFilePath(const std::string& dataFolder);

// The stored structures in file order. A missing or unreadable file gives
// none; a line with a name alone gives that name with an empty structure.
std::vector<StoredStructure> LoadStoredStructures(platform::FileSystem& fileSystem, const std::string& file);

// Writes all of them behind the header "Name;Structure;", one "name;structure;"
// a line; the old file stays whole when writing fails (false).
bool SaveStoredStructures(platform::FileSystem& fileSystem, const std::string& file,
                          const std::vector<StoredStructure>& structures);

}  // namespace nomra::structure
