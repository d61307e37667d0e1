#pragma once
#include <string>

#include "structure/StructureEngine.h"
#include "support/ListFixture.h"

namespace nomra::testing {

// One real file per test, whose pending name the test sets; the structure
// is evaluated on its row.
class StructureTest : public ListTest {
 protected:
  // Evaluates on a file "folder/old" whose pending name is `pending`.
  std::string Evaluate(const std::string& structure, const std::string& pending,
                       const std::string& folder = "Music/Rock") {
    state.list.Clear();
    AddFiles({folder + "/file.bin"});
    SetNewName(1, pending);
    return structure::EvaluateStructure(state.list.Item(1), structure);
  }
};

}  // namespace nomra::testing
