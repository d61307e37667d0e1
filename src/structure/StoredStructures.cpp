#include "structure/StoredStructures.h"

#include "formats/DelimitedText.h"
#include "settings/SettingsKeys.h"

namespace nomra::structure {

namespace {

constexpr char kSeparator[] = ";";
constexpr char kHeader[] = "Name;Structure;";
// The list view of the editor: the name, and the structure as sub-item 1.
constexpr int kColumns = 2;

}  // namespace

std::string StructuresFilePath(const std::string& dataFolder) { return dataFolder + settings::kStructuresFileName; }

std::vector<StoredStructure> LoadStoredStructures(platform::FileSystem& fileSystem, const std::string& file) {
  formats::DelimitedList list{kColumns, {}};
  formats::LoadListFromFile(fileSystem, file, false, list);
  std::vector<StoredStructure> structures;
  structures.reserve(list.rows.size());
  for (formats::DelimitedRow& row : list.rows) {
    structures.push_back({std::move(row.text), std::move(row.subItems.front())});
  }
  return structures;
}

bool SaveStoredStructures(platform::FileSystem& fileSystem, const std::string& file,
                          const std::vector<StoredStructure>& structures) {
  formats::DelimitedList list{kColumns, {}};
  list.rows.reserve(structures.size());
  for (const StoredStructure& stored : structures) list.rows.push_back({{}, stored.name, {stored.structure}});
  return formats::SaveListToFile(fileSystem, file, kSeparator, kHeader, list);
}

}  // namespace nomra::structure
