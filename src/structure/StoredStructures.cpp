#include "structure/StoredStructures.h"

#include "settings/SettingsKeys.h"
#include "structure/DelimitedText.h"

namespace nomra {

namespace {

constexpr char kSeparator[] = ";";
constexpr char kHeader[] = "Name;Structure;";
// The list view of the editor: the name, and the structure as sub-item 1.
constexpr int kColumns = 2;

}  // namespace

std::string StructuresFilePath(const std::string& dataFolder) {
  return dataFolder + settings::kStructuresFileName;
}

std::vector<StoredStructure> LoadStoredStructures(const std::string& file) {
  DelimitedList list{kColumns, {}};
  LoadListFromFile(file, false, list);
  std::vector<StoredStructure> structures;
  structures.reserve(list.rows.size());
  for (DelimitedRow& row : list.rows) {
    structures.push_back({std::move(row.text), std::move(row.subItems.front())});
  }
  return structures;
}

bool SaveStoredStructures(const std::string& file, const std::vector<StoredStructure>& structures) {
  DelimitedList list{kColumns, {}};
  list.rows.reserve(structures.size());
  for (const StoredStructure& stored : structures) list.rows.push_back({{}, stored.name, {stored.structure}});
  return SaveListToFile(file, kSeparator, kHeader, list);
}

}  // namespace nomra
