#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/CliProcess.h"
#include "core/FileEntry.h"
#include "platform/Platform.h"
#include "support/JsonReader.h"
#include "support/TempFolder.h"

namespace nomra::testing {

// Every test gets its own folder of files to load and its own data folder,
// handed to nomra-cli through NOMRA_DATA_DIR.
class CliTest : public ::testing::Test {
 protected:
  TempFolder files;
  TempFolder data;

  CliResult Run(const std::vector<std::string>& arguments) const;
  // Runs the same commands in this process, over `system`, so a test can
  // set the file system's faults.
  CliResult RunWithin(platform::Platform& system, const std::vector<std::string>& arguments) const;
  // Runs with --json added and reads the one document it prints.
  JsonValue RunJson(const std::vector<std::string>& arguments) const;
  // Writes "settings.nrp" into the data folder: section [Settings] with the
  // given "key=value" lines, ending in CR LF as the program writes them.
  void WriteSettings(const std::vector<std::string>& lines) const;
  // Creates an empty file with a name given as raw bytes.
  std::string CreateFileNamed(const std::string& rawName) const;
};

// One text per row, in list order, of a column (kColOldName and so on).
std::vector<std::string> ColumnOfRows(const JsonValue& document, int column);
// The old names of the selected rows, in list order.
std::vector<std::string> SelectedNames(const JsonValue& document);
// The row whose name on disk is `oldName`; throws when there is none.
const JsonValue& RowNamed(const JsonValue& document, const std::string& oldName);

}  // namespace nomra::testing
