#pragma once
#include <string>
#include <vector>

#include "fileops/OperationsFixture.h"
#include "support/ListFixture.h"

namespace nomra::fileops::testing {

// A list over real files, with the file operations at hand.
class ListOperationsTest : public nomra::testing::ListTest {
 protected:
  std::vector<std::string> AskedKeys() const {
    std::vector<std::string> keys;
    for (const core::Message& message : frontEnd.asked) keys.push_back(message.textKey);
    return keys;
  }
  std::vector<std::string> Keys() {
    std::vector<std::string> keys;
    state.list.ForEach([&](const core::FileEntry& row) { keys.push_back(row.key); });
    return keys;
  }

  ForwardingFileSystem os;
  ScriptedProgress progress;
  platform::FreedesktopTrash trash{os, nomra::testing::RealLocations()};
  OperationServices services{os, trash, frontEnd, progress};
};

}  // namespace nomra::fileops::testing
